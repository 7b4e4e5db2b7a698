#include "picture/ScaleBar.h"

#include <cmath>
#include <cstdint>

namespace korvande {

namespace {

constexpr double millimetresPerMetre = 1e3;
constexpr double millimetresPerKilometre = 1e6;

Text TextOf(double millimetres) {
    if (millimetres >= millimetresPerKilometre) {
        return Concat(static_cast<std::int64_t>(std::llround(millimetres / millimetresPerKilometre)), u" km");
    }
    if (millimetres >= millimetresPerMetre) {
        return Concat(static_cast<std::int64_t>(std::llround(millimetres / millimetresPerMetre)), u" m");
    }
    if (millimetres >= millimetresPerMetre / 10) {
        return Concat(u"0,", static_cast<std::int64_t>(std::llround(millimetres / 100)), u" m");
    }
    if (millimetres >= 10) return Concat(static_cast<std::int64_t>(std::llround(millimetres / 10)), u" cm");
    return Concat(static_cast<std::int64_t>(std::llround(millimetres)), u" mm");
}

}  // namespace

ScaleBar ScaleBarOf(double scale, double mostPixels) {
    const double most = std::max(mostPixels / scale, 1.0);
    const double unit = std::pow(10, std::floor(std::log10(most)));
    double length = unit;
    for (const double times : {2.0, 5.0}) {
        if (unit * times <= most) length = unit * times;
    }
    return {length * scale, TextOf(length)};
}

}  // namespace korvande
