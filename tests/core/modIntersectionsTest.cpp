#include "core/modIntersections.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/modConstants.h"

namespace korvande::testing {

namespace {

// A crossing that nobody counts.
Intersection Cross(Position a1, Position a2, Position b1, Position b2) {
    std::int32_t crossings = 0;
    return IntersectSegments(a1, a2, b1, b2, crossings);
}

TEST(Intersections, TwoSegmentsThatCrossDoSoOnBoth) {
    const Intersection result = Cross({0, 0}, {10, 10}, {0, 10}, {10, 0});
    EXPECT_TRUE(result.found);
    EXPECT_TRUE(result.onBothSegments);
    EXPECT_NEAR(result.crossing.east, 5, 1e-12);
    EXPECT_NEAR(result.crossing.north, 5, 1e-12);
}

TEST(Intersections, ACrossingBeyondASegmentIsFoundButNotOnBoth) {
    const Intersection beyondFirst = Cross({0, 0}, {1, 1}, {0, 10}, {10, 0});
    EXPECT_TRUE(beyondFirst.found);
    EXPECT_FALSE(beyondFirst.onBothSegments);
    EXPECT_NEAR(beyondFirst.crossing.east, 5, 1e-12);
    const Intersection beyondSecond = Cross({0, 0}, {10, 10}, {0, 10}, {1, 9});
    EXPECT_TRUE(beyondSecond.found);
    EXPECT_FALSE(beyondSecond.onBothSegments);
    EXPECT_NEAR(beyondSecond.crossing.north, 5, 1e-12);
}

TEST(Intersections, AnEndPointOnTheOtherSegmentLiesOnBoth) {
    const Intersection result = Cross({0, 0}, {10, 0}, {4, 0}, {4, 7});
    EXPECT_TRUE(result.found);
    EXPECT_TRUE(result.onBothSegments);
    EXPECT_NEAR(result.crossing.east, 4, 1e-12);
    EXPECT_NEAR(result.crossing.north, 0, 1e-12);
}

TEST(Intersections, VerticalAndHorizontalLinesCross) {
    const Intersection result =
        Cross({100'000, 400'000}, {100'000, 400'100}, {99'000, 400'050.125}, {101'000, 400'050.125});
    EXPECT_TRUE(result.onBothSegments);
    EXPECT_NEAR(result.crossing.east, 100'000, 1e-9);
    EXPECT_NEAR(result.crossing.north, 400'050.125, 1e-9);
}

TEST(Intersections, ParallelLinesHaveNoCrossing) {
    EXPECT_FALSE(Cross({0, 0}, {10, 10}, {0, 1}, {10, 11}).found);    // the same direction
    EXPECT_FALSE(Cross({0, 0}, {10, 10}, {10, 11}, {0, 1}).found);    // the opposite one
    EXPECT_FALSE(Cross({0, 0}, {10, 10}, {20, 20}, {30, 30}).found);  // on one line
    EXPECT_FALSE(Cross({0, 0}, {0, 10}, {5, 10}, {5, 0}).found);
}

TEST(Intersections, ParallelIsWithinATolerance) {
    const auto crossingAt = [](double angle) {
        return Cross({0, 0}, {0, 1}, {1, 0}, {1 + std::sin(angle), std::cos(angle)}).found;
    };
    EXPECT_FALSE(crossingAt(5e-9));
    EXPECT_FALSE(crossingAt(-5e-9));  // nearly a whole turn
    EXPECT_FALSE(crossingAt(pi + 5e-9));
    EXPECT_FALSE(crossingAt(pi - 5e-9));
    EXPECT_TRUE(crossingAt(2e-8));
    EXPECT_TRUE(crossingAt(-2e-8));
    EXPECT_TRUE(crossingAt(pi + 2e-8));
    EXPECT_TRUE(crossingAt(pi - 2e-8));
}

TEST(Intersections, ALineWithoutLengthHasNoCrossing) {
    EXPECT_FALSE(Cross({1, 1}, {1, 1}, {0, 0}, {5, 0}).found);
    EXPECT_FALSE(Cross({0, 0}, {5, 0}, {1, 1}, {1, 1}).found);
}

TEST(Intersections, EveryCrossingFoundAddsOneToTheCallersCount) {
    std::int32_t crossings = 5;
    IntersectSegments({0, 0}, {10, 10}, {0, 10}, {10, 0}, crossings);
    EXPECT_EQ(crossings, 6);
    IntersectSegments({0, 0}, {1, 1}, {0, 10}, {10, 0}, crossings);  // off the segments, but a crossing
    EXPECT_EQ(crossings, 7);
    IntersectSegments({0, 0}, {10, 10}, {0, 1}, {10, 11}, crossings);  // none
    EXPECT_EQ(crossings, 7);
}

}  // namespace

}  // namespace korvande::testing
