#include "core/modAzimuth.h"

#include <cmath>

#include "core/modConstants.h"

namespace korvande {

namespace {

double Sign(double value) { return value > 0 ? 1 : -1; }

}  // namespace

double Azimuth(double dEast, double dNorth) noexcept {
    if (dEast == 0 && dNorth == 0) return 0;
    if (dEast == 0) return pi / 2 - Sign(dNorth) * (pi / 2);
    if (dNorth == 0) return pi - Sign(dEast) * (pi / 2);
    const double offset = dNorth < 0 ? pi : dEast < 0 ? fullCircle : 0;
    return std::atan(dEast / dNorth) + offset;
}

double NormalizeGrads(double angle) noexcept {
    constexpr double circle = 400;
    // fmod is exact and gives what adding and subtracting whole circles would, also for an angle of many circles.
    double normal = std::fmod(angle, circle);
    if (normal < 0) normal += circle;
    return normal >= circle ? normal - circle : normal;
}

double MirrorGrads(double angle) noexcept { return NormalizeGrads(100 - angle); }

double AngleFromTo(double from, double to) noexcept { return to >= from ? to - from : to + fullCircle - from; }

double GradsToRadians(double grads) noexcept { return grads * pi / 200; }

}  // namespace korvande
