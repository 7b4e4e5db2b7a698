#pragma once

#include "core/Text.h"
#include "core/modKORVANDE.h"
#include "picture/SpatialIndex.h"

namespace korvande {

// What an object of a picture is, for a person.
struct ObjectInfo {
    PictureKind kind = PictureKind::Point;
    Text code;
    Text lkiCode;      // empty when its table has no row at all
    Text description;  // its own when it has one, else that of its code's row; of a text its characters
    Text number;       // a point's name, or its number when it has none; a line string's number; empty for a text
    bool isKnown = false;
    bool isWritten = false;
    std::int32_t inputLine = 0;  // 0: it was made
};

// The drawing is the one that the list was made of.
ObjectInfo Describe(const Drawing& drawing, const DisplayList& list, PictureRef ref);

}  // namespace korvande
