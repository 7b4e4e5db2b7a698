#include "nensuf/modArcFunctions.h"

#include <cmath>

#include "core/modAzimuth.h"
#include "core/modConstants.h"
#include "core/modIntersections.h"
#include "nensuf/Overflow.h"

namespace korvande {

namespace {

constexpr double halfTurnTolerance = 1e-9;  // radians

double BearingFrom(Position from, Position to) {
    return Azimuth(WithoutOverflow(to.east - from.east), WithoutOverflow(to.north - from.north));
}

// A line square to the chord between two points, through its middle.
struct Bisector {
    Position middle;
    Position far;
};

Bisector BisectorOf(Position a, Position b) {
    constexpr double reach = 1000.0;  // metres; it only fixes a second point of the line
    const Position middle{(a.east + b.east) / 2, (a.north + b.north) / 2};
    return {middle, PolarPoint(middle.east, middle.north, BearingFrom(a, b) + pi / 2, reach)};
}

}  // namespace

ArcCentre ArcCentreFrom3Points(Position start, Position onArc, Position end, std::int32_t& crossingsFound) {
    const Bisector first = BisectorOf(start, onArc);
    const Bisector second = BisectorOf(onArc, end);
    const Intersection crossing = IntersectSegments(first.middle, first.far, second.middle, second.far, crossingsFound);
    if (!crossing.found) return {};
    // A midpoint that overflowed leaves no finite centre, from which no bearing can be taken.
    const Position centre = crossing.crossing;
    return {centre, ArcDirection3Points(start, onArc, end, centre)};
}

std::int16_t ArcDirection3Points(Position start, Position onArc, Position end, Position centre) {
    const double toStart = BearingFrom(centre, start);
    const double toArc = BearingFrom(centre, onArc);
    const double toEnd = BearingFrom(centre, end);
    const bool secondIsSmaller = AngleFromTo(toArc, toEnd) <= AngleFromTo(toStart, toArc);
    return secondIsSmaller ? ArcDirection2Points(onArc, end, centre) : ArcDirection2Points(start, onArc, centre);
}

std::int16_t ArcDirection2Points(Position a, Position b, Position centre) {
    const double toA = BearingFrom(centre, a);
    double toB = BearingFrom(centre, b);
    if (toA > toB) toB += pi + pi;
    const double rest = pi - (toB - toA);
    if (std::fabs(rest) <= halfTurnTolerance) return 0;
    return rest > 0 ? 1 : -1;
}

}  // namespace korvande
