#pragma once

#include <wx/button.h>
#include <wx/frame.h>
#include <wx/listctrl.h>

#include <vector>

#include "app/RunBatch.h"

namespace korvande {

class Screen;

// What became of the files of a batch: one row for each, red where something was lost, with its log book and its
// folder.
class BatchWindow : public wxFrame {
 public:
    BatchWindow(wxWindow* parent, Screen& itsScreen, std::vector<BatchOutcome> itsOutcomes);

 private:
    void MakeList(wxWindow* content);
    wxSizer* MakeButtons(wxWindow* content);
    void AddRow(const BatchOutcome& outcome);
    const BatchOutcome* Selected() const;
    void ShowSelected();
    void ShowLogBook();
    void ShowFolder();

    Screen& screen;
    std::vector<BatchOutcome> outcomes;
    wxListCtrl* list = nullptr;
    wxButton* logBook = nullptr;
    wxButton* folder = nullptr;
};

}  // namespace korvande
