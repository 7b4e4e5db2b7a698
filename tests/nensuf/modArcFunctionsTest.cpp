#include "nensuf/modArcFunctions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/modConstants.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

ArcCentre ArcThrough(Position start, Position onArc, Position end) {
    std::int32_t crossingsFound = 0;
    return ArcCentreFrom3Points(start, onArc, end, crossingsFound);
}

void ExpectArc(Position start, Position onArc, Position end, Position centre, int direction) {
    const ArcCentre arc = ArcThrough(start, onArc, end);
    EXPECT_EQ(arc.direction, direction);
    EXPECT_NEAR(arc.centre.east, centre.east, 1e-9);
    EXPECT_NEAR(arc.centre.north, centre.north, 1e-9);
}

TEST(ArcFunctions, FromNorthThroughEastToSouthTurnsClockwise) { ExpectArc({0, 10}, {10, 0}, {0, -10}, {0, 0}, 1); }

TEST(ArcFunctions, TheSamePointsBackwardsTurnTheOtherWay) { ExpectArc({0, -10}, {10, 0}, {0, 10}, {0, 0}, -1); }

TEST(ArcFunctions, AHalfCircleThroughNorthHasADirection) {
    ExpectArc({-10, 0}, {0, 10}, {10, 0}, {0, 0}, 1);
    ExpectArc({10, 0}, {0, 10}, {-10, 0}, {0, 0}, -1);
}

TEST(ArcFunctions, PointsOnOneLineHaveNoCentre) {
    EXPECT_EQ(ArcThrough({0, 0}, {1, 1}, {5, 5}).direction, 0);
    EXPECT_EQ(ArcThrough({0, 0}, {5, 5}, {1, 1}).direction, 0);
    EXPECT_EQ(ArcThrough({3, 0}, {3, 1}, {3, 9}).direction, 0);
    EXPECT_EQ(ArcThrough({0, 4}, {-1, 4}, {-7, 4}).direction, 0);
    EXPECT_EQ(ArcThrough({121000, 487000}, {121000.001, 487000.002}, {121030, 487060}).direction, 0);
}

TEST(ArcFunctions, ThreeEqualPointsHaveNoCentre) { EXPECT_EQ(ArcThrough({7, 7}, {7, 7}, {7, 7}).direction, 0); }

TEST(ArcFunctions, APairHalfATurnApartHasACentreButNoDirection) {
    const ArcCentre arc = ArcThrough({0, -10}, {10, 0}, {-10, 0});
    EXPECT_EQ(arc.direction, 0);
    EXPECT_NEAR(arc.centre.east, 0, 1e-9);
    EXPECT_NEAR(arc.centre.north, 0, 1e-9);
}

TEST(ArcFunctions, HalfATurnIsWithinABillionthOfARadian) {
    const auto direction = [](double sweep) {
        return ArcDirection2Points({0, 10}, {10 * std::sin(sweep), 10 * std::cos(sweep)}, {0, 0});
    };
    EXPECT_EQ(direction(pi), 0);
    EXPECT_EQ(direction(pi - 5e-10), 0);
    EXPECT_EQ(direction(pi + 5e-10), 0);
    EXPECT_EQ(direction(pi - 2e-9), 1);
    EXPECT_EQ(direction(pi + 2e-9), -1);
}

TEST(ArcFunctions, TheDirectionOfTwoPointsIsThatOfTheShorterWay) {
    EXPECT_EQ(ArcDirection2Points({0, 10}, {10, 0}, {0, 0}), 1);
    EXPECT_EQ(ArcDirection2Points({10, 0}, {0, 10}, {0, 0}), -1);
    EXPECT_EQ(ArcDirection2Points({-1, 10}, {1, 10}, {0, 0}), 1);  // across north
    EXPECT_EQ(ArcDirection2Points({1, 10}, {-1, 10}, {0, 0}), -1);
    EXPECT_EQ(ArcDirection2Points({0, 10}, {0, 10}, {0, 0}), 1);  // no sweep at all
}

TEST(ArcFunctions, ThePairWithTheSmallerSweepDecides) {
    // A quarter from point 1 to point 2, then three quarters: the first pair.
    EXPECT_EQ(ArcDirection3Points({0, 10}, {10, 0}, {0, 10}, {0, 0}), 1);
    // Three quarters, then a quarter: the second pair.
    EXPECT_EQ(ArcDirection3Points({0, 10}, {-10, 0}, {0, 10}, {0, 0}), 1);
    // The first pair is half a turn, the second less.
    EXPECT_EQ(ArcDirection3Points({0, 10}, {0, -10}, {-10, 0}, {0, 0}), 1);
}

TEST(ArcFunctions, CentreAndDirectionOfRandomArcsComeBack) {
    std::mt19937_64 random(54);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (int i = 0; i < 20'000; ++i) {
        const Position centre{between(0, 300'000), between(300'000, 620'000)};
        const double radius = between(0.5, 500);
        const double begin = between(0, fullCircle);
        const int direction = random() % 2 == 0 ? 1 : -1;
        const double first = between(0.05, 3);
        const double second = between(0.05, 3);
        const auto at = [&](double sweep) {
            const double bearing = begin + direction * sweep;
            return Position{centre.east + radius * std::sin(bearing), centre.north + radius * std::cos(bearing)};
        };
        const ArcCentre arc = ArcThrough(at(0), at(first), at(first + second));
        ASSERT_EQ(arc.direction, direction) << i;
        ASSERT_NEAR(arc.centre.east, centre.east, 1e-5) << i;
        ASSERT_NEAR(arc.centre.north, centre.north, 1e-5) << i;
    }
}

TEST(ArcFunctions, EachCentreThatIsFoundIsACrossingMore) {
    std::int32_t crossings = 41;
    ArcCentreFrom3Points({0, 10}, {10, 0}, {0, -10}, crossings);
    EXPECT_EQ(crossings, 42);
    ArcCentreFrom3Points({0, -10}, {10, 0}, {-10, 0}, crossings);
    EXPECT_EQ(crossings, 43) << "one without a direction too";
    ArcCentreFrom3Points({0, 0}, {1, 1}, {5, 5}, crossings);
    EXPECT_EQ(crossings, 43) << "lines that do not cross";
}

TEST(ArcFunctions, AStepThatOverflowsIsError6) {
    EXPECT_EQ(ErrorOf([] { ArcThrough({1e308, 0}, {-1e308, 0}, {0, 1}); }), errors::overflow);
    EXPECT_EQ(ErrorOf([] { ArcThrough({1e308, 0}, {1e308, 1}, {1e308, 3}); }), errors::overflow);
    EXPECT_EQ(ErrorOf([] { ArcThrough({0, 0}, {2, 1}, {1e307, 0}); }), errors::overflow);
    EXPECT_EQ(ErrorOf([] { ArcDirection2Points({-1e308, 0}, {1, 1}, {1e308, 0}); }), errors::overflow);
}

}  // namespace

}  // namespace korvande::testing
