#include "ui/CodeGrid.h"

#include <wx/settings.h>

#include <algorithm>
#include <array>
#include <limits>

#include "app/CellValues.h"
#include "app/GridEditing.h"
#include "app/GridHistory.h"
#include "app/GridRows.h"
#include "app/GridView.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "ui/ClipboardText.h"
#include "ui/Controls.h"
#include "ui/GridKeys.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// In twips. A table without types hides their column and gives its room to the description.
constexpr ColumnWidths widthsWithType = {900, 900, 1000, 5250, 400, 400, 400};
constexpr ColumnWidths widthsWithoutType = {900, 900, 0, 6250, 400, 400, 400};

// What must be readable in the columns, in capitals: the longest codes and types, numbers below the mark of a sorted
// column, and the name of the descriptions.
constexpr std::array<TextView, Grid::columns> longestTexts = {u"WATNAAM",  u"WATNAAM",  u"GRONDSL", u"Omschrijving",
                                                              u"P \u25B2", u"I \u25B2", u"B \u25B2"};

}  // namespace

CodeGrid::CodeGrid(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names)
    : wxGrid(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxBORDER_THEME),
      form(itsForm),
      edited(editedGrid),
      table(new ShownTable(editedGrid)) {
    SetName(names.grid);
    SetTable(table, true);
    EnableEditing(false);
    SetLook();
    editors = std::make_unique<CellEditors>(*this, form, edited, names);
    editors->onEnd = [this] { ShowForm(); };
    editors->onTab = [this](bool forward) { GoToNext(forward); };
    BindGrid();
    BindMouse();
}

void CodeGrid::SetLook() {
    DisableDragRowSize();
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetColLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetRowLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    SetColMinimalAcceptableWidth(0);
    SetMargins(0, 0);
    const wxFont font = GetParent()->GetFont();
    SetFont(font);
    SetDefaultCellFont(font);
    SetLabelFont(font.Bold());
    const wxSize numbers = GetTextExtent("00000");
    const int height = numbers.y + FromDIP(wideSpace);
    SetDefaultRowSize(height);
    SetColLabelSize(height);
    SetRowLabelSize(numbers.x + FromDIP(wideSpace));
    const ColumnWidths& described = HasTypes(edited) ? widthsWithType : widthsWithoutType;
    int all = GetRowLabelSize();
    for (int column = 0; column < Grid::columns; ++column) {
        const auto place = static_cast<std::size_t>(column);
        SetColMinimalWidth(column, 0);
        if (described[place] == 0) continue;
        const int text = GetTextExtent(ToWx(longestTexts[place])).x + FromDIP(wideSpace);
        const int usual = std::max(text, PixelsOf(*this, described[place]));
        leastWidths[place] = column == Grid::Description ? text : usual;
        all += usual;
    }
    if (!HasTypes(edited)) DisableColResize(Grid::Type);
    const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    SetMinSize(wxSize(all + scrollBar + FromDIP(narrowSpace), FromDIP(200)));
    chosenWidths = RememberedWidths(FromWx(GetName()));
    FitColumns();
}

void CodeGrid::BindGrid() {
    Bind(wxEVT_KEY_DOWN, &CodeGrid::OnKey, this);
    Bind(wxEVT_CHAR, &CodeGrid::OnCharacter, this);
    Bind(wxEVT_GRID_SELECT_CELL, [this](wxGridEvent& event) {
        event.Skip();
        if (isShowing) return;
        TakeCurrentCell(event.GetRow(), event.GetCol());
        onShown();
    });
    Bind(wxEVT_GRID_CELL_LEFT_DCLICK, [this](wxGridEvent& event) {
        TakeCurrentCell(event.GetRow(), event.GetCol());
        Start(keys::noCharacter);
    });
    GetGridWindow()->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        CallAfter([this] { FitColumns(); });
    });
    Bind(wxEVT_GRID_COL_SIZE, [this](wxGridSizeEvent& event) {
        EndEdit(form, edited);
        ShowForm();
        TakeWidths(event.GetRowOrCol());
    });
}

void CodeGrid::BindMouse() {
    Bind(wxEVT_GRID_LABEL_LEFT_CLICK, &CodeGrid::OnLabel, this);
    Bind(wxEVT_GRID_LABEL_LEFT_DCLICK, &CodeGrid::OnLabel, this);
    Bind(wxEVT_GRID_CELL_RIGHT_CLICK, &CodeGrid::OnMenu, this);
    GetGridColLabelWindow()->SetToolTip(
        ToWx(u"Een klik sorteert, alleen om te kijken: de volgorde in het bestand blijft"));
    GetGridWindow()->Bind(wxEVT_MOTION, &CodeGrid::OnMotion, this);
}

void CodeGrid::OnKey(wxKeyEvent& event) {
    if (DoShortcut(event)) return;
    const std::int16_t key = GridKeyCode(event);
    const bool isPlain = event.GetModifiers() == wxMOD_NONE;
    if (key == keys::enter) {
        Start(key);
    } else if (isPlain && (key == keys::insertRow || key == keys::deleteRow)) {
        GridKeyDown(form, edited, key);
        ShowForm();
    } else if (isPlain || (key != keys::insertRow && key != keys::deleteRow)) {
        event.Skip();
    }
}

// False when it is none.
bool CodeGrid::DoShortcut(wxKeyEvent& event) {
    const GridKey key = GridKeyOf(event);
    switch (key) {
        case GridKey::Edit:
            Edit();
            break;
        case GridKey::Next:
        case GridKey::Previous: {
            const bool forward = key == GridKey::Next;
            if (!GoToNext(forward)) onLeave(forward);
            break;
        }
        case GridKey::Copy:
            Copy();
            break;
        case GridKey::Cut:
            Cut();
            break;
        case GridKey::Paste:
            Paste();
            break;
        case GridKey::Undo:
            UndoChange();
            break;
        case GridKey::Redo:
            RedoChange();
            break;
        case GridKey::RowUp:
        case GridKey::RowDown:
            MoveRow(form, edited, key == GridKey::RowUp ? -1 : 1);
            ShowForm();
            break;
        case GridKey::Menu:
            onMenu();
            break;
        case GridKey::None:
            return false;
    }
    return true;
}

void CodeGrid::OnCharacter(wxKeyEvent& event) {
    const wxChar character = event.GetUnicodeKey();
    const bool isTyped = character != WXK_NONE && character != WXK_ESCAPE && character != WXK_TAB;
    if (!isTyped || (event.GetModifiers() & ~wxMOD_SHIFT) != 0) {
        event.Skip();
        return;
    }
    Start(character);
}

// A click on a column's header sorts by it.
void CodeGrid::OnLabel(wxGridEvent& event) {
    if (event.GetCol() < 0) return event.Skip();
    EndEdit(form, edited);
    ClearSelection();
    SortByColumn(form, edited, event.GetCol());
    ShowForm();
    SetFocus();
}

void CodeGrid::OnMotion(wxMouseEvent& event) {
    event.Skip();
    const wxPoint place = CalcUnscrolledPosition(event.GetPosition());
    const int row = YToRow(place.y);
    const int column = XToCol(place.x);
    wxString tip;
    if (row >= 0 && column >= 0) {
        tip = table->ReasonAt(row, column);
        const wxString text = table->GetValue(row, column);
        if (tip.empty() && GetTextExtent(text).x > GetColSize(column)) tip = text;
    }
    if (GetGridWindow()->GetToolTipText() != tip) GetGridWindow()->SetToolTip(tip);
}

void CodeGrid::OnMenu(wxGridEvent& event) {
    if (!IsInSelection(event.GetRow(), event.GetCol())) {
        ClearSelection();
        SetGridCursor(event.GetRow(), event.GetCol());
    }
    SetFocus();
    onMenu();
}

void CodeGrid::TakeCurrentCell(int place, int column) {
    EndEdit(form, edited);
    edited.row = RowAtPlace(edited, place);
    edited.column = column;
}

// The next cell that is shown, or the one before, row by row; false at the last one.
bool CodeGrid::GoToNext(bool forward) {
    const int cells = table->GetNumberRows() * Grid::columns;
    int cell = PlaceOfRow(edited, edited.row) * Grid::columns + edited.column;
    do {
        cell += forward ? 1 : -1;
        if (cell < 0 || cell >= cells) return false;
    } while (GetColSize(cell % Grid::columns) == 0);
    ClearSelection();
    edited.row = RowAtPlace(edited, cell / Grid::columns);
    edited.column = cell % Grid::columns;
    ShowForm();
    return true;
}

void CodeGrid::GoTo(int row, int column) {
    EndEdit(form, edited);
    ClearSelection();
    edited.row = row;
    edited.column = column;
    ShowForm();
    SetFocus();
}

void CodeGrid::Start(int keyCharacter) {
    if (!HasCurrentRow(edited)) return;
    ClearSelection();
    const bool isCode = keyCharacter <= std::numeric_limits<std::int16_t>::max();
    StartEdit(form, edited, isCode ? static_cast<std::int16_t>(keyCharacter) : keys::noCharacter);
    ShowForm();
}

void CodeGrid::Edit() { Start(keys::noCharacter); }

// What a person has chosen: a block of cells, or the current cell. Nothing, and a message, when it is more.
std::optional<CellBlock> CodeGrid::ChosenBlock() {
    const int place = std::max(PlaceOfRow(edited, edited.row), 0);
    CellBlock chosen{place, edited.column, place, edited.column};
    bool isFirst = true;
    for (const wxGridBlockCoords& selected : GetSelectedBlocks()) {
        if (!isFirst) {
            ShowMessage(form.screen, u"Dit kan met één blok cellen tegelijk.");
            return {};
        }
        isFirst = false;
        const wxGridBlockCoords block = selected.Canonicalize();
        chosen = {block.GetTopRow(), block.GetLeftCol(), block.GetBottomRow(), block.GetRightCol()};
    }
    return chosen;
}

void CodeGrid::Copy() {
    const std::optional<CellBlock> block = ChosenBlock();
    if (block && HasCurrentRow(edited)) PutOnClipboard(TextOfCells(edited, *block));
}

void CodeGrid::Cut() {
    const std::optional<CellBlock> block = ChosenBlock();
    if (!block || !HasCurrentRow(edited)) return;
    PutOnClipboard(TextOfCells(edited, *block));
    ClearCells(form, edited, *block);
    ShowForm();
}

void CodeGrid::Paste() {
    const std::optional<CellBlock> block = ChosenBlock();
    if (!block) return;
    const std::optional<CellBlock> filled = PasteCells(form, edited, *block, ClipboardText());
    if (!filled) return;
    edited.row = RowAtPlace(edited, filled->top);
    edited.column = filled->left;
    ShowForm();
    SelectBlock(filled->top, filled->left, filled->bottom, filled->right);
}

void CodeGrid::UndoChange() {
    ClearSelection();
    Undo(edited);
    TellChanged(form);
}

void CodeGrid::RedoChange() {
    ClearSelection();
    Redo(edited);
    TellChanged(form);
}

wxString CodeGrid::CurrentReason() {
    return HasCurrentRow(edited) ? table->ReasonAt(PlaceOfRow(edited, edited.row), edited.column) : wxString();
}

void CodeGrid::ShowForm() {
    if (isShowing) return;
    isShowing = true;
    table->RowsChanged();
    ClearAttrCache();
    ShowCurrentCell();
    ForceRefresh();
    editors->Show();
    isShowing = false;
    onShown();
}

void CodeGrid::ShowCurrentCell() {
    if (!HasCurrentRow(edited)) return;
    const int place = PlaceOfRow(edited, edited.row);
    if (GetGridCursorRow() == place && GetGridCursorCol() == edited.column) return;
    SetGridCursor(place, edited.column);
    MakeCellVisible(place, edited.column);
}

void CodeGrid::FitColumns() {
    ColumnWidths chosen = chosenWidths;
    for (int& width : chosen) width = FromDIP(width);
    const ColumnWidths widths = WidthsInRoom(chosen, leastWidths, GetGridWindow()->GetClientSize().x);
    for (int column = 0; column < Grid::columns; ++column) {
        const int width = widths[static_cast<std::size_t>(column)];
        if (GetColSize(column) != width) SetColSize(column, width);
    }
}

void CodeGrid::TakeWidths(int column) {
    // A column that is dragged shut would not be found again.
    constexpr int smallest = 10;
    chosenWidths[static_cast<std::size_t>(column)] = std::max(ToDIP(GetColSize(column)), smallest);
    RememberWidths(FromWx(GetName()), chosenWidths);
    FitColumns();
}

void CodeGrid::ForgetWidths() {
    chosenWidths = {};
    RememberWidths(FromWx(GetName()), chosenWidths);
    FitColumns();
}

}  // namespace korvande
