#pragma once

namespace korvande {

// Positions in twips: 15 to a device-independent pixel.
inline constexpr int twipsPerPixel = 15;
inline constexpr int outOfSight = -9999;

enum Tab { tabGeneral, tabSettings, tabPoints, tabLines, tabTexts, tabInformation };

// Where the start button and the mode list stand on a tab; there is one of each, and they move along.
struct StartPlacement {
    int buttonLeft;
    int buttonTop;
    int listLeft;
    int listTop;
};
StartPlacement StartPlacementOn(int tab, bool startedInteractively) noexcept;

}  // namespace korvande
