#include "picture/PictureView.h"

#include <gtest/gtest.h>

#include "picture/ScaleBar.h"

namespace korvande::testing {

namespace {

PictureBox Box(std::int32_t minEast, std::int32_t minNorth, std::int32_t maxEast, std::int32_t maxNorth) {
    PictureBox box;
    box.Add({minEast, minNorth});
    box.Add({maxEast, maxNorth});
    return box;
}

TEST(PictureView, WhatFitsIsInTheMiddleWithSomeRoom) {
    const PictureView view = Fitting(Resized({}, 1000, 500), Box(0, 0, 20000, 20000), 1000);
    EXPECT_NEAR(view.X(10000), 500, 1e-9);
    EXPECT_NEAR(view.Y(10000), 250, 1e-9);
    EXPECT_GT(view.Y(20000), 0);
    EXPECT_LT(view.Y(20000), 20);
    EXPECT_LT(view.Y(0), 500);
    EXPECT_GT(view.Y(0), view.Y(20000));
}

TEST(PictureView, ASinglePointIsShownAsIfItWereAsWideAsIsAsked) {
    const PictureView view = Fitting(Resized({}, 1000, 500), Box(7000, 8000, 7000, 8000), 5000);
    EXPECT_NEAR(view.scale, 0.1, 1e-12);
    EXPECT_NEAR(view.X(7000), 500, 1e-9);
    const PictureView nothing = Fitting(Resized({}, 1000, 500), {}, 5000);
    EXPECT_NEAR(nothing.X(0), 500, 1e-9);
}

TEST(PictureView, ZoomingLeavesAPlaceWhereItIs) {
    const PictureView view = Fitting(Resized({}, 1200, 800), Box(-5000, 100, 300000, 200000), 1000);
    const Position kept = view.At(200, 700);
    PictureView zoomed = view;
    for (const double factor : {1.25, 7.0, 0.01, 3.0}) {
        zoomed = Zoomed(zoomed, factor, 200, 700);
        EXPECT_NEAR(zoomed.X(kept.east), 200, 1e-6) << factor;
        EXPECT_NEAR(zoomed.Y(kept.north), 700, 1e-6) << factor;
    }
    EXPECT_NEAR(zoomed.scale, view.scale * 1.25 * 7 * 0.01 * 3, 1e-9);
}

TEST(PictureView, ZoomingEndsWhereNothingMoreIsToBeSeen) {
    PictureView view = Resized({}, 1200, 800);
    for (int i = 0; i < 200; ++i) view = Zoomed(view, 2, 600, 400);
    EXPECT_EQ(view.scale, 2);
    for (int i = 0; i < 200; ++i) view = Zoomed(view, 0.5, 0, 0);
    EXPECT_GT(view.scale, 0);
    EXPECT_GT(1200 / view.scale, 2.1e9);
}

TEST(PictureView, ThePictureGoesWithThePointer) {
    const PictureView view = Fitting(Resized({}, 1200, 800), Box(0, 0, 60000, 40000), 1000);
    const PictureView moved = Moved(view, 30, -12);
    EXPECT_NEAR(moved.X(1000), view.X(1000) + 30, 1e-9);
    EXPECT_NEAR(moved.Y(1000), view.Y(1000) - 12, 1e-9);
    PictureView far = view;
    for (int i = 0; i < 100; ++i) far = Moved(far, -1e9, 1e9);
    EXPECT_LE(far.centre.east, 2147483647.0);
    EXPECT_LE(far.centre.north, 2147483647.0);
}

TEST(PictureView, TheFrameHoldsAllThatIsShown) {
    const PictureView view = Fitting(Resized({}, 640, 480), Box(0, 0, 60000, 40000), 1000);
    const PictureFrame frame = FrameOf(Moved(view, 0.3, 0.7));
    const PictureView moved = Moved(view, 0.3, 0.7);
    EXPECT_LE(frame.box.minEast, moved.At(0, 0).east);
    EXPECT_GE(frame.box.maxNorth, moved.At(0, 0).north);
    EXPECT_GE(frame.box.maxEast, moved.At(640, 480).east);
    EXPECT_LE(frame.box.minNorth, moved.At(640, 480).north);
}

TEST(PictureView, AFrameMadeForAnotherViewIsShownWhereItsPlacesAre) {
    const PictureView made = Fitting(Resized({}, 640, 480), Box(0, 0, 60000, 40000), 1000);
    const PictureView view = Zoomed(Moved(made, 17, 5), 1.25, 100, 50);
    const ShownAs shown = ShownIn(made, view);
    for (const double east : {0.0, 12345.0}) {
        EXPECT_NEAR(shown.left + made.X(east) * shown.times, view.X(east), 1e-6);
        EXPECT_NEAR(shown.top + made.Y(east) * shown.times, view.Y(east), 1e-6);
    }
    EXPECT_NEAR(shown.times, 1.25, 1e-12);
}

TEST(ScaleBar, ItIsTheLongestRoundLengthThatFits) {
    const struct {
        double scale;  // pixels a millimetre
        TextView text;
        double pixels;
    } bars[] = {{0.01, u"10 m", 100},   {0.02, u"5 m", 100},   {0.0099, u"10 m", 99}, {0.0066, u"20 m", 132},
                {1, u"0,1 m", 100},     {1.7, u"5 cm", 85},    {0.5, u"0,2 m", 100},  {20, u"5 mm", 100},
                {1e-6, u"100 km", 100}, {1e-5, u"10 km", 100}, {2e-4, u"500 m", 100}};
    for (const auto& bar : bars) {
        const ScaleBar made = ScaleBarOf(bar.scale, 150);
        EXPECT_EQ(ToUtf8(made.text), ToUtf8(bar.text)) << bar.scale;
        EXPECT_NEAR(made.pixels, bar.pixels, 1e-6) << bar.scale;
    }
}

}  // namespace

}  // namespace korvande::testing
