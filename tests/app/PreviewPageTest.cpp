#include "app/PreviewPage.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

PictureView Window() {
    PictureView view;
    view.width = 1000;
    view.height = 500;
    view.centre = {70000, 30000};
    view.scale = 0.01;
    return view;
}

TEST(PreviewPage, AScaleIsThatOfThePaperAndThePlaceThatOfTheWindow) {
    // A decimetre of paper, 1000 dots.
    const double dotsPerInch = 254;
    for (const auto& [scale, metres] : {std::pair{PrintScale::OneTo500, 50}, {PrintScale::OneTo1000, 100}}) {
        const PictureView page = ViewOnPage(Window(), 1000, 2000, dotsPerInch, scale);
        EXPECT_NEAR(page.At(1000, 0).east - page.At(0, 0).east, metres * 1000.0, 1e-6);
        EXPECT_EQ(page.height, 2000);
        EXPECT_NEAR(page.X(70000), 500, 1e-9);
        EXPECT_NEAR(page.Y(30000), 1000, 1e-9);
        EXPECT_EQ(ToUtf8(ScaleText(page, dotsPerInch)), ToUtf8(NameOf(scale)));
    }
}

TEST(PreviewPage, WhatTheWindowShowsFitsOnThePageEitherWay) {
    for (const auto& [width, height] : {std::pair{2000, 3000}, {3000, 500}}) {
        const PictureView page = ViewOnPage(Window(), width, height, 300, PrintScale::Fit);
        const Position corner = Window().At(0, 0);
        const Position other = Window().At(1000, 500);
        EXPECT_GE(page.X(corner.east), -1e-6);
        EXPECT_GE(page.Y(corner.north), -1e-6);
        EXPECT_LE(page.X(other.east), width + 1e-6);
        EXPECT_LE(page.Y(other.north), height + 1e-6);
        // And fills it one way.
        const double filled = std::max((page.X(other.east) - page.X(corner.east)) / width,
                                       (page.Y(other.north) - page.Y(corner.north)) / height);
        EXPECT_NEAR(filled, 1, 1e-9);
    }
}

TEST(PreviewPage, ThePartThatIsNoScaleIsCalledFitting) { EXPECT_EQ(ToUtf8(NameOf(PrintScale::Fit)), "passend"); }

}  // namespace

}  // namespace korvande::testing
