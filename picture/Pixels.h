#pragma once

#include <cstddef>
#include <vector>

#include "picture/Canvas.h"

namespace korvande {

// A picture of pixels in rows from the top, each 0xRRGGBB.
struct Pixels {
    Pixels() = default;
    Pixels(int itsWidth, int itsHeight, Colour paper)
        : width(itsWidth),
          height(itsHeight),
          values(static_cast<std::size_t>(itsWidth) * static_cast<std::size_t>(itsHeight), paper) {}

    Colour& At(int x, int y) noexcept {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    Colour At(int x, int y) const noexcept {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }

    int width = 0;
    int height = 0;
    std::vector<Colour> values;
};

}  // namespace korvande
