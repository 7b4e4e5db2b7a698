#include "core/modLineIntraVerse.h"

#include <cmath>

namespace korvande {

double Distance(double dEast, double dNorth) noexcept { return std::sqrt(dEast * dEast + dNorth * dNorth); }

Position PolarPoint(double east, double north, double bearing, double distance) noexcept {
    return {east + std::sin(bearing) * distance, north + std::cos(bearing) * distance};
}

}  // namespace korvande
