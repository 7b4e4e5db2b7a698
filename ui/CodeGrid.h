#pragma once

#include <wx/grid.h>

#include <functional>
#include <memory>
#include <optional>

#include "app/ColumnWidths.h"
#include "app/GridClipboard.h"
#include "ui/CellEditors.h"
#include "ui/ShownTable.h"

namespace korvande {

// The grid of a code table, with the editors that are laid over its cells. It shows what `edited` says, and tells the
// form what a person does in it.
class CodeGrid : public wxGrid {
 public:
    CodeGrid(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names);

    // Shows the form's cells, the current cell and the editors as they are now.
    void ShowForm();

    // Makes a cell the current one and gives the grid the focus.
    void GoTo(int row, int column);

    void Edit();
    void Copy();
    void Cut();
    void Paste();
    void UndoChange();
    void RedoChange();
    void ForgetWidths();

    // Why the current cell is marked; empty when it is not.
    wxString CurrentReason();

    // What the grid wants of the tab on which it stands: its menu, the control behind it or the one before it when Tab
    // leaves the grid (its parts could take the focus too, if the toolkit looked for it), and to show what has become
    // of it.
    std::function<void()> onMenu = [] {};
    std::function<void(bool forward)> onLeave = [](bool) {};
    std::function<void()> onShown = [] {};

 private:
    void SetLook();
    void BindGrid();
    void BindMouse();
    void OnKey(wxKeyEvent& event);
    void OnCharacter(wxKeyEvent& event);
    void OnLabel(wxGridEvent& event);
    void OnMotion(wxMouseEvent& event);
    void OnMenu(wxGridEvent& event);
    bool DoShortcut(wxKeyEvent& event);
    void Start(int keyCharacter);
    void TakeCurrentCell(int place, int column);
    bool GoToNext(bool forward);
    void ShowCurrentCell();
    void FitColumns();
    void TakeWidths(int column);
    std::optional<CellBlock> ChosenBlock();

    FormKORVANDE& form;
    EditedGrid& edited;
    ShownTable* table;
    std::unique_ptr<CellEditors> editors;
    ColumnWidths chosenWidths{};
    ColumnWidths leastWidths{};
    bool isShowing = false;
};

}  // namespace korvande
