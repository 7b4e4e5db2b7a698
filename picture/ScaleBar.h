#pragma once

#include "core/Text.h"

namespace korvande {

// A bar that shows how long a length is: 1, 2 or 5, with noughts.
struct ScaleBar {
    double pixels = 0;
    Text text;  // "50 m", "2 km" or "0,5 m"
};

// The longest one of at most so many pixels, at a scale in pixels a millimetre.
ScaleBar ScaleBarOf(double scale, double mostPixels);

}  // namespace korvande
