#pragma once

#include <cstdint>
#include <vector>

namespace korvande::testing {

// A piece of the screen: its upper left corner and its size in pixels.
struct ScreenPlace {
    int left;
    int top;
    int width;
    int height;
};

// What a person sees there, row by row: a colour for each pixel of what lies on the screen. The system itself is asked,
// for the library remembers what it drew.
std::vector<std::uint32_t> PixelsOnScreen(const ScreenPlace& place);

}  // namespace korvande::testing
