#include "core/Curves.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/modConstants.h"

namespace korvande::testing {

namespace {

void ExpectAt(Position place, double east, double north, double tolerance = 1e-9) {
    EXPECT_NEAR(place.east, east, tolerance);
    EXPECT_NEAR(place.north, north, tolerance);
}

TEST(Arcs, AClockwiseArcGoesBySmallerAndByLargerSweepsToItsEnd) {
    const Arc quarter = ArcAbout({0, 10}, {0, 0}, {10, 0}, false);
    EXPECT_NEAR(quarter.radius, 10, 1e-12);
    EXPECT_NEAR(quarter.sweep, pi / 2, 1e-12);
    ExpectAt(PlaceOnArc(quarter, 0.5), 10 * std::sqrt(0.5), 10 * std::sqrt(0.5));
    const Arc threeQuarters = ArcAbout({0, 10}, {0, 0}, {-10, 0}, false);
    EXPECT_NEAR(threeQuarters.sweep, 1.5 * pi, 1e-12);
    ExpectAt(PlaceOnArc(threeQuarters, 1.0 / 3), 10, 0);
    ExpectAt(PlaceOnArc(threeQuarters, 1), -10, 0);
}

TEST(Arcs, AnAnticlockwiseArcGoesTheOtherWayAbout) {
    const Arc arc = ArcAbout({0, 10}, {0, 0}, {10, 0}, true);
    EXPECT_NEAR(arc.sweep, -1.5 * pi, 1e-12);
    ExpectAt(PlaceOnArc(arc, 0), 0, 10);
    ExpectAt(PlaceOnArc(arc, 1.0 / 3), -10, 0);
    ExpectAt(PlaceOnArc(arc, 1), 10, 0);
}

TEST(Arcs, AnArcGoesThroughBothEndsWhenItsCentreIsNotInTheMiddle) {
    const Arc arc = ArcAbout({100'000, 400'010}, {100'000.004, 400'000.004}, {100'010, 400'000}, false);
    ExpectAt(PlaceOnArc(arc, 0), 100'000, 400'010, 1e-8);
    ExpectAt(PlaceOnArc(arc, 1), 100'010, 400'000, 1e-8);
    ExpectAt(arc.centre, 100'000.004, 400'000.004, 1e-8);  // square to the chord it is kept
    const Arc other = ArcAbout({0, 10}, {0.02, -0.02}, {10, 0}, false);
    ExpectAt(PlaceOnArc(other, 1), 10, 0);
    ExpectAt(other.centre, 0, 0);
}

TEST(Arcs, AHalfCircleKeepsItsSide) {
    const Arc right = ArcAbout({0, 0}, {0, 5}, {0, 10}, true);
    ExpectAt(PlaceOnArc(right, 0.5), 5, 5);
    const Arc left = ArcAbout({0, 0}, {0, 5}, {0, 10}, false);
    ExpectAt(PlaceOnArc(left, 0.5), -5, 5);
}

TEST(Curves, PlacesOnAStraightLineGiveAStraightCurve) {
    const Controls controls = ControlsBetween(Position{0, 0}, {3, 6}, {6, 12}, Position{7, 14});
    ExpectAt(controls.first, 4, 8);
    ExpectAt(controls.second, 5, 10);
}

TEST(Curves, ACurveBeginsAndEndsAtItsPlaces) {
    const Controls controls{{3, 9}, {8, 1}};
    ExpectAt(PlaceOnCurve({1, 2}, controls, {9, 4}, 0), 1, 2);
    ExpectAt(PlaceOnCurve({1, 2}, controls, {9, 4}, 1), 9, 4);
    ExpectAt(PlaceOnCurve({1, 2}, controls, {9, 4}, 0.5), (1 + 9 + 24 + 9) / 8.0, (2 + 27 + 3 + 4) / 8.0);
}

TEST(Curves, TwoPlacesAloneAreJoinedByAStraightLine) {
    const Controls controls = ControlsBetween({}, {3, 6}, {6, 12}, {});
    ExpectAt(controls.first, 4, 8);
    ExpectAt(controls.second, 5, 10);
}

TEST(Curves, ACurveGoesOnInTheDirectionInWhichItCame) {
    const Position a{0, 0};
    const Position b{10, 2};
    const Position c{15, 9};
    const Position d{15, 30};
    const Controls before = ControlsBetween(a, b, c, d);
    const Controls behind = ControlsBetween(b, c, d, {});
    const Position in{c.east - before.second.east, c.north - before.second.north};
    const Position out{behind.first.east - c.east, behind.first.north - c.north};
    EXPECT_NEAR(in.east * out.north - in.north * out.east, 0, 1e-9);
    EXPECT_GT(in.east * out.east + in.north * out.north, 0);
}

TEST(Curves, PlacesOnACircleGiveNearlyThatCircle) {
    const auto onCircle = [](double turn) { return PolarPoint(0, 0, turn * fullCircle, 100); };
    const Position from = onCircle(0.1);
    const Position to = onCircle(0.15);
    for (const bool isEnd : {false, true}) {
        const auto before = isEnd ? std::optional<Position>() : onCircle(0.05);
        const Controls controls = ControlsBetween(before, from, to, onCircle(0.2));
        const Position middle = PlaceOnCurve(from, controls, to, 0.5);
        EXPECT_NEAR(Distance(middle.east, middle.north), 100, 0.1);
    }
}

TEST(Curves, PlacesThatCoincideMakeNoEndlessControls) {
    const Controls twice = ControlsBetween(Position{0, 0}, {0, 0}, {3, 3}, Position{3, 3});
    ExpectAt(twice.first, 1, 1);
    ExpectAt(twice.second, 2, 2);
    const Controls none = ControlsBetween(Position{0, 0}, {3, 3}, {3, 3}, Position{9, 3});
    ExpectAt(none.first, 3, 3);
    ExpectAt(none.second, 3, 3);
}

}  // namespace

}  // namespace korvande::testing
