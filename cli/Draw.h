#pragma once

namespace korvande {

struct DrawOptions;

// The command `teken`: makes a picture of a drawing. The exit status.
int DrawDrawing(const DrawOptions& options);

}  // namespace korvande
