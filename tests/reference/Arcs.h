#pragma once

#include <optional>

namespace korvande::reference {

struct Place {
    double east = 0;
    double north = 0;
};

struct Centre {
    Place place;
    bool isAnticlockwise = false;
    double doubt = 0;  // by which its place may be another, for the digits that a number has
};

// The centre of the arc through three places; nothing when they lie on a line, or when the two that tell in which way
// it turns lie half a turn apart.
std::optional<Centre> CentreOfArc(Place from, Place middle, Place to);

}  // namespace korvande::reference
