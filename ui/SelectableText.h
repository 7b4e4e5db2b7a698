#pragma once

#include <wx/textctrl.h>

#include "core/Text.h"

namespace korvande {

// A line that looks like a label and can be selected and copied. What does not fit is in its tooltip.
wxTextCtrl* MakeSelectable(wxWindow* parent, const char* name, TextView text = {});

void ShowSelectable(wxTextCtrl& line, TextView text);

}  // namespace korvande
