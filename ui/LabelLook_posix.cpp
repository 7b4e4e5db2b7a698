#include "ui/LabelLook.h"

namespace korvande {

void LookLikeLabel(wxTextCtrl& line) { line.SetBackgroundColour(wxTransparentColour); }

}  // namespace korvande
