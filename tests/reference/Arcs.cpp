#include "tests/reference/Arcs.h"

#include <cmath>

#include "tests/reference/Directions.h"

namespace korvande::reference {

namespace {

// Clockwise from one bearing to another.
double Turn(double from, double to) { return to >= from ? to - from : to - from + 2 * pi; }

bool AreParallel(double one, double other) {
    const double apart = std::fabs(one - other);
    return apart < 1e-8 || std::fabs(apart - pi) < 1e-8 || std::fabs(apart - 2 * pi) < 1e-8;
}

// A place has some fifteen digits, so the directions of the chords are known to so much, and of bisectors that are
// nearly parallel the distance at which they meet to that much less.
double DoubtOf(Place from, Place middle, Place to, double reach) {
    double largest = 1;
    for (const Place& place : {from, middle, to}) {
        largest = std::fmax(largest, std::fmax(std::fabs(place.east), std::fabs(place.north)));
    }
    const double chords[] = {Distance(middle.east - from.east, middle.north - from.north),
                             Distance(to.east - middle.east, to.north - middle.north), 1000};
    double shortest = 1000;
    for (const double chord : chords) {
        if (chord > 0) shortest = std::fmin(shortest, chord);
    }
    return 1e-14 * largest / shortest * (reach + shortest);
}

}  // namespace

std::optional<Centre> CentreOfArc(Place from, Place middle, Place to) {
    // The perpendicular bisectors of the two chords.
    const double one = Bearing(middle.east - from.east, middle.north - from.north) + pi / 2;
    const double other = Bearing(to.east - middle.east, to.north - middle.north) + pi / 2;
    if (AreParallel(one, other)) return std::nullopt;
    const Place half{(from.east + middle.east) / 2, (from.north + middle.north) / 2};
    const Place otherHalf{(middle.east + to.east) / 2, (middle.north + to.north) / 2};
    const double east = otherHalf.east - half.east;
    const double north = otherHalf.north - half.north;
    const double along = (east * std::cos(other) - north * std::sin(other)) / std::sin(one - other);
    const Place centre{half.east + along * std::sin(one), half.north + along * std::cos(one)};

    const double first = Bearing(from.east - centre.east, from.north - centre.north);
    const double second = Bearing(middle.east - centre.east, middle.north - centre.north);
    const double third = Bearing(to.east - centre.east, to.north - centre.north);
    // Of the two turns the smaller one tells.
    const double turn = std::fmin(Turn(first, second), Turn(second, third));
    if (std::fabs(turn - pi) < 1e-9) return std::nullopt;
    return Centre{centre, turn > pi, DoubtOf(from, middle, to, std::fabs(along / std::sin(one - other)))};
}

}  // namespace korvande::reference
