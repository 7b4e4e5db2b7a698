#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "picture/DrawPicture.h"

namespace korvande {

// The widest and highest picture that is made, pixels.
inline constexpr int mostPixels = 20'000;

// What is drawn, as the bytes of a PNG of the frame's pixels on white. A run-time error when there is no memory for it
// or it would be more than mostPixels high.
std::string PngBytes(const PictureFrame& frame, const std::function<void(Canvas&)>& draw);

}  // namespace korvande
