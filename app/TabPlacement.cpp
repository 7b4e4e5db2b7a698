#include "app/TabPlacement.h"

namespace korvande {

namespace {

StartPlacement Placed(int buttonLeft, int buttonTop, int listLeft) noexcept {
    constexpr int listBelowButton = 240;
    return {buttonLeft, buttonTop, listLeft, buttonTop + listBelowButton};
}

}  // namespace

StartPlacement StartPlacementOn(int tab, bool startedInteractively) noexcept {
    constexpr int generalTop = 5040;
    if (tab == tabGeneral) return Placed(8040, generalTop, 4320);
    if (tab == tabSettings && startedInteractively) return Placed(5000, 480, 2040);
    return Placed(outOfSight, generalTop, outOfSight);
}

}  // namespace korvande
