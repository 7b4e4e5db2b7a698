#include "ui/FramePainting.h"

namespace korvande {

void PaintWhole(wxStaticBox& /*frame*/) {}

}  // namespace korvande
