#include "core/Curves.h"

#include <cmath>

#include "core/modAzimuth.h"

namespace korvande {

namespace {

Position Difference(Position from, Position to) { return {to.east - from.east, to.north - from.north}; }

double LengthOf(Position vector) { return Distance(vector.east, vector.north); }

// Metres on per metre along the chords, as the parabola through three places goes at the middle one.
Position TangentAt(Position before, Position at, Position behind) {
    const Position in = Difference(before, at);
    const Position out = Difference(at, behind);
    const double lengthIn = LengthOf(in);
    const double lengthOut = LengthOf(out);
    const auto along = [&](double dIn, double dOut) {
        return (lengthOut * (dIn / lengthIn) + lengthIn * (dOut / lengthOut)) / (lengthIn + lengthOut);
    };
    return {along(in.east, out.east), along(in.north, out.north)};
}

// At the end of a curve, from the tangent at the other end of the segment.
Position TangentAtEnd(Position chord, double length, Position other) {
    return {2 * chord.east / length - other.east, 2 * chord.north / length - other.north};
}

}  // namespace

Arc ArcAbout(Position start, Position centre, Position end, bool isAnticlockwise) noexcept {
    Arc arc;
    arc.centre = centre;
    const Position chord = Difference(start, end);
    const double length = LengthOf(chord);
    if (length > 0) {
        // Along the chord the centre moves to its middle; square to it it stays where it is.
        const Position middle{(start.east + end.east) / 2, (start.north + end.north) / 2};
        const Position off = Difference(middle, centre);
        const double square = (off.north * chord.east - off.east * chord.north) / length;
        arc.centre = {middle.east - square * chord.north / length, middle.north + square * chord.east / length};
    }
    const Position toStart = Difference(arc.centre, start);
    const Position toEnd = Difference(arc.centre, end);
    arc.radius = LengthOf(toStart);
    arc.bearing = Azimuth(toStart.east, toStart.north);
    const double bearingOfEnd = Azimuth(toEnd.east, toEnd.north);
    arc.sweep = isAnticlockwise ? -AngleFromTo(bearingOfEnd, arc.bearing) : AngleFromTo(arc.bearing, bearingOfEnd);
    return arc;
}

Position PlaceOnArc(const Arc& arc, double part) noexcept {
    return PolarPoint(arc.centre.east, arc.centre.north, arc.bearing + part * arc.sweep, arc.radius);
}

Controls ControlsBetween(const std::optional<Position>& before, Position from, Position to,
                         const std::optional<Position>& behind) noexcept {
    const Position chord = Difference(from, to);
    const double length = LengthOf(chord);
    const bool hasBefore = before && LengthOf(Difference(*before, from)) > 0;
    const bool hasBehind = behind && LengthOf(Difference(to, *behind)) > 0;
    Position first{chord.east / 3, chord.north / 3};
    Position second = first;
    if (length > 0 && (hasBefore || hasBehind)) {
        Position atFrom = hasBefore ? TangentAt(*before, from, to) : Position{};
        Position atTo = hasBehind ? TangentAt(from, to, *behind) : Position{};
        if (!hasBefore) atFrom = TangentAtEnd(chord, length, atTo);
        if (!hasBehind) atTo = TangentAtEnd(chord, length, atFrom);
        first = {atFrom.east * length / 3, atFrom.north * length / 3};
        second = {atTo.east * length / 3, atTo.north * length / 3};
    }
    return {{from.east + first.east, from.north + first.north}, {to.east - second.east, to.north - second.north}};
}

Position PlaceOnCurve(Position from, const Controls& controls, Position to, double part) noexcept {
    const double rest = 1 - part;
    const auto mix = [part, rest](double a, double b, double c, double d) {
        return rest * rest * rest * a + 3 * rest * rest * part * b + 3 * rest * part * part * c +
               part * part * part * d;
    };
    return {mix(from.east, controls.first.east, controls.second.east, to.east),
            mix(from.north, controls.first.north, controls.second.north, to.north)};
}

}  // namespace korvande
