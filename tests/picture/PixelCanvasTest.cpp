#include "picture/PixelCanvas.h"

#include <algorithm>
#include <cmath>

#include "picture/PictureView.h"
#include "picture/SpatialIndex.h"
#include "tests/picture/PictureTest.h"
#include "translation/Translation.h"

namespace korvande::testing {

namespace {

constexpr Colour black = 0;
constexpr Colour white = 0xFFFFFF;

// How much of the pixels is covered with black, in pixels.
double Ink(const Pixels& pixels) {
    double ink = 0;
    for (const Colour pixel : pixels.values) ink += (255 - (pixel & 0xFF)) / 255.0;
    return ink;
}

class PixelCanvasTest : public PictureTest {
 protected:
    // Pixels of a drawing, ten to a metre.
    Pixels Drawn(const Rows& rows, const PixelLook& look = {}, const std::vector<bool>& isHidden = {}) {
        const DisplayList list = Picture(rows);
        const SpatialIndex index(list);
        PictureView view = Fitting(Resized({}, 200, 150), list.extent, 1000);
        view.scale = 0.01;
        Pixels pixels(view.width, view.height, PaperOf(look));
        PixelCanvas canvas(pixels, PixelsOf(view), look, isStopped);
        DrawPicture(last->drawing, list, FrameOf(view), canvas, {&index, &isHidden});
        return pixels;
    }
    static bool Has(const Pixels& pixels, Colour colour) {
        return std::find(pixels.values.begin(), pixels.values.end(), colour) != pixels.values.end();
    }

    std::atomic<bool> isStopped = false;
};

TEST(LinePixels, AStraightLineCoversItsLengthTimesItsWidthInAnyDirection) {
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const double turn = degrees * 3.14159265 / 180;
        Pixels pixels(100, 100, white);
        const PixelPlace to{50.3 + 40 * std::cos(turn), 49.8 + 40 * std::sin(turn)};
        DrawLine(pixels, {50.3, 49.8}, to, 1.5, black);
        EXPECT_NEAR(Ink(pixels), 60, 1) << degrees;
    }
}

TEST(LinePixels, AHorizontalLineOnAWholePixelIsAsWideAsIsAsked) {
    Pixels pixels(20, 10, white);
    DrawLine(pixels, {2, 5}, {18, 5}, 2, black);
    for (int x = 2; x < 18; ++x) {
        EXPECT_EQ(pixels.At(x, 4), black) << x;
        EXPECT_EQ(pixels.At(x, 5), black) << x;
        EXPECT_EQ(pixels.At(x, 3), white) << x;
        EXPECT_EQ(pixels.At(x, 6), white) << x;
    }
    EXPECT_EQ(pixels.At(1, 4), white);
    EXPECT_EQ(pixels.At(18, 4), white);
}

TEST(LinePixels, WhatLiesOutsideIsLeftOut) {
    Pixels pixels(10, 10, white);
    DrawLine(pixels, {-50, -40}, {-10, 60}, 2, black);
    DrawLine(pixels, {-5, 12}, {20, 12}, 2, black);
    DrawDot(pixels, {1e9, -1e9}, 3, black);
    EXPECT_EQ(Ink(pixels), 0);
    DrawLine(pixels, {-1000, 5}, {1000, 5}, 2, black);
    EXPECT_NEAR(Ink(pixels), 20, 0.01);
}

TEST(LinePixels, ADotHasTheAreaOfItsCircle) {
    for (const double radius : {1.0, 2.5, 10.0}) {
        Pixels pixels(40, 40, white);
        DrawDot(pixels, {20.3, 19.6}, radius, black);
        EXPECT_NEAR(Ink(pixels), 3.14159 * radius * radius, 0.1 * radius * radius + 0.2) << radius;
    }
}

TEST(LinePixels, ALineIsCutToThePictureWithItsRoom) {
    const Pixels pixels(100, 50, white);
    PixelPlace from{-1e6, 25};
    PixelPlace to{1e6, 25};
    ASSERT_TRUE(CutToPixels(pixels, 2, from, to));
    EXPECT_NEAR(from.x, -2, 1e-3);
    EXPECT_NEAR(to.x, 102, 1e-3);
    EXPECT_EQ(from.y, 25);
    PixelPlace above{-10, -20};
    PixelPlace beyond{110, -20};
    EXPECT_FALSE(CutToPixels(pixels, 2, above, beyond));
    PixelPlace still{30, 30};
    PixelPlace same{30, 30};
    EXPECT_TRUE(CutToPixels(pixels, 2, still, same));
}

TEST_F(PixelCanvasTest, AWallIsDrawnWhereItIsInTheColourOfItsCode) {
    const Rows rows{"1,\"A\",0,0,\"HULP\",0,\"\"\n2,\"B\",10,0,\"HULP\",0,\"\"\n", "1,\"MUUR\",0\n",
                    "1,1,2,STRAIGHT\n"};
    const Pixels pixels = Drawn(rows);
    // 10 m wide, 100 pixels, in the middle of 200 by 150.
    const Colour wall = pixels.At(100, 75);
    EXPECT_NE(wall, white);
    EXPECT_EQ(pixels.At(55, 75), wall);
    EXPECT_EQ(pixels.At(145, 75), wall);
    EXPECT_EQ(pixels.At(45, 75), white);
    EXPECT_EQ(pixels.At(100, 70), white);
}

TEST_F(PixelCanvasTest, AnUnknownCodeIsRedAndAHiddenOneIsNotDrawn) {
    const Rows rows{"1,\"A\",0,0,\"RAAR\",0,\"\"\n2,\"B\",5,5,\"MV\",0,\"\"\n"};
    EXPECT_TRUE(Has(Drawn(rows), 0xD00000));
    EXPECT_FALSE(Has(Drawn(rows, {}, {true, false}), 0xD00000));
    EXPECT_GT(Ink(Drawn(rows, {}, {true, false})), 3);
    EXPECT_EQ(Ink(Drawn(rows, {}, {true, true})), 0);
}

TEST_F(PixelCanvasTest, AnArcStaysOnItsCircle) {
    // Half a circle of 5 m about (5, 0), over its top.
    const Rows rows{"1,\"A\",0,0,\"HULP\",0,\"\"\n2,\"M\",5,0,\"HULP\",0,\"\"\n3,\"B\",10,0,\"HULP\",0,\"\"\n",
                    "1,\"MUUR\",0\n", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT\n"};
    const Pixels pixels = Drawn(rows);
    int covered = 0;
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            if (pixels.At(x, y) == white) continue;
            ++covered;
            const DisplayList list = Picture(rows);
            const double middle = 75 + (list.extent.maxNorth + list.extent.minNorth) / 200.0;
            EXPECT_NEAR(std::hypot(x + 0.5 - 100, y + 0.5 - middle), 50, 2) << x << " " << y;
        }
    }
    EXPECT_GT(covered, 157);
}

TEST_F(PixelCanvasTest, ALineThatIsNotWrittenIsDashed) {
    const Rows known{"1,\"A\",0,0,\"HULP\",0,\"\"\n2,\"B\",10,0,\"HULP\",0,\"\"\n", "1,\"PERC\",0\n",
                     "1,1,2,STRAIGHT\n"};
    const Pixels pixels = Drawn(known, {.lineWidth = 1});
    int changes = 0;
    for (int x = 51; x < 149; ++x) changes += (pixels.At(x, 75) == white) != (pixels.At(x - 1, 75) == white) ? 1 : 0;
    // Every 12 pixels 8 are drawn.
    EXPECT_GE(changes, 14);
    EXPECT_LE(changes, 18);
}

TEST_F(PixelCanvasTest, LettersAreWrittenWhereTheyCanBeReadAndAStrokeElsewhere) {
    const Rows rows{"1,\"A\",0,0,\"HULP\",0,\"\"\n", "", "", "1,1,100,\"HHHH\"\n"};
    EXPECT_GT(Ink(Drawn(rows)), 40);
    const DisplayList list = Picture(rows);
    for (const double scale : {0.003, 0.0005}) {
        PictureView view = Fitting(Resized({}, 60, 40), list.extent, 1000);
        view.scale = scale;
        Pixels pixels(view.width, view.height, white);
        PixelCanvas canvas(pixels, PixelsOf(view), {}, isStopped);
        DrawPicture(last->drawing, list, FrameOf(view), canvas);
        EXPECT_EQ(Ink(pixels) > 1, scale > 0.001) << scale;
    }
}

TEST_F(PixelCanvasTest, OnceItIsStoppedItDrawsNothing) {
    isStopped = true;
    EXPECT_EQ(Ink(Drawn({"1,\"A\",0,0,\"RAAR\",0,\"\"\n2,\"B\",5,5,\"MV\",0,\"\"\n"})), 0);
}

TEST(PixelLook, EveryColourCanBeReadOnItsPaper) {
    const auto brightness = [](Colour colour) {
        return 0.3 * (colour >> 16 & 0xFF) + 0.6 * (colour >> 8 & 0xFF) + 0.1 * (colour & 0xFF);
    };
    for (const Colour colour : {0xD00000U, 0x8C8C8CU, 0x202020U, 0x1F4E9EU, 0x2E6B2EU, 0x7A4A00U, 0x5B2A86U, 0x404040U,
                                0x6B6B00U, 0x0B6E99U, 0x3B3B8AU}) {
        EXPECT_EQ(ShownColour(colour, {}), colour);
        for (const bool isDark : {false, true}) {
            const PixelLook look{.isDark = isDark};
            EXPECT_GT(std::fabs(brightness(ShownColour(colour, look)) - brightness(PaperOf(look))), 60) << colour;
        }
    }
    EXPECT_EQ(ShownColour(0xD00000, {.isPale = true}), ShownColour(0x202020, {.isPale = true}));
}

TEST_F(PixelCanvasTest, WithTheIndexEverythingIsDrawnThatIsDrawnWithout) {
    std::string points;
    std::string lines;
    std::string edges;
    for (int i = 0; i < 200; ++i) {
        const auto number = [](int value) { return std::to_string(value); };
        points += number(i + 1) + ",\"P\"," + number(i * 37 % 101) + "," + number(i * 53 % 97) + ",\"MV\",0,\"\"\n";
        if (i % 2 == 0) continue;
        lines += number(i) + ",\"MUUR\",0\n";
        edges += number(i) + "," + number(i) + "," + number(i + 1) + ",STRAIGHT\n";
    }
    const DisplayList list = Picture({points, lines, edges});
    const SpatialIndex index(list);
    PictureView view = Fitting(Resized({}, 300, 200), list.extent, 1000);
    for (const double factor : {1.0, 2.0, 5.0, 20.0}) {
        const PictureView closer = Zoomed(view, factor, 70, 60);
        Pixels with(300, 200, white);
        Pixels without = with;
        PixelCanvas canvas(with, PixelsOf(closer), {}, isStopped);
        DrawPicture(last->drawing, list, FrameOf(closer), canvas, {&index, nullptr});
        PixelCanvas other(without, PixelsOf(closer), {}, isStopped);
        DrawPicture(last->drawing, list, FrameOf(closer), other);
        EXPECT_EQ(with.values, without.values) << factor;
        EXPECT_GT(Ink(with), 10) << factor;
    }
}

}  // namespace

}  // namespace korvande::testing
