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
// turn within 1e-8 radians, or when one of them has no length. A crossing adds 1 to the caller's count of them.
Intersection IntersectSegments(Position a1, Position a2, Position b1, Position b2,
                               std::int32_t& crossingsFound) noexcept;

}  // namespace korvande
