#pragma once

#include <wx/scrolwin.h>

namespace korvande {

// The tab of the options of import and export: its controls, laid out, without any value yet.
wxScrolledWindow* MakeSettingsTab(wxWindow* parent);

}  // namespace korvande
