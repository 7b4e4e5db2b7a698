#pragma once

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "app/TabPlacement.h"

namespace korvande {

// The start button, the mode list with its label, and beside them the buttons that only check or show. There is one of
// each; they move between the general page and the settings page, to fixed places, and out of sight.
class StartRow {
 public:
    StartRow(wxScrolledWindow* generalPage, wxScrolledWindow* settingsPage);
    StartRow(const StartRow&) = delete;
    StartRow& operator=(const StartRow&) = delete;
    ~StartRow() = default;

    void PlaceOn(int tab, bool startedInteractively);

 private:
    // Where all of it stands in its frame.
    struct Parts {
        wxRect label;
        wxRect list;
        wxRect start;
        wxRect check;
        wxRect preview;
    };

    void MoveTo(wxScrolledWindow* page);
    void Place();
    Parts Arranged(wxPoint listAt, wxPoint startAt) const;
    wxPoint InFrame(int left, int top) const;

    wxScrolledWindow* generalPage;
    wxScrolledWindow* settingsPage;
    wxScrolledWindow* ownPage;  // which it is on
    StartPlacement place;
    wxStaticText* label;
    wxChoice* modes;
    wxButton* start;
    wxButton* check;  // for starts without a command line
    wxButton* preview;
};

// Adds to the column of a page that the row comes to: the room above the row, which `upper` (or nothing) takes, and the
// frame around the row.
void AddStartFrame(wxSizer* column, wxWindow* page, int tab, wxSizer* upper);

}  // namespace korvande
