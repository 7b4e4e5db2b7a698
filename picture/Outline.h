#pragma once

#include <vector>

#include "picture/SpatialIndex.h"

namespace korvande {

// Where an object is, to be drawn over the picture: lines through these places, millimetres from the origin; of a point
// a single one. Curves are made of straight lines, no farther from them than `beside` (millimetres).
using Outline = std::vector<std::vector<Position>>;

// Of a line string, all of its parts; of a text the frame of its letters.
Outline OutlineOf(const DisplayList& list, PictureRef ref, double beside);

// Of the line string of this number; nothing when the list has none.
Outline OutlineOfLine(const DisplayList& list, std::int32_t lineNo, double beside);

// Of an arc about a centre; of one that ends where it starts, the whole circle.
Outline OutlineOfArc(PicturePlace start, PicturePlace centre, PicturePlace end, bool isAnticlockwise, double beside);

// A cubic curve with its two control points.
struct PictureCurve {
    PicturePlace from;
    PicturePlace first;
    PicturePlace second;
    PicturePlace to;
};

// Finds curves of line strings by their ends. One line string after the other costs a walk over each.
class CurveOutlines {
 public:
    // Of the curve of a line string that goes from one place to the other; a straight line when there is none.
    Outline Between(const DisplayList& list, std::int32_t itsLineNo, PicturePlace from, PicturePlace to, double beside);

 private:
    std::int32_t lineNo = 0;
    std::vector<PictureCurve> curves;  // of that line string, by where they begin
};

PictureBox BoxOf(const Outline& outline) noexcept;

}  // namespace korvande
