#include "core/modLineIntraVerse.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/modConstants.h"

namespace korvande::testing {

namespace {

TEST(Distance, ItIsTheLengthOfTheVector) {
    EXPECT_EQ(Distance(3, 4), 5.0);
    EXPECT_EQ(Distance(-3, -4), 5.0);
    EXPECT_EQ(Distance(0, 0), 0.0);
    EXPECT_EQ(Distance(1, 1), std::sqrt(2.0));
}

TEST(PolarPoint, ItLiesAtTheBearingClockwiseFromNorth) {
    const Position north = PolarPoint(100, 200, 0, 10);
    EXPECT_EQ(north.east, 100.0);
    EXPECT_EQ(north.north, 210.0);
    const Position east = PolarPoint(100, 200, pi / 2, 10);
    EXPECT_EQ(east.east, 100 + std::sin(3.14159265358979 / 2) * 10);
    EXPECT_EQ(east.north, 200 + std::cos(3.14159265358979 / 2) * 10);
    EXPECT_NEAR(east.east, 110, 1e-9);
    EXPECT_NEAR(east.north, 200, 1e-9);
    const Position southWest = PolarPoint(0, 0, 5 * pi / 4, std::sqrt(2.0));
    EXPECT_NEAR(southWest.east, -1, 1e-13);
    EXPECT_NEAR(southWest.north, -1, 1e-13);
}

TEST(PolarPoint, WithoutDistanceItIsThePlaceItself) {
    const Position same = PolarPoint(1.5, -2.5, 1.234, 0);
    EXPECT_EQ(same.east, 1.5);
    EXPECT_EQ(same.north, -2.5);
}

}  // namespace

}  // namespace korvande::testing
