#include "picture/RdArea.h"

#include <algorithm>

#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "picture/DisplayList.h"

namespace korvande {

namespace {

DrawingExtent ExtentOf(const DisplayList& list) noexcept {
    const Position least = list.origin.Metres({list.extent.minEast, list.extent.minNorth});
    const Position most = list.origin.Metres({list.extent.maxEast, list.extent.maxNorth});
    return {least.east, least.north, most.east, most.north};
}

bool IsInRd(double minX, double maxX, double minY, double maxY) noexcept {
    constexpr double mostX = 300'000;
    constexpr double leastY = 300'000;
    constexpr double mostY = 625'000;
    return minX >= 0 && maxX <= mostX && minY >= leastY && maxY <= mostY;
}

}  // namespace

std::optional<DrawingExtent> ExtentOf(const Drawing& drawing) {
    const auto& points = drawing.Points;
    if (points.UpperBound() == 0) return {};
    DrawingExtent extent = {points[1].East, points[1].North, points[1].East, points[1].North};
    for (std::int32_t index = 2; index <= points.UpperBound(); ++index) {
        extent.minX = std::min(extent.minX, points[index].East);
        extent.maxX = std::max(extent.maxX, points[index].East);
        extent.minY = std::min(extent.minY, points[index].North);
        extent.maxY = std::max(extent.maxY, points[index].North);
    }
    return extent;
}

RdPlace RdPlaceOf(const DrawingExtent& extent) noexcept {
    if (IsInRd(extent.minX, extent.maxX, extent.minY, extent.maxY)) return RdPlace::Inside;
    const bool fitsSwapped = IsInRd(extent.minY, extent.maxY, extent.minX, extent.maxX);
    return fitsSwapped ? RdPlace::Swapped : RdPlace::Outside;
}

RdPlace RdPlaceOf(const DisplayList& list) noexcept {
    return list.extent.IsEmpty() ? RdPlace::Inside : RdPlaceOf(ExtentOf(list));
}

TextView RdRemark(RdPlace place) noexcept {
    if (place == RdPlace::Inside) return {};
    return place == RdPlace::Swapped ? u"buiten RD; X en Y verwisseld?" : u"buiten RD";
}

Text RdSentence(const DisplayList& list) {
    const RdPlace place = RdPlaceOf(list);
    if (place == RdPlace::Inside) return {};
    const DrawingExtent extent = ExtentOf(list);
    const auto metres = [](double value) { return FormatPicture(value, "0.000"); };
    return Concat(u"buiten RD (X ", metres(extent.minX), u" tot ", metres(extent.maxX), u", Y ", metres(extent.minY),
                  u" tot ", metres(extent.maxY), u")", place == RdPlace::Swapped ? u"; X en Y verwisseld?" : u"");
}

}  // namespace korvande
