#pragma once

#include <cstdint>

#include "core/modLineIntraVerse.h"

// The geometry of an arc given by three points: start, a point on the arc, end. Positions in metres; heights take no
// part.
namespace korvande {

struct ArcCentre {
    Position centre{};
    std::int16_t direction = 0;  // +1 clockwise, -1 anticlockwise, 0: no centre, or no direction
};

// The centre and the turning direction of the arc through three points. The direction is 0 for points on one straight
// line, and when the pair of points that decides it lies exactly half a turn apart. Here and below a step that
// overflows is error 6. Lines that cross on the way add 1 to the caller's count of crossings.
ArcCentre ArcCentreFrom3Points(Position start, Position onArc, Position end, std::int32_t& crossingsFound);

// The turning direction about a centre, decided by the pair of neighbouring points with the smaller sweep.
std::int16_t ArcDirection3Points(Position start, Position onArc, Position end, Position centre);

// +1 when b lies less than half a turn clockwise from a about the centre, -1 when more, 0 when half a turn (within 1e-9
// radians).
std::int16_t ArcDirection2Points(Position a, Position b, Position centre);

}  // namespace korvande
