#pragma once

#include <optional>
#include <vector>

#include "picture/SpatialIndex.h"

namespace korvande {

// What of a picture lies nearest to a place, within a reach (millimetres): points before texts before line strings,
// since those lie over these. `isHidden` has an entry for each code whose objects are not to be found; it may be empty.
std::optional<PictureRef> ObjectAt(const DisplayList& list, const SpatialIndex& index, PicturePlace place, double reach,
                                   const std::vector<bool>& isHidden = {});

// How far a place is from a line string (its part) or from the letters of a text, millimetres; 0 within those.
double DistanceTo(const DisplayList& list, const PictureLine& line, PicturePlace place) noexcept;
double DistanceTo(const PictureText& text, PicturePlace place) noexcept;

}  // namespace korvande
