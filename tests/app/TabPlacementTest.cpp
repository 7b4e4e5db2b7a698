#include "app/TabPlacement.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

TEST(TabPlacement, OnTheFirstTabButtonAndListStandBelow) {
    for (const bool interactively : {true, false}) {
        const StartPlacement placement = StartPlacementOn(tabGeneral, interactively);
        EXPECT_EQ(placement.buttonLeft, 8040);
        EXPECT_EQ(placement.buttonTop, 5040);
        EXPECT_EQ(placement.listLeft, 4320);
        EXPECT_EQ(placement.listTop, 5280);
    }
}

TEST(TabPlacement, OnTheSecondTabTheyStandAboveWhenFilesArePickedInTheWindow) {
    const StartPlacement placement = StartPlacementOn(tabSettings, true);
    EXPECT_EQ(placement.buttonLeft, 5000);
    EXPECT_EQ(placement.buttonTop, 480);
    EXPECT_EQ(placement.listLeft, 2040);
    EXPECT_EQ(placement.listTop, 720);
}

TEST(TabPlacement, OnAnyOtherTabTheyAreOutOfSight) {
    for (const int tab : {tabPoints, tabLines, tabTexts, tabInformation}) {
        EXPECT_EQ(StartPlacementOn(tab, true).buttonLeft, -9999) << tab;
        EXPECT_EQ(StartPlacementOn(tab, true).listLeft, -9999) << tab;
    }
    EXPECT_EQ(StartPlacementOn(tabSettings, false).buttonLeft, -9999);
    EXPECT_EQ(StartPlacementOn(tabSettings, false).listLeft, -9999);
}

TEST(TabPlacement, TheListAlwaysSitsTwoHundredFortyBelowTheButtonsTop) {
    for (int tab = tabGeneral; tab <= tabInformation; ++tab) {
        for (const bool interactively : {true, false}) {
            const StartPlacement placement = StartPlacementOn(tab, interactively);
            EXPECT_EQ(placement.listTop, placement.buttonTop + 240) << tab;
        }
    }
}

}  // namespace

}  // namespace korvande::testing
