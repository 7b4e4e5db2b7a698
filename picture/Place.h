#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "core/Curves.h"
#include "core/modLineIntraVerse.h"

// Where things are in a picture: whole millimetres east and north of an origin, in 32 bits, which reach 2,147 km.
namespace korvande {

struct PicturePlace {
    std::int32_t east = 0;
    std::int32_t north = 0;

    friend bool operator==(const PicturePlace&, const PicturePlace&) = default;
};

// Millimetres from the same origin, for computing with.
inline Position PositionOf(PicturePlace place) noexcept {
    return {static_cast<double>(place.east), static_cast<double>(place.north)};
}

// The place nearest to a position, held to what 32 bits reach.
PicturePlace PlaceAt(Position millimetres) noexcept;

// An upright rectangle with its edges; empty until a place is added.
struct PictureBox {
    std::int32_t minEast = std::numeric_limits<std::int32_t>::max();
    std::int32_t minNorth = std::numeric_limits<std::int32_t>::max();
    std::int32_t maxEast = std::numeric_limits<std::int32_t>::min();
    std::int32_t maxNorth = std::numeric_limits<std::int32_t>::min();

    bool IsEmpty() const noexcept { return minEast > maxEast || minNorth > maxNorth; }
    void Add(PicturePlace place) noexcept {
        minEast = std::min(minEast, place.east);
        minNorth = std::min(minNorth, place.north);
        maxEast = std::max(maxEast, place.east);
        maxNorth = std::max(maxNorth, place.north);
    }
    void AddBox(const PictureBox& box) noexcept {
        minEast = std::min(minEast, box.minEast);
        minNorth = std::min(minNorth, box.minNorth);
        maxEast = std::max(maxEast, box.maxEast);
        maxNorth = std::max(maxNorth, box.maxNorth);
    }
    bool Overlaps(const PictureBox& other) const noexcept {
        return minEast <= other.maxEast && other.minEast <= maxEast && minNorth <= other.maxNorth &&
               other.minNorth <= maxNorth;
    }
    bool Holds(const PictureBox& other) const noexcept {
        return minEast <= other.minEast && minNorth <= other.minNorth && maxEast >= other.maxEast &&
               maxNorth >= other.maxNorth;
    }

    friend bool operator==(const PictureBox&, const PictureBox&) = default;
};

// The box about a place that reaches this far (millimetres) to all sides.
PictureBox BoxAbout(PicturePlace place, double reach) noexcept;

// A part of a straight line, from 0 to 1 along it.
struct LinePart {
    double begin = 0;
    double end = 1;
};

// The part that lies in an upright rectangle; nothing when none does.
std::optional<LinePart> PartInside(Position from, Position to, Position least, Position most) noexcept;

// Adds the places that an arc reaches farthest to each side.
void AddArc(PictureBox& box, const Arc& arc) noexcept;

// Whole millimetres of metres, halves away from zero in their decimal form, as the exchange formats have them; nothing
// for what is no number or farther than 10^12 metres.
std::optional<std::int64_t> MillimetresOf(double metres) noexcept;

struct PictureOrigin {
    std::int64_t east = 0;  // millimetres
    std::int64_t north = 0;

    // Nothing for a place that 32 bits do not reach.
    std::optional<PicturePlace> From(double eastMetres, double northMetres) const noexcept;
    Position Metres(PicturePlace place) const noexcept;
};

}  // namespace korvande
