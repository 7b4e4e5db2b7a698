#pragma once

#include "picture/Pixels.h"

// Lines and dots on pixels, with smooth edges. Places are in pixels from the top left corner of the picture, and may
// lie outside it.
namespace korvande {

struct PixelPlace {
    double x = 0;
    double y = 0;
};

// A straight line of this width (pixels). One shorter than a pixel covers as much of it as it is long.
void DrawLine(Pixels& pixels, PixelPlace from, PixelPlace to, double width, Colour colour) noexcept;

// A filled circle.
void DrawDot(Pixels& pixels, PixelPlace centre, double radius, Colour colour) noexcept;

// The part of a line from `from` to `to` that may be seen, with some room around the picture; false when there is none.
bool CutToPixels(const Pixels& pixels, double room, PixelPlace& from, PixelPlace& to) noexcept;

}  // namespace korvande
