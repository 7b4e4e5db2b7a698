#pragma once

#include <wx/notebook.h>

namespace korvande {

// The areas of the window that F6 goes through: the tab headers, each frame or grid of the page with what stands
// between them, and what is below the tabs. `focused` is the control that has the keyboard.
void GoToNextArea(wxNotebook& tabs, wxWindow* focused, bool forward);

}  // namespace korvande
