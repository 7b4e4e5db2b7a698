#pragma once

namespace korvande {

class Screen;
struct Drawing;

// Of points that share a number (PointID) the first keeps it and every later one loses it.
void CleanUpPointNumbers(Screen& screen, Drawing& drawing);

}  // namespace korvande
