#pragma once

class wxStaticBox;

namespace korvande {

// Platform: has the frame around a group of controls painted in full whenever any of it is. On Windows neither the
// system nor the library does: of a page that comes back, or was disabled for a while, some frames lack their lines.
void PaintWhole(wxStaticBox& frame);

}  // namespace korvande
