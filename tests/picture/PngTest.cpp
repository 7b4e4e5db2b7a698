#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "picture/PixelView.h"
#include "picture/PngPicture.h"

namespace korvande::testing {

namespace {

PictureFrame Frame(std::int32_t width, std::int32_t height, int pixels) {
    PictureFrame frame;
    frame.box.Add({0, 0});
    frame.box.Add({width, height});
    frame.pixels = pixels;
    return frame;
}

std::uint32_t NumberAt(const std::string& bytes, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number = number << 8 | static_cast<unsigned char>(bytes.at(place + i));
    return number;
}

TEST(PngPictures, HaveTheWidthAskedForAndTheHeightOfTheirFrame) {
    const std::string bytes = PngBytes(Frame(20'000, 5000, 320), [](Canvas& canvas) { canvas.Dot({100, 100}, 50); });
    EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(NumberAt(bytes, 16), 320U);
    EXPECT_EQ(NumberAt(bytes, 20), 80U);
}

TEST(PngPictures, AreNeverWithoutHeight) { EXPECT_EQ(HeightInPixels(Frame(1'000'000, 1, 100)), 1); }

TEST(PngPictures, ThatWouldBeTooHighAreRefused) {
    EXPECT_EQ(HeightInPixels(Frame(1, 1'000'000, 16)), 16'000'000);
    EXPECT_THROW(PngBytes(Frame(1, 1'000'000, 16), [](Canvas&) {}), RuntimeError);
}

}  // namespace

}  // namespace korvande::testing
