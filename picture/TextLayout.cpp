#include "picture/TextLayout.h"

namespace korvande {

namespace {

constexpr int bottomLeft = 1;

int PositionOf(const PictureText& text) noexcept { return text.position == 0 ? bottomLeft : text.position; }

}  // namespace

double PartLeftOf(const PictureText& text) noexcept {
    const int column = (PositionOf(text) - 1) % 3;
    return column / 2.0;
}

double PartBelow(const PictureText& text) noexcept {
    const int row = (PositionOf(text) - 1) / 3;
    return row / 2.0;
}

TextFrame FrameOf(const PictureText& text) noexcept {
    constexpr double capitals = 0.72;  // of the height of the type
    constexpr double letter = 0.6;
    TextFrame frame;
    frame.width = letter * textHeight * 1000 * text.length;
    frame.height = capitals * textHeight * 1000;
    frame.left = -PartLeftOf(text) * frame.width;
    frame.bottom = -PartBelow(text) * frame.height;
    return frame;
}

}  // namespace korvande
