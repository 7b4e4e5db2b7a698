#include "core/modIntersections.h"

#include <cmath>

#include "core/modAzimuth.h"
#include "core/modConstants.h"

namespace korvande {

namespace {

constexpr double parallelTolerance = 1e-8;   // radians
constexpr double onSegmentTolerance = 1e-6;  // metres

bool AreParallel(double bearing1, double bearing2) {
    const double turn = AngleFromTo(bearing1, bearing2);
    return turn < parallelTolerance || std::fabs(turn - pi) < parallelTolerance ||
           fullCircle - turn < parallelTolerance;
}

bool LiesOnSegment(Position point, Position end1, Position end2) {
    const double viaPoint = Distance(point.east - end1.east, point.north - end1.north) +
                            Distance(point.east - end2.east, point.north - end2.north);
    return viaPoint - Distance(end2.east - end1.east, end2.north - end1.north) < onSegmentTolerance;
}

}  // namespace

Intersection IntersectSegments(Position a1, Position a2, Position b1, Position b2,
                               std::int32_t& crossingsFound) noexcept {
    const Position a{a2.east - a1.east, a2.north - a1.north};
    const Position b{b2.east - b1.east, b2.north - b1.north};
    if (Distance(a.east, a.north) == 0 || Distance(b.east, b.north) == 0) return {};
    if (AreParallel(Azimuth(a.east, a.north), Azimuth(b.east, b.north))) return {};

    const double along =
        ((b1.east - a1.east) * b.north - (b1.north - a1.north) * b.east) / (a.east * b.north - a.north * b.east);
    Intersection result;
    result.found = true;
    result.crossing = {a1.east + along * a.east, a1.north + along * a.north};
    result.onBothSegments = LiesOnSegment(result.crossing, a1, a2) && LiesOnSegment(result.crossing, b1, b2);
    ++crossingsFound;
    return result;
}

}  // namespace korvande
