#pragma once

#include "picture/DrawPicture.h"
#include "picture/FramePixels.h"

namespace korvande {

// Draws what of a picture a frame shows in one grey, and the marks over it: those of one name together, as if they were
// the objects of a code of that name in a table V. The picture is that of the source whose places the marks have.
void DrawMarked(const FrameSource& source, const FrameMarks& marks, const PictureFrame& frame, Canvas& canvas);

}  // namespace korvande
