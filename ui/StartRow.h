#pragma once

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace korvande {

// The start button and the mode list with its label. There is one of each; they move between the general page and the
// settings page, to fixed places, and out of sight.
class StartRow {
 public:
    StartRow(wxWindow* generalPage, wxWindow* settingsPage);
    StartRow(const StartRow&) = delete;
    StartRow& operator=(const StartRow&) = delete;
    ~StartRow() = default;

    void PlaceOn(int tab, bool startedInteractively);

 private:
    void MoveTo(wxWindow* page);

    wxWindow* generalPage;
    wxWindow* settingsPage;
    wxStaticText* label;
    wxChoice* modes;
    wxButton* start;
};

// Adds to the column of a page that the row comes to: the room above the row, which `upper` (or nothing) takes, and the
// frame around the row.
void AddStartFrame(wxSizer* column, wxWindow* page, int tab, wxSizer* upper);

}  // namespace korvande
