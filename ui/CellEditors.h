#pragma once

#include <wx/choice.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

#include <functional>

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

// The editors that are laid over the cells of a grid. What an edit does is decided by `edited`; they show it and report
// what a person does.
class CellEditors {
 public:
    CellEditors(wxGrid& itsGrid, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names);
    CellEditors(const CellEditors&) = delete;
    CellEditors& operator=(const CellEditors&) = delete;
    ~CellEditors() = default;

    // Shows or hides the editors as they are now, exactly on their cell.
    void Show();

    // Called when an edit has ended in an editor, and when Tab has ended one: the next cell is wanted, or the one
    // before.
    std::function<void()> onEnd;
    std::function<void(bool forward)> onTab;

 private:
    void MakeTextEditor(const GridNames& names);
    void MakeListEditor(const GridNames& names);
    void Bind(wxWindow& control);
    void OnHook(wxKeyEvent& event);
    void OnKey(wxKeyEvent& event);
    bool ShowOne(wxWindow& control, const CellEditor& editor);
    void ShowText();
    void ShowList();

    wxGrid& grid;
    FormKORVANDE& form;
    EditedGrid& edited;
    wxTextCtrl* textEditor = nullptr;
    wxChoice* listEditor = nullptr;
};

}  // namespace korvande
