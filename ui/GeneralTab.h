#pragma once

#include <wx/scrolwin.h>

namespace korvande {

// The tab of the project, the files, the log book and the data owner: its controls, laid out, without any value yet.
wxScrolledWindow* MakeGeneralTab(wxWindow* parent);

}  // namespace korvande
