#include "ui/CellEditors.h"

#include <algorithm>

#include "app/EditedGrid.h"
#include "app/GridEditing.h"
#include "app/GridView.h"
#include "ui/GridKeys.h"
#include "ui/WxText.h"

namespace korvande {

CellEditors::CellEditors(wxGrid& itsGrid, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names)
    : grid(itsGrid), form(itsForm), edited(editedGrid) {
    MakeTextEditor(names);
    if (!edited.listItems.empty()) MakeListEditor(names);
}

void CellEditors::MakeTextEditor(const GridNames& names) {
    textEditor = new wxTextCtrl(grid.GetGridWindow(), wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                wxBORDER_NONE | wxTE_PROCESS_ENTER | wxTE_PROCESS_TAB);
    textEditor->SetName(names.textEditor);
    textEditor->Hide();
    textEditor->SetFont(grid.GetDefaultCellFont());
    textEditor->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { edited.textEditor.text = FromWx(textEditor->GetValue()); });
    Bind(*textEditor);
}

void CellEditors::MakeListEditor(const GridNames& names) {
    wxArrayString items;
    for (const Text& item : edited.listItems) items.push_back(ToWx(item));
    listEditor = new wxChoice(grid.GetGridWindow(), wxID_ANY, wxDefaultPosition, wxDefaultSize, items);
    listEditor->SetName(names.listEditor);
    listEditor->Hide();
    listEditor->SetFont(grid.GetDefaultCellFont());
    listEditor->Bind(wxEVT_CHOICE,
                     [this](wxCommandEvent&) { edited.listEditor.text = FromWx(listEditor->GetStringSelection()); });
    Bind(*listEditor);
}

void CellEditors::Bind(wxWindow& control) {
    control.Bind(wxEVT_CHAR_HOOK, &CellEditors::OnHook, this);
    control.Bind(wxEVT_KEY_DOWN, &CellEditors::OnKey, this);
    control.Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        EndEdits(form);
        onEnd();
    });
}

// Tab would move the focus out of the grid.
void CellEditors::OnHook(wxKeyEvent& event) {
    const GridKey key = GridKeyOf(event);
    if (key != GridKey::Next && key != GridKey::Previous) return event.Skip();
    edited.gridHasFocus = true;
    EndEdit(form, edited);
    onEnd();
    onTab(key == GridKey::Next);
}

void CellEditors::OnKey(wxKeyEvent& event) {
    std::int16_t key = GridKeyCode(event);
    const auto shift = static_cast<std::int16_t>(event.ShiftDown());
    if (edited.listEditor.isVisible) {
        EditKeyCodeLists(form, edited, key, shift);
    } else {
        EditKeyCodeTexts(form, edited, key, shift);
    }
    const bool isEnd = key == keys::enter || key == keys::escape;
    if (isEnd) onEnd();
    // A key that ends the edit has had its effect.
    if (!isEnd && key != 0) event.Skip();
}

void CellEditors::Show() {
    ShowText();
    if (listEditor != nullptr) ShowList();
}

// True when it is shown newly.
bool CellEditors::ShowOne(wxWindow& control, const CellEditor& editor) {
    if (control.IsShown() == editor.isVisible) return false;
    if (!editor.isVisible && edited.gridHasFocus) grid.SetFocus();
    if (editor.isVisible) {
        const int row = PlaceOfRow(edited, edited.row);
        grid.MakeCellVisible(row, edited.column);
        const wxRect cell = grid.CellToRect(row, edited.column);
        wxRect place(grid.CalcScrolledPosition(cell.GetPosition()), cell.GetSize());
        // A drop-down list is not cut down to a smaller cell: nobody could read it.
        if (&control == listEditor) {
            const wxRect itsCell = place;
            wxSize size = place.GetSize();
            size.IncTo(control.GetBestSize());
            place.SetSize(size);
            place = place.CentreIn(itsCell, wxVERTICAL);
        }
        control.SetSize(place);
    }
    control.Show(editor.isVisible);
    return editor.isVisible;
}

void CellEditors::ShowText() {
    const CellEditor& editor = edited.textEditor;
    if (!ShowOne(*textEditor, editor)) return;
    textEditor->ChangeValue(ToWx(editor.text));
    textEditor->SetFocus();
    const long end = std::min<long>(editor.selectionStart + editor.selectionLength, textEditor->GetLastPosition());
    textEditor->SetSelection(editor.selectionStart, end);
}

void CellEditors::ShowList() {
    const CellEditor& editor = edited.listEditor;
    if (!ShowOne(*listEditor, editor)) return;
    listEditor->SetSelection(listEditor->FindString(ToWx(editor.text), true));
    listEditor->SetFocus();
}

}  // namespace korvande
