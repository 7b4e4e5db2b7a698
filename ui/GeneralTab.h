#pragma once

#include <wx/scrolwin.h>

namespace korvande {

// The tabs of the window as far as they are boxes, lists and labels: their controls, laid out, without any value yet. A
// page that has not enough room scrolls.
wxScrolledWindow* MakeGeneralTab(wxWindow* parent);
wxScrolledWindow* MakeSettingsTab(wxWindow* parent);
wxScrolledWindow* MakeInformationTab(wxWindow* parent);

// An empty page of that kind.
wxScrolledWindow* MakePage(wxWindow* parent);

}  // namespace korvande
