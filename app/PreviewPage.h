#pragma once

#include "picture/PictureView.h"

namespace korvande {

enum class PrintScale { OneTo500, OneTo1000, Fit };
inline constexpr std::size_t printScales = 3;

// "1:500", "1:1000", "passend".
TextView NameOf(PrintScale scale) noexcept;

// What a page of so many dots, and so many of them to an inch, shows of what a window shows: the same place in the
// middle, at a scale of its own, or all that the window shows.
PictureView ViewOnPage(const PictureView& window, int width, int height, double dotsPerInch, PrintScale scale) noexcept;

// The scale of a view on paper, as a person reads it: "1:437".
Text ScaleText(const PictureView& page, double dotsPerInch);

}  // namespace korvande
