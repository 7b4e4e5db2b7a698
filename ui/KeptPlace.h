#pragma once

#include <wx/scrolwin.h>
#include <wx/toplevel.h>

#include "app/WindowPlace.h"
#include "core/Text.h"

namespace korvande {

// Makes a window no larger than its display; there is room left for the frame that the system has yet to give it.
void FitDisplay(wxTopLevelWindow& window);

// The content of a window that scrolls where it has no room, as with a large text on a small display.
wxScrolledWindow* MakeContent(wxWindow* parent);

// Gives a window its usual size (of its client area, in device-independent pixels), or what its content takes, but no
// more than the display has.
void FitContent(wxTopLevelWindow& window, const wxScrolledWindow& content, wxSize usual);

// Puts a window where its user left it in the session before, if a screen is there, and keeps its place for the next
// one. Made when the window has its size, before it is shown.
class KeptPlace {
 public:
    // The place is kept under a name of the window's own.
    KeptPlace(wxTopLevelWindow& itsWindow, TextView itsName);
    KeptPlace(const KeptPlace&) = delete;
    KeptPlace& operator=(const KeptPlace&) = delete;
    ~KeptPlace() = default;

    void Keep();

 private:
    void Restore();
    void Insist();
    void Look();

    wxTopLevelWindow& window;
    Text name;
    WindowPlace place;  // as the window was last seen
};

}  // namespace korvande
