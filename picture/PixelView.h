#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "picture/DrawPicture.h"

namespace korvande {

// How many pixels high a frame is at its width; at least 1.
inline std::int64_t HeightInPixels(const PictureFrame& frame) noexcept {
    const double width = static_cast<double>(frame.box.maxEast) - frame.box.minEast;
    const double height = static_cast<double>(frame.box.maxNorth) - frame.box.minNorth;
    return std::max<std::int64_t>(1, std::llround(height / width * frame.pixels));
}

// Where places of a frame come to lie on its pixels.
struct PixelView {
    PixelView(double itsLeft, double itsTop, double itsScale) noexcept : left(itsLeft), top(itsTop), scale(itsScale) {}
    explicit PixelView(const PictureFrame& frame) noexcept
        : left(frame.box.minEast),
          top(frame.box.maxNorth),
          scale(frame.pixels / (static_cast<double>(frame.box.maxEast) - frame.box.minEast)) {}

    double X(double east) const noexcept { return (east - left) * scale; }
    double Y(double north) const noexcept { return (top - north) * scale; }

    double left;  // millimetres
    double top;
    double scale;  // pixels a millimetre
};

}  // namespace korvande
