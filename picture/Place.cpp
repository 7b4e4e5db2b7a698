#include "picture/Place.h"

#include <cmath>

#include "core/Picture.h"
#include "core/modAzimuth.h"
#include "core/modConstants.h"

namespace korvande {

namespace {

std::int32_t Held(double millimetres) noexcept {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    if (!(millimetres > least)) return std::numeric_limits<std::int32_t>::min();
    return millimetres < most ? static_cast<std::int32_t>(std::lround(millimetres))
                              : std::numeric_limits<std::int32_t>::max();
}

bool Fits(std::int64_t millimetres) noexcept {
    return millimetres >= std::numeric_limits<std::int32_t>::min() &&
           millimetres <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

PicturePlace PlaceAt(Position millimetres) noexcept { return {Held(millimetres.east), Held(millimetres.north)}; }

PictureBox BoxAbout(PicturePlace place, double reach) noexcept {
    const Position at = PositionOf(place);
    PictureBox box;
    box.Add(PlaceAt({at.east - reach, at.north - reach}));
    box.Add(PlaceAt({at.east + reach, at.north + reach}));
    return box;
}

std::optional<LinePart> PartInside(Position from, Position to, Position least, Position most) noexcept {
    LinePart part;
    const Position way{to.east - from.east, to.north - from.north};
    // How far it goes towards each side, and how far that side is from where it begins.
    const double towards[] = {-way.east, way.east, -way.north, way.north};
    const double distance[] = {from.east - least.east, most.east - from.east, from.north - least.north,
                               most.north - from.north};
    for (int side = 0; side < 4; ++side) {
        if (towards[side] == 0 && distance[side] < 0) return {};
        const double until = towards[side] == 0 ? 0 : distance[side] / towards[side];
        if (towards[side] < 0) part.begin = std::max(part.begin, until);
        if (towards[side] > 0) part.end = std::min(part.end, until);
    }
    return part.begin > part.end ? std::nullopt : std::optional(part);
}

void AddArc(PictureBox& box, const Arc& arc) noexcept {
    box.Add(PlaceAt(PlaceOnArc(arc, 0)));
    box.Add(PlaceAt(PlaceOnArc(arc, 1)));
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double bearing = quarter * pi / 2;
        const double turn = arc.sweep < 0 ? AngleFromTo(bearing, arc.bearing) : AngleFromTo(arc.bearing, bearing);
        if (turn < std::fabs(arc.sweep)) {
            box.Add(PlaceAt(PolarPoint(arc.centre.east, arc.centre.north, bearing, arc.radius)));
        }
    }
}

std::optional<std::int64_t> MillimetresOf(double metres) noexcept {
    constexpr double farthest = 1e12;
    std::int64_t millimetres = 0;
    if (!(std::fabs(metres) < farthest) || !ScaledDecimal(metres, 3, millimetres)) return {};
    return millimetres;
}

std::optional<PicturePlace> PictureOrigin::From(double eastMetres, double northMetres) const noexcept {
    const auto toEast = MillimetresOf(eastMetres);
    const auto toNorth = MillimetresOf(northMetres);
    if (!toEast || !toNorth || !Fits(*toEast - east) || !Fits(*toNorth - north)) return {};
    return PicturePlace{static_cast<std::int32_t>(*toEast - east), static_cast<std::int32_t>(*toNorth - north)};
}

Position PictureOrigin::Metres(PicturePlace place) const noexcept {
    return {static_cast<double>(east + place.east) / 1000, static_cast<double>(north + place.north) / 1000};
}

}  // namespace korvande
