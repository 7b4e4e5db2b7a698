#pragma once

#include <wx/window.h>

namespace korvande {

// Whether a dialog, also one of the system's such as a message box, keeps a window from its user until it is answered.
// Only where the window may be asked to close all the same; elsewhere never. Platform.
bool IsBehindDialog(const wxWindow& window);

}  // namespace korvande
