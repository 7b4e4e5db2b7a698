#pragma once

#include <optional>

#include "core/Text.h"

namespace korvande {

struct DisplayList;
struct Drawing;

// What a drawing covers: metres.
struct DrawingExtent {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
};

// Of all points of a drawing, also those that are not to be seen; nothing without any.
std::optional<DrawingExtent> ExtentOf(const Drawing& drawing);

// Where a drawing lies by the national grid (RD), which holds x 0 to 300 and y 300 to 625 km.
enum class RdPlace {
    Inside,
    Outside,
    Swapped  // outside, but inside when its x is taken for y
};

RdPlace RdPlaceOf(const DrawingExtent& extent) noexcept;

// Of all that is in a picture; without anything, inside.
RdPlace RdPlaceOf(const DisplayList& list) noexcept;

// What is wrong with a place: nothing, "buiten RD", or that and whether X and Y were swapped.
TextView RdRemark(RdPlace place) noexcept;

// The same of a picture, with what it covers.
Text RdSentence(const DisplayList& list);

}  // namespace korvande
