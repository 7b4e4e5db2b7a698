#include "tests/reference/Directions.h"

#include <cmath>

#include "tests/reference/Texts.h"

namespace korvande::reference {

double Bearing(double east, double north) {
    if (east == 0 && north == 0) return 0;
    const double bearing = std::atan2(east, north);
    return bearing < 0 ? bearing + 2 * pi : bearing;
}

double Normalized(double grads) {
    while (grads < 0) grads += 400;
    while (grads >= 400) grads -= 400;
    return grads;
}

double DirectionOfBearing(double bearing) { return Normalized(100 - bearing * 200 / pi); }

double BearingOfDirection(double grads) { return Normalized(100 - grads) * pi / 200; }

double Distance(double east, double north) { return Finite(std::sqrt(east * east + north * north)); }

}  // namespace korvande::reference
