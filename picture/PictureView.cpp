#include "picture/PictureView.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvande {

namespace {

// A millimetre on two pixels, and the Netherlands on a hundred.
constexpr double closest = 2;
constexpr double farthest = 2e-7;

PicturePlace Held(Position place) noexcept { return PlaceAt(place); }

}  // namespace

PictureView InPlacesFrom(const PictureOrigin& origin, const PictureOrigin& itsOrigin, PictureView view) noexcept {
    view.centre.east += static_cast<double>(itsOrigin.east - origin.east);
    view.centre.north += static_cast<double>(itsOrigin.north - origin.north);
    return view;
}

PixelView PixelsOf(const PictureView& view) noexcept {
    const Position corner = view.At(0, 0);
    return {corner.east, corner.north, view.scale};
}

PictureFrame FrameOf(const PictureView& view) noexcept {
    PictureFrame frame;
    frame.pixels = view.width;
    const Position upper = view.At(0, 0);
    const Position lower = view.At(view.width, view.height);
    frame.box.Add(Held({upper.east - 1, upper.north + 1}));
    frame.box.Add(Held({lower.east + 1, lower.north - 1}));
    return frame;
}

PictureView Fitting(const PictureView& view, const PictureBox& box, double least) noexcept {
    constexpr double room = 1.04;
    PictureView fitting = view;
    if (box.IsEmpty()) {
        fitting.centre = {};
        fitting.scale = std::clamp(view.width / least, farthest, closest);
        return fitting;
    }
    const double wide = std::max((static_cast<double>(box.maxEast) - box.minEast) * room, least);
    const double high = std::max((static_cast<double>(box.maxNorth) - box.minNorth) * room, least);
    fitting.centre = {(static_cast<double>(box.minEast) + box.maxEast) / 2,
                      (static_cast<double>(box.minNorth) + box.maxNorth) / 2};
    fitting.scale = std::clamp(std::min(view.width / wide, view.height / high), farthest, closest);
    return fitting;
}

PictureView Zoomed(const PictureView& view, double factor, double x, double y) noexcept {
    PictureView zoomed = view;
    zoomed.scale = std::clamp(view.scale * factor, farthest, closest);
    const Position kept = view.At(x, y);
    const Position now = zoomed.At(x, y);
    zoomed.centre.east += kept.east - now.east;
    zoomed.centre.north += kept.north - now.north;
    return zoomed;
}

PictureView Moved(const PictureView& view, double x, double y) noexcept {
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    PictureView moved = view;
    moved.centre.east = std::clamp(view.centre.east - x / view.scale, -most, most);
    moved.centre.north = std::clamp(view.centre.north + y / view.scale, -most, most);
    return moved;
}

PictureView Resized(const PictureView& view, int width, int height) noexcept {
    PictureView resized = view;
    resized.width = std::max(width, 1);
    resized.height = std::max(height, 1);
    return resized;
}

ShownAs ShownIn(const PictureView& picture, const PictureView& view) noexcept {
    const Position corner = picture.At(0, 0);
    return {view.X(corner.east), view.Y(corner.north), view.scale / picture.scale};
}

}  // namespace korvande
