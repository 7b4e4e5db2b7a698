#pragma once

#include <wx/button.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "app/GridSearch.h"
#include "ui/CodeGrid.h"
#include "ui/GridCommands.h"

namespace korvande {

struct EditedGrid;
struct FormKORVANDE;

// A tab with a code table: the grid, a box to search in it, and a button for what can be done with its rows.
class GridTab : public wxScrolledWindow {
 public:
    GridTab(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names);

    // Shows the form's cells, the current cell and the editors as they are now.
    void ShowForm() { grid->ShowForm(); }

    const EditedGrid& Edited() const noexcept { return edited; }

    // Gives the grid the focus, on its current cell.
    void GoToCurrentCell() { grid->GoTo(edited.row, edited.column); }

 private:
    wxSizer* MakeSearch();
    wxSizer* MakeButtons();
    wxWindow* Named(wxWindow* window, const char* name) const;
    void BindKeys();
    void Search(SearchDirection direction);
    void Do(const GridCommand& command);
    void ShowMenu();
    void ShowState();
    void Say(const Text& text);

    FormKORVANDE& form;
    EditedGrid& edited;
    CodeGrid* grid = nullptr;
    wxTextCtrl* searched = nullptr;
    wxButton* next = nullptr;
    wxButton* previous = nullptr;
    wxStaticText* remark = nullptr;
    wxString said;  // what is told until another cell is looked at
    int saidRow = 0;
    int saidColumn = 0;
    std::vector<GridCommand> commands;
    std::vector<wxButton*> buttons;  // of the commands; null without one
};

}  // namespace korvande
