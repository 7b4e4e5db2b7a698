#pragma once

#include <wx/frame.h>

namespace korvande {

// The keys that work in the whole window, wherever the focus is.
void BindKeys(wxFrame& frame);

}  // namespace korvande
