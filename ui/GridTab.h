#pragma once

#include <wx/choice.h>
#include <wx/grid.h>
#include <wx/panel.h>
#include <wx/textctrl.h>

#include "ui/ShownTable.h"

namespace korvande {

struct CellEditor;
struct EditedGrid;
struct FormKORVANDE;

// The names of a code table's controls; a table without a list editor has no name for it.
struct GridNames {
    const char* grid;
    const char* textEditor;
    const char* listEditor;
};

// A tab with a code table: the grid, and the editors that are laid over its cells. What an edit does is decided by
// `edited`; this shows it and reports what a person does.
class GridTab : public wxPanel {
 public:
    GridTab(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names);

    // Shows the form's cells, the current cell and the editors as they are now.
    void ShowForm();

 private:
    void MakeGrid(const char* name);
    void MakeEditors(const GridNames& names);
    void BindGrid();
    void BindEditor(wxWindow& control);
    void FitFont();

    void OnGridKey(wxKeyEvent& event);
    void OnGridCharacter(wxKeyEvent& event);
    void OnEditorKey(wxKeyEvent& event);
    void Start(int keyCharacter);
    void TakeCurrentCell(int row, int column);
    void ShowCurrentCell();
    void ShowTextEditor();
    void ShowListEditor();
    bool ShowEditor(wxWindow& control, const CellEditor& editor);

    FormKORVANDE& form;
    EditedGrid& edited;
    ShownTable* table = nullptr;
    wxGrid* grid = nullptr;
    wxTextCtrl* textEditor = nullptr;
    wxChoice* listEditor = nullptr;
    bool isShowing = false;
};

}  // namespace korvande
