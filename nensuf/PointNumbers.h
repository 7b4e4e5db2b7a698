#pragma once

namespace korvande {

struct Translation;

// Of points that share a number (PointID) the first keeps it and every later one loses it, which is told.
void CleanUpPointNumbers(Translation& translation);

}  // namespace korvande
