#pragma once

#include <wx/frame.h>
#include <wx/listctrl.h>

#include <vector>

#include "app/CheckInput.h"

namespace korvande {

// Shows the places of findings as they are asked for: there may be a million.
class FindingList : public wxListCtrl {
 public:
    FindingList(wxWindow* parent, const CheckReport& itsReport);

    // The places of those that are selected.
    std::vector<std::size_t> Selected() const;

    // Shows all of them, or only those that are a problem.
    void ShowWanted(bool withWanted);

 protected:
    wxString OnGetItemText(long item, long column) const override;
    wxListItemAttr* OnGetItemAttr(long item) const override;

 private:
    const Finding& FindingAt(long item) const;

    const CheckReport& report;
    std::vector<std::size_t> shown;  // their places
    mutable wxListItemAttr warning;  // as the library wants it
};

// What a check found: the counts, every single finding by line, and the account of objects.
class CheckWindow : public wxFrame {
 public:
    CheckWindow(wxWindow* parent, CheckReport itsReport);

 private:
    wxSizer* MakeHeading();
    wxSizer* MakeAccount();
    wxSizer* MakeButtons();
    void OnKey(wxKeyEvent& event);
    void Copy() const;

    CheckReport report;
    FindingList* list;
};

}  // namespace korvande
