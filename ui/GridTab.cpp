#include "ui/GridTab.h"

#include <wx/sizer.h>

#include <algorithm>
#include <array>
#include <limits>

#include "app/GridEditing.h"
#include "app/TabPlacement.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// In twips. A table without types hides their column and gives its room to the description.
constexpr std::array<int, Grid::columns> widthsWithType = {900, 900, 1000, 5250, 400, 400, 400};
constexpr std::array<int, Grid::columns> widthsWithoutType = {900, 900, 0, 6250, 400, 400, 400};

// The longest codes must be readable in the columns as wide as they are.
constexpr TextView longCode = u"WATNAAM";

constexpr TextView explanation =
    u"Wijzigen: begin te typen of dubbelklik op een cel. Enter sluit de wijziging af, een andere cel kiezen ook.\n\n"
    u"Insert: een regel toevoegen, onderaan de tabel.\n\n"
    u"Delete: de regel wissen.\n\n"
    u"De eerste regel geldt voor alle codes die niet in de tabel staan. Staat een code er vaker in, dan geldt de "
    u"onderste regel.";

// The code by which the editing knows a key; any key that it does not tell apart has one code.
std::int16_t KeyCode(const wxKeyEvent& event) {
    constexpr std::int16_t otherKey = 255;
    switch (event.GetKeyCode()) {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            return keys::enter;
        case WXK_ESCAPE:
            return keys::escape;
        case WXK_UP:
        case WXK_NUMPAD_UP:
            return keys::up;
        case WXK_DOWN:
        case WXK_NUMPAD_DOWN:
            return keys::down;
        case WXK_INSERT:
        case WXK_NUMPAD_INSERT:
            return keys::insertRow;
        case WXK_DELETE:
        case WXK_NUMPAD_DELETE:
            return keys::deleteRow;
        default:
            return otherKey;
    }
}

TwipsRectangle ToTwips(const wxWindow& window, const wxRect& place) {
    return {TwipsOf(window, place.x), TwipsOf(window, place.y), TwipsOf(window, place.width),
            TwipsOf(window, place.height)};
}

wxRect ToPixels(const wxWindow& window, const TwipsRectangle& place) {
    return {PixelsOf(window, place.left), PixelsOf(window, place.top), PixelsOf(window, place.width),
            PixelsOf(window, place.height)};
}

}  // namespace

GridTab::GridTab(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names)
    : wxPanel(parent), form(itsForm), edited(editedGrid) {
    MakeGrid(names.grid);
    MakeEditors(names);
    BindGrid();
    constexpr int helpWidth = 200;
    wxStaticText* const help = MakeLabel(this, explanation);
    help->Wrap(FromDIP(helpWidth));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(wideSpace)));
    row->Add(help, wxSizerFlags().Border(wxTOP | wxRIGHT | wxBOTTOM, FromDIP(wideSpace)));
    SetSizer(row);
}

void GridTab::MakeGrid(const char* name) {
    grid = new wxGrid(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(640, 200)), wxWANTS_CHARS | wxBORDER_THEME);
    grid->SetName(name);
    table = new ShownTable(edited.grid);
    grid->SetTable(table, true);
    grid->EnableEditing(false);
    grid->SetRowLabelSize(0);
    grid->DisableDragRowSize();
    grid->SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    grid->SetColLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    const auto& widths = edited.listItems.empty() ? widthsWithoutType : widthsWithType;
    for (int column = 0; column < Grid::columns; ++column) {
        grid->SetColMinimalWidth(column, 0);
        grid->SetColSize(column, PixelsOf(*this, widths[static_cast<std::size_t>(column)]));
    }
    grid->SetColMinimalAcceptableWidth(0);
    FitFont();
}

void GridTab::FitFont() {
    constexpr double smallest = 6;
    constexpr double step = 0.5;
    const int room = grid->GetColSize(Grid::Liscad) - FromDIP(narrowSpace);
    wxFont font = GetFont();
    wxSize text;
    do {
        grid->SetFont(font);
        text = grid->GetTextExtent(ToWx(longCode));
        font.SetFractionalPointSize(font.GetFractionalPointSize() - step);
    } while (text.x > room && font.GetFractionalPointSize() >= smallest);
    const wxFont fitting = grid->GetFont();
    grid->SetDefaultCellFont(fitting);
    grid->SetLabelFont(fitting.Bold());
    grid->SetDefaultRowSize(text.y + FromDIP(wideSpace));
    grid->SetColLabelSize(text.y + FromDIP(wideSpace));
}

void GridTab::MakeEditors(const GridNames& names) {
    wxWindow* const cells = grid->GetGridWindow();
    textEditor = new wxTextCtrl(cells, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                wxBORDER_NONE | wxTE_PROCESS_ENTER);
    textEditor->SetName(names.textEditor);
    textEditor->Hide();
    textEditor->SetFont(grid->GetDefaultCellFont());
    textEditor->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { edited.textEditor.text = FromWx(textEditor->GetValue()); });
    BindEditor(*textEditor);
    if (edited.listItems.empty()) return;
    wxArrayString items;
    for (const Text& item : edited.listItems) items.push_back(ToWx(item));
    listEditor = new wxChoice(cells, wxID_ANY, wxDefaultPosition, wxDefaultSize, items);
    listEditor->SetName(names.listEditor);
    listEditor->Hide();
    listEditor->SetFont(grid->GetDefaultCellFont());
    listEditor->Bind(wxEVT_CHOICE,
                     [this](wxCommandEvent&) { edited.listEditor.text = FromWx(listEditor->GetStringSelection()); });
    BindEditor(*listEditor);
}

void GridTab::BindEditor(wxWindow& control) {
    control.Bind(wxEVT_KEY_DOWN, &GridTab::OnEditorKey, this);
    control.Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        EndEdits(form);
        ShowForm();
    });
}

void GridTab::BindGrid() {
    grid->Bind(wxEVT_KEY_DOWN, &GridTab::OnGridKey, this);
    grid->Bind(wxEVT_CHAR, &GridTab::OnGridCharacter, this);
    grid->Bind(wxEVT_GRID_SELECT_CELL, [this](wxGridEvent& event) {
        event.Skip();
        if (!isShowing) TakeCurrentCell(event.GetRow(), event.GetCol());
    });
    grid->Bind(wxEVT_GRID_CELL_LEFT_DCLICK, [this](wxGridEvent& event) {
        TakeCurrentCell(event.GetRow(), event.GetCol());
        Start(keys::noCharacter);
    });
}

void GridTab::OnGridKey(wxKeyEvent& event) {
    const std::int16_t key = KeyCode(event);
    if (key == keys::enter) {
        Start(key);
    } else if (key == keys::insertRow || key == keys::deleteRow) {
        GridKeyDown(form, edited, key);
        ShowForm();
    } else {
        event.Skip();
    }
}

void GridTab::OnGridCharacter(wxKeyEvent& event) {
    const wxChar character = event.GetUnicodeKey();
    const bool isTyped = character != WXK_NONE && character != WXK_ESCAPE && character != WXK_TAB;
    if (!isTyped || (event.GetModifiers() & ~wxMOD_SHIFT) != 0) {
        event.Skip();
        return;
    }
    Start(character);
}

void GridTab::OnEditorKey(wxKeyEvent& event) {
    std::int16_t key = KeyCode(event);
    const auto shift = static_cast<std::int16_t>(event.ShiftDown());
    if (edited.listEditor.isVisible) {
        EditKeyCodeLists(form, edited, key, shift);
    } else {
        EditKeyCodeTexts(form, edited, key, shift);
    }
    const bool isEnd = key == keys::enter || key == keys::escape;
    if (isEnd) ShowForm();
    // A key that ends the edit has had its effect.
    if (!isEnd && key != 0) event.Skip();
}

void GridTab::TakeCurrentCell(int row, int column) {
    EndEdit(form, edited);
    edited.row = row + 1;
    edited.column = column;
}

void GridTab::Start(int keyCharacter) {
    const int row = edited.row - 1;
    if (row < 0 || row >= table->GetNumberRows()) return;
    grid->MakeCellVisible(row, edited.column);
    wxRect cell = grid->CellToRect(row, edited.column);
    cell.SetPosition(grid->CalcScrolledPosition(cell.GetPosition()) + grid->GetGridWindow()->GetPosition());
    const bool isCode = keyCharacter <= std::numeric_limits<std::int16_t>::max();
    const std::int16_t key = isCode ? static_cast<std::int16_t>(keyCharacter) : keys::noCharacter;
    StartEdit(form, edited, key, ToTwips(*this, grid->GetRect()), ToTwips(*this, cell));
    ShowForm();
}

void GridTab::ShowForm() {
    if (isShowing) return;
    isShowing = true;
    table->RowsChanged();
    ShowCurrentCell();
    grid->ForceRefresh();
    ShowTextEditor();
    if (listEditor != nullptr) ShowListEditor();
    isShowing = false;
}

void GridTab::ShowCurrentCell() {
    const int row = edited.row - 1;
    if (row < 0 || row >= table->GetNumberRows()) return;
    if (grid->GetGridCursorRow() == row && grid->GetGridCursorCol() == edited.column) return;
    grid->SetGridCursor(row, edited.column);
    grid->MakeCellVisible(row, edited.column);
}

// Shows or hides an editor as its state says; true when it is shown newly.
bool GridTab::ShowEditor(wxWindow& control, const CellEditor& editor) {
    if (control.IsShown() == editor.isVisible) return false;
    if (!editor.isVisible && edited.gridHasFocus) grid->SetFocus();
    if (editor.isVisible) {
        wxRect place = ToPixels(*this, editor.place);
        place.Offset(-grid->GetPosition() - grid->GetGridWindow()->GetPosition());
        // A drop-down list is not cut down to a smaller cell: nobody could read it.
        wxSize size = place.GetSize();
        if (&control == listEditor) size.IncTo(control.GetBestSize());
        control.SetSize(wxRect(place.GetPosition(), size));
    }
    control.Show(editor.isVisible);
    return editor.isVisible;
}

void GridTab::ShowTextEditor() {
    const CellEditor& editor = edited.textEditor;
    if (!ShowEditor(*textEditor, editor)) return;
    textEditor->ChangeValue(ToWx(editor.text));
    textEditor->SetFocus();
    const long end = std::min<long>(editor.selectionStart + editor.selectionLength, textEditor->GetLastPosition());
    textEditor->SetSelection(editor.selectionStart, end);
}

void GridTab::ShowListEditor() {
    const CellEditor& editor = edited.listEditor;
    if (!ShowEditor(*listEditor, editor)) return;
    listEditor->SetSelection(listEditor->FindString(ToWx(editor.text), true));
    listEditor->SetFocus();
}

}  // namespace korvande
