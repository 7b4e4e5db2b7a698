#pragma once

#include <wx/choice.h>
#include <wx/dialog.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include "app/Batch.h"

namespace korvande {

struct FormKORVANDE;

// Shows the files of a batch with what becomes of them, and asks for the target of IDEX files and for the folder of the
// results. OK only comes of a batch that has no obstacle.
class BatchDialog : public wxDialog {
 public:
    BatchDialog(wxWindow* parent, const FormKORVANDE& itsForm, Batch itsBatch);

    const Batch& Chosen() const noexcept { return batch; }

 private:
    void MakeList();
    wxSizer* MakeListButtons();
    wxSizer* MakeChoices();
    wxSizer* MakeButtons();
    void ShowFiles();
    void DropSelected();
    void BrowseFolder();
    void Translate();

    const FormKORVANDE& form;
    Batch batch;
    wxListCtrl* list = nullptr;
    wxChoice* target = nullptr;
    wxTextCtrl* folder = nullptr;
};

}  // namespace korvande
