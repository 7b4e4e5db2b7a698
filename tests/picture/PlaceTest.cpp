#include "picture/Place.h"

#include <gtest/gtest.h>

#include <cmath>

namespace korvande::testing {

namespace {

TEST(PicturePlaces, AreTheMillimetresThatAnExchangeFileWouldHave) {
    EXPECT_EQ(MillimetresOf(121098.8755), 121098876);
    EXPECT_EQ(MillimetresOf(1.0005), 1001);
    EXPECT_EQ(MillimetresOf(-1.0005), -1001);
    EXPECT_EQ(MillimetresOf(-0.0004), 0);
    EXPECT_FALSE(MillimetresOf(1e12).has_value());
    EXPECT_FALSE(MillimetresOf(std::nan("")).has_value());
    EXPECT_FALSE(MillimetresOf(-HUGE_VAL).has_value());
}

TEST(PicturePlaces, ReachAsFarAsTheirBitsAndComeBackToTheMillimetre) {
    const PictureOrigin origin{121'000'000, 487'000'000};
    const auto place = origin.From(121098.875, 486999.999);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(*place, (PicturePlace{98'875, -1}));
    EXPECT_EQ(origin.Metres(*place).east, 121098.875);
    EXPECT_EQ(origin.Metres(*place).north, 486999.999);
    EXPECT_TRUE(origin.From(121000 + 2147483.647, 487000 - 2147483.648).has_value());
    EXPECT_FALSE(origin.From(121000 + 2147483.648, 487000).has_value());
    EXPECT_FALSE(origin.From(121000, 487000 - 2147483.649).has_value());
}

TEST(PictureBoxes, AreEmptyUntilSomethingIsAdded) {
    PictureBox box;
    EXPECT_TRUE(box.IsEmpty());
    EXPECT_FALSE(box.Overlaps(BoxAbout({}, 1000)));
    box.Add({3, 4});
    EXPECT_FALSE(box.IsEmpty());
    EXPECT_TRUE(box.Overlaps(BoxAbout({}, 4)));
    EXPECT_FALSE(box.Overlaps(BoxAbout({}, 3)));
}

TEST(LineParts, AreWhatLiesInARectangle) {
    const auto part = [](Position from, Position to) {
        const auto found = PartInside(from, to, {0, 0}, {10, 20});
        return found ? std::pair(found->begin, found->end) : std::pair(-1.0, -1.0);
    };
    EXPECT_EQ(part({1, 1}, {9, 19}), std::pair(0.0, 1.0));
    EXPECT_EQ(part({-10, 5}, {30, 5}), std::pair(0.25, 0.5));
    EXPECT_EQ(part({5, 40}, {5, 0}), std::pair(0.5, 1.0));
    EXPECT_EQ(part({-10, 10}, {10, 30}), std::pair(0.5, 0.5));
    EXPECT_EQ(part({-10, 11}, {10, 31}), std::pair(-1.0, -1.0));
    EXPECT_EQ(part({11, 5}, {11, 6}), std::pair(-1.0, -1.0));
    EXPECT_EQ(part({3, 4}, {3, 4}), std::pair(0.0, 1.0));
    EXPECT_EQ(part({3, 21}, {3, 21}), std::pair(-1.0, -1.0));
}

TEST(PictureBoxes, AboutAPlaceStayWithinReach) {
    const PictureBox box = BoxAbout({2'147'483'000, 0}, 1e12);
    EXPECT_EQ(box.maxEast, 2'147'483'647);
    EXPECT_EQ(box.minNorth, -2'147'483'647 - 1);
}

TEST(PictureBoxes, HoldAnArcToItsFarthestPlaces) {
    PictureBox box;
    AddArc(box, ArcAbout({0, 10'000}, {0, 0}, {-10'000, 0}, false));
    EXPECT_EQ(box, (PictureBox{-10'000, -10'000, 10'000, 10'000}));
    PictureBox quarter;
    AddArc(quarter, ArcAbout({0, 10'000}, {0, 0}, {-10'000, 0}, true));
    EXPECT_EQ(quarter, (PictureBox{-10'000, 0, 0, 10'000}));
    PictureBox little;
    AddArc(little, ArcAbout({6000, 8000}, {0, 0}, {-6000, 8000}, true));
    EXPECT_EQ(little, (PictureBox{-6000, 8000, 6000, 10'000}));
}

}  // namespace

}  // namespace korvande::testing
