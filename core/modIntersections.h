#pragma once

#include <cstdint>

#include "core/modLineIntraVerse.h"

namespace korvande {

struct Intersection {
    bool found = false;           // false: the lines are parallel, and there is no crossing
    Position crossing{};          // of the two unbounded lines
    bool onBothSegments = false;  // the crossing lies between the end points of both
};

// Crosses the lines through a1-a2 and b1-b2 (metres). They count as parallel when their bearings differ by 0 or half a
// turn within 1e-8 radians, or when one of them has no length.
Intersection IntersectSegments(Position a1, Position a2, Position b1, Position b2) noexcept;

// How many crossings have been found since the program started.
std::int32_t IntersectionCount() noexcept;

}  // namespace korvande
