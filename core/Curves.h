#pragma once

#include <cstdint>
#include <optional>

#include "core/modLineIntraVerse.h"

// Arcs about a centre, and smooth curves through points, as they are drawn. Metres and radians.
namespace korvande {

struct Arc {
    Position centre{};
    double radius = 0;
    double bearing = 0;  // from the centre to the start, clockwise from north
    double sweep = 0;    // to the end: positive clockwise, negative anticlockwise, in (-2π, 2π)
};

// The arc from start to end in its turning direction. Its centre and radius are those nearest to the given centre by
// which it goes through both ends, which need not be equally far from the centre given.
Arc ArcAbout(Position start, Position centre, Position end, bool isAnticlockwise) noexcept;

// The place on an arc at a part (0 to 1) of its sweep.
Position PlaceOnArc(const Arc& arc, double part) noexcept;

// The two control points of the cubic Bézier curve that goes on smoothly from the place before, through two places, to
// the one behind, all of them different; without one of those it is the end of the curve. Without both, or where places
// coincide, the curve between the two is straight.
struct Controls {
    Position first{};
    Position second{};
};
Controls ControlsBetween(const std::optional<Position>& before, Position from, Position to,
                         const std::optional<Position>& behind) noexcept;

// The place on that curve at a part (0 to 1) of its way.
Position PlaceOnCurve(Position from, const Controls& controls, Position to, double part) noexcept;

}  // namespace korvande
