#pragma once

#include <vector>

#include "picture/SpatialIndex.h"

namespace korvande {

// Where an object is, to be drawn over the picture: lines through these places, millimetres from the origin; of a point
// a single one. Curves are made of straight lines, no farther from them than `beside` (millimetres).
using Outline = std::vector<std::vector<Position>>;

// Of a line string, all of its parts; of a text the frame of its letters.
Outline OutlineOf(const DisplayList& list, PictureRef ref, double beside);

// Of the piece of a line string that joins two places, either way; a straight line when there is none.
Outline OutlineBetween(const DisplayList& list, const SpatialIndex& index, PicturePlace from, PicturePlace to,
                       double beside);

PictureBox BoxOf(const Outline& outline) noexcept;

}  // namespace korvande
