#pragma once

#include <wx/textctrl.h>

namespace korvande {

// Platform: takes from a text control without a border what else tells it from a label: a background of its own.
void LookLikeLabel(wxTextCtrl& line);

}  // namespace korvande
