#pragma once

#include <wx/toplevel.h>

#include "app/WindowPlace.h"
#include "core/Text.h"

namespace korvande {

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
