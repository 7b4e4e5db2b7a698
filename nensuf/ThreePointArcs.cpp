#include "nensuf/ThreePointArcs.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "core/Curves.h"
#include "core/LinePieces.h"
#include "core/Picture.h"
#include "core/RuntimeError.h"
#include "core/modConstants.h"
#include "nensuf/modArcFunctions.h"

namespace korvande {

namespace {

// As it is written: whole millimetres.
double Written(double metres) {
    std::int64_t millimetres = 0;
    return ScaledDecimal(metres, 3, millimetres) ? static_cast<double>(millimetres) / 1000 : metres;
}
Position Written(Position place) { return {Written(place.east), Written(place.north)}; }

Position PlaceOf(const PointRec& point) { return {point.East, point.North}; }

double RadiusAt(const Arc& arc, Position place) {
    return Distance(place.east - arc.centre.east, place.north - arc.centre.north);
}

// A place near the middle of an arc that is as good as on it when it is rounded to whole millimetres. Rounding the very
// middle would move the centre of a quarter circle by some millimetres.
Position MiddleOf(const Arc& arc) {
    constexpr int steps = 200;       // to each side of the middle
    constexpr double enough = 5e-6;  // metres off the arc
    // Each half of the arc stays below half a turn, by which its direction is known.
    const double sweep = std::fabs(arc.sweep);
    const double reach = std::clamp((pi - 0.01) / sweep - 0.5, 0.0, 0.1);
    Position best = Written(PlaceOnArc(arc, 0.5));
    double off = std::fabs(RadiusAt(arc, best) - arc.radius);
    for (int step = 1; step <= steps && off > enough; ++step) {
        const double away = reach * step / steps;
        for (const double part : {0.5 - away, 0.5 + away}) {
            const Position place = Written(PlaceOnArc(arc, part));
            const double placeOff = std::fabs(RadiusAt(arc, place) - arc.radius);
            if (placeOff >= off) continue;
            best = place;
            off = placeOff;
        }
    }
    return best;
}

PointRec NamelessAt(Position place, double height) {
    PointRec point{};
    point.SetPointID(std::string_view());
    point.East = place.east;
    point.North = place.north;
    point.Elevation = height;
    return point;
}

// Between two heights, of which one that is 0 is none.
double MeanHeight(const PointRec& one, const PointRec& other) {
    if (one.Elevation == 0 || other.Elevation == 0) return one.Elevation + other.Elevation;
    return (one.Elevation + other.Elevation) / 2;
}

// What a reader makes of three places as they are written.
enum class Readback { None, Arc, SameCentre };

Readback ReadBack(Position start, Position middle, Position end, Position centre, bool isAnticlockwise) {
    constexpr double millimetre = 0.001 + 1e-9;
    std::int32_t crossings = 0;
    try {
        const ArcCentre found = ArcCentreFrom3Points(Written(start), Written(middle), Written(end), crossings);
        if (found.direction != (isAnticlockwise ? -1 : 1)) return Readback::None;
        const bool isSame = std::fabs(found.centre.east - centre.east) <= millimetre &&
                            std::fabs(found.centre.north - centre.north) <= millimetre;
        return isSame ? Readback::SameCentre : Readback::Arc;
    } catch (const RuntimeError&) {
        return Readback::None;
    }
}

// Fills in an arc; false when it cannot be read back as one.
bool TakeArc(const Drawing& drawing, const LinePiece& piece, ThreePointArc& arc) {
    const PointRec& start = drawing.Points[piece.start];
    const PointRec& end = drawing.Points[piece.end];
    const Position centre = PlaceOf(drawing.Points[piece.centre]);
    const Arc shape = ArcAbout(Written(PlaceOf(start)), centre, Written(PlaceOf(end)), piece.isAnticlockwise);
    if (!(std::fabs(shape.sweep) > 0)) return false;
    const Position middle = MiddleOf(shape);
    const Readback back = ReadBack(PlaceOf(start), middle, PlaceOf(end), centre, piece.isAnticlockwise);
    arc.middle = NamelessAt(middle, MeanHeight(start, end));
    arc.keepsCentre = back == Readback::SameCentre;
    return back != Readback::None;
}

bool TakeCircle(const Drawing& drawing, const LinePiece& piece, ThreePointArc& arc) {
    const PointRec& start = drawing.Points[piece.start];
    const Position from = Written(PlaceOf(start));
    const Position centre = PlaceOf(drawing.Points[piece.centre]);
    const Position opposite = Written({2 * centre.east - from.east, 2 * centre.north - from.north});
    const Arc first = ArcAbout(from, centre, opposite, piece.isAnticlockwise);
    const Arc second = ArcAbout(opposite, centre, from, piece.isAnticlockwise);
    const Position middle1 = MiddleOf(first);
    const Position middle2 = MiddleOf(second);
    const Readback back1 = ReadBack(from, middle1, opposite, centre, piece.isAnticlockwise);
    const Readback back2 = ReadBack(opposite, middle2, from, centre, piece.isAnticlockwise);
    arc.isCircle = true;
    arc.end = piece.start;
    arc.middle = NamelessAt(middle1, start.Elevation);
    arc.opposite = NamelessAt(opposite, start.Elevation);
    arc.otherMiddle = NamelessAt(middle2, start.Elevation);
    arc.keepsCentre = back1 == Readback::SameCentre && back2 == Readback::SameCentre;
    return back1 != Readback::None && back2 != Readback::None;
}

}  // namespace

ThreePointArcs::ThreePointArcs(const Drawing& drawing)
    : ofSegment(static_cast<std::size_t>(drawing.Edges.UpperBound()) + 1) {
    const SegmentsOfLines all(drawing);
    for (std::int32_t lineNo = 1; lineNo <= drawing.Lines.UpperBound(); ++lineNo) {
        for (auto rest = all.Of(lineNo); !rest.empty();) {
            const LinePiece piece = FirstPiece(drawing, rest);
            const bool isCircle = piece.kind == LinePieceKind::Circle;
            ThreePointArc arc{.start = piece.start, .end = piece.end};
            const bool isArc = isCircle ? TakeCircle(drawing, piece, arc)
                                        : piece.kind == LinePieceKind::Arc && TakeArc(drawing, piece, arc);
            if (isArc) {
                arcs.push_back(arc);
                ofSegment[static_cast<std::size_t>(rest[0])] = static_cast<std::int32_t>(arcs.size());
                ofSegment[static_cast<std::size_t>(rest[1])] = -1;
            }
            rest = rest.subspan(piece.segments);
        }
    }
}

}  // namespace korvande
