#pragma once

#include "picture/DisplayList.h"

namespace korvande {

// Where the letters of a text are about its anchor, before they are turned to its direction: millimetres to the right
// of it and above it.
struct TextFrame {
    double left = 0;
    double bottom = 0;  // also of the baseline
    double width = 0;   // estimated: letters differ
    double height = 0;  // of its capitals
};

// The position names the part of the text that lies at the anchor, in rows from the bottom left: position 1 has its
// bottom left corner there, 5 its middle, 9 its top right corner. Any other position is as 1.
TextFrame FrameOf(const PictureText& text) noexcept;

// The part of the width (0, 0.5 or 1) that lies to the left of the anchor, and of the height below it.
double PartLeftOf(const PictureText& text) noexcept;
double PartBelow(const PictureText& text) noexcept;

}  // namespace korvande
