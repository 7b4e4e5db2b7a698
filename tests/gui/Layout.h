#pragma once

#include <wx/window.h>

#include <string>
#include <vector>

namespace korvande::testing {

// What is cut of the controls of a window that are on the screen: those that have less room than they need, and those
// that reach beyond what they stand in (of a page that scrolls, beyond all that can be scrolled to). A sentence for
// each, with the control's name and caption.
std::vector<std::string> CutControls(const wxWindow& window);

}  // namespace korvande::testing
