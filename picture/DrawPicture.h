#pragma once

#include <vector>

#include "picture/Canvas.h"

namespace korvande {

struct Drawing;
class SpatialIndex;

// What of a picture is drawn, and on how many pixels.
struct PictureFrame {
    PictureBox box;
    int pixels = 1500;  // of its width; lines are at least one wide
};

// The frame that holds everything with some room around it; empty when there is nothing.
PictureFrame WholeFrame(const DisplayList& list) noexcept;

// How the objects of a code are drawn: unknown ones red, what is not written grey, a line dashed; the others in a
// colour of their own that can be read on white paper.
CodeStyle StyleOf(const PictureCode& code, const PictureFrame& frame);

// What of a picture is drawn, and how that is found.
struct PictureChoice {
    const SpatialIndex* index = nullptr;          // of the list; without one, everything is looked at
    const std::vector<bool>* isHidden = nullptr;  // an entry for each code whose objects are not drawn; null: none
};

// What was drawn; a line string that is seen in two pieces counts twice.
struct PictureCounts {
    std::int64_t points = 0;
    std::int64_t lineStrings = 0;
    std::int64_t texts = 0;
    std::int64_t unknown = 0;  // of these, with a code that is unknown
};

// Draws what of a picture a frame shows, code by code: line strings, then points, then texts; of each those that are
// not written first and the unknown ones last, so that they lie over the others. The drawing is the one that the list
// was made of. A long line string is drawn in the parts that the frame shows.
PictureCounts DrawPicture(const Drawing& drawing, const DisplayList& list, const PictureFrame& frame, Canvas& canvas,
                          const PictureChoice& choice = {});

}  // namespace korvande
