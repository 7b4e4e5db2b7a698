#pragma once

#include "picture/DisplayList.h"
#include "picture/PixelView.h"

namespace korvande {

// What a window of so many pixels shows of a picture: which place is in its middle, and at which scale. North is up.
struct PictureView {
    int width = 1;  // pixels
    int height = 1;
    Position centre{};  // millimetres from the picture's origin
    double scale = 1;   // pixels a millimetre

    double X(double east) const noexcept { return width / 2.0 + (east - centre.east) * scale; }
    double Y(double north) const noexcept { return height / 2.0 - (north - centre.north) * scale; }
    Position At(double x, double y) const noexcept {
        return {centre.east + (x - width / 2.0) / scale, centre.north - (y - height / 2.0) / scale};
    }

    friend bool operator==(const PictureView& one, const PictureView& other) noexcept {
        return one.width == other.width && one.height == other.height && one.scale == other.scale &&
               one.centre.east == other.centre.east && one.centre.north == other.centre.north;
    }
};

// The same view in places from another origin.
PictureView InPlacesFrom(const PictureOrigin& origin, const PictureOrigin& itsOrigin, PictureView view) noexcept;

PixelView PixelsOf(const PictureView& view) noexcept;

// What it shows, for finding that; no less than it shows.
PictureFrame FrameOf(const PictureView& view) noexcept;

// As large as it fits, with some room around it. What is smaller than `least` (millimetres) is shown as if it were that
// wide; an empty box is shown about the origin.
PictureView Fitting(const PictureView& view, const PictureBox& box, double least) noexcept;

// So much closer (more than 1) or farther away, with what is at a place of the window staying there.
PictureView Zoomed(const PictureView& view, double factor, double x, double y) noexcept;

// The picture moved by so many pixels.
PictureView Moved(const PictureView& view, double x, double y) noexcept;

// The same place in the middle, at the same scale.
PictureView Resized(const PictureView& view, int width, int height) noexcept;

// Where the picture that one view shows is in another one: the left top corner, and how many times as large.
struct ShownAs {
    double left = 0;
    double top = 0;
    double times = 1;
};
ShownAs ShownIn(const PictureView& picture, const PictureView& view) noexcept;

}  // namespace korvande
