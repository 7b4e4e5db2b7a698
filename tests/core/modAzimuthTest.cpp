#include "core/modAzimuth.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/modConstants.h"

namespace korvande::testing {

namespace {

// The circle as results are expected to show it, to the last digit.
constexpr double piOfThePackage = 3.14159265358979;
constexpr double circleOfThePackage = 6.28318530717958;

TEST(Azimuth, TheCircleIsTheTruncatedOne) {
    EXPECT_EQ(pi, piOfThePackage);
    EXPECT_EQ(fullCircle, circleOfThePackage);
    EXPECT_NE(pi, std::acos(-1.0));
}

TEST(Azimuth, TheNullVectorHasBearingZero) { EXPECT_EQ(Azimuth(0, 0), 0.0); }

TEST(Azimuth, TheFourAxesAreQuartersOfTheCircle) {
    EXPECT_EQ(Azimuth(0, 5), 0.0);
    EXPECT_EQ(Azimuth(5, 0), piOfThePackage / 2);
    EXPECT_EQ(Azimuth(0, -5), piOfThePackage);
    EXPECT_EQ(Azimuth(-5, 0), piOfThePackage + piOfThePackage / 2);
}

TEST(Azimuth, TheQuadrantsGoClockwiseFromNorth) {
    EXPECT_EQ(Azimuth(1, 1), std::atan(1.0));
    EXPECT_EQ(Azimuth(1, -1), std::atan(-1.0) + piOfThePackage);
    EXPECT_EQ(Azimuth(-1, -1), std::atan(1.0) + piOfThePackage);
    EXPECT_EQ(Azimuth(-1, 1), std::atan(-1.0) + circleOfThePackage);
    EXPECT_NEAR(Azimuth(1, 1), piOfThePackage / 4, 1e-14);
    EXPECT_NEAR(Azimuth(-1, -1), 5 * piOfThePackage / 4, 1e-14);
    EXPECT_NEAR(Azimuth(-1, 1), 7 * piOfThePackage / 4, 1e-14);
}

TEST(Azimuth, ABearingLeadsBackToItsVector) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> metres(-1000, 1000);
    for (int i = 0; i < 100'000; ++i) {
        const double east = metres(random);
        const double north = metres(random);
        const double bearing = Azimuth(east, north);
        const double length = std::hypot(east, north);
        ASSERT_GE(bearing, 0.0);
        ASSERT_LT(bearing, circleOfThePackage);
        ASSERT_NEAR(std::sin(bearing) * length, east, 1e-9);
        ASSERT_NEAR(std::cos(bearing) * length, north, 1e-9);
    }
}

TEST(NormalizeGrads, AnAngleComesWithinTheCircle) {
    EXPECT_EQ(NormalizeGrads(-50), 350.0);
    EXPECT_EQ(NormalizeGrads(400), 0.0);
    EXPECT_EQ(NormalizeGrads(399.9999), 399.9999);
    EXPECT_EQ(NormalizeGrads(0), 0.0);
    EXPECT_EQ(NormalizeGrads(-400), 0.0);
    EXPECT_EQ(NormalizeGrads(850), 50.0);
    EXPECT_EQ(NormalizeGrads(-850), 350.0);
    EXPECT_EQ(NormalizeGrads(-1e-20), 0.0);  // 400 when added, which is a whole circle
}

TEST(NormalizeGrads, ItIsWhatAddingAndSubtractingCirclesGives) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> grads(-5000, 5000);
    for (int i = 0; i < 100'000; ++i) {
        const double angle = grads(random);
        double expected = angle;
        while (expected < 0) expected += 400;
        while (expected >= 400) expected -= 400;
        ASSERT_EQ(NormalizeGrads(angle), expected) << angle;
    }
}

TEST(NormalizeGrads, AnAngleOfCountlessCirclesEnds) {
    EXPECT_GE(NormalizeGrads(1e300), 0.0);
    EXPECT_LT(NormalizeGrads(-1e300), 400.0);
    EXPECT_TRUE(std::isnan(NormalizeGrads(HUGE_VAL)));
}

TEST(MirrorGrads, ADirectionFromNorthBecomesOneFromEastAndBack) {
    EXPECT_EQ(MirrorGrads(0), 100.0);
    EXPECT_EQ(MirrorGrads(150), 350.0);
    EXPECT_EQ(MirrorGrads(100), 0.0);
    for (int grads = 0; grads < 400; ++grads) EXPECT_EQ(MirrorGrads(MirrorGrads(grads)), grads);
}

TEST(AngleFromTo, TheSweepIsClockwise) {
    EXPECT_EQ(AngleFromTo(1, 3), 2.0);
    EXPECT_EQ(AngleFromTo(3, 1), 1 + circleOfThePackage - 3);
    EXPECT_EQ(AngleFromTo(2, 2), 0.0);
}

TEST(GradsToRadians, TheCircleIsTheTruncatedOne) {
    EXPECT_EQ(GradsToRadians(200), piOfThePackage);
    EXPECT_EQ(GradsToRadians(50), 50 * piOfThePackage / 200);
    EXPECT_EQ(GradsToRadians(0), 0.0);
}

}  // namespace

}  // namespace korvande::testing
