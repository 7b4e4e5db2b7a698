#pragma once

#include <wx/frame.h>
#include <wx/notebook.h>

namespace korvande {

// The keys that work in the whole window, wherever the focus is.
void BindKeys(wxFrame& frame, wxNotebook& tabs);

}  // namespace korvande
