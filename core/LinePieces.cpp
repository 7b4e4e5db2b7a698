#include "core/LinePieces.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "core/modLineIntraVerse.h"

namespace korvande {

namespace {

constexpr double samePlace = 0.0005;  // metres
constexpr double radiusTolerance = 0.05;
constexpr double relativeTolerance = 0.01;

bool IsPoint(const Drawing& drawing, std::int32_t index) { return index >= 1 && index <= drawing.Points.UpperBound(); }

bool HasEnds(const Drawing& drawing, const EdgeRec& edge) {
    return IsPoint(drawing, edge.StartPt) && IsPoint(drawing, edge.EndPt);
}

double DistanceOf(const Drawing& drawing, std::int32_t from, std::int32_t to) {
    const PointRec& a = drawing.Points[from];
    const PointRec& b = drawing.Points[to];
    return Distance(b.East - a.East, b.North - a.North);
}

bool AreAlike(double radius, double other) {
    const double larger = std::max(radius, other);
    return larger > 0 && std::fabs(radius - other) <= std::max(radiusTolerance, larger * relativeTolerance) &&
           std::min(radius, other) > samePlace && std::isfinite(larger);
}

enum class Family { Straight, ArcByCentre, CircleByCentre, ThirdOrder, FourthOrder };

Family FamilyOf(const Drawing& drawing, const EdgeRec& edge) {
    const std::string_view type = drawing.LineTypeBytes(edge).TrimmedRight();
    // Nearly all are straight.
    if (type == "STRAIGHT") return Family::Straight;
    if (type == "ARC_CENT") return Family::ArcByCentre;
    if (type == "CIRCLE_CENT") return Family::CircleByCentre;
    if (type == "CURVE_3RD") return Family::ThirdOrder;
    if (type == "CURVE_4RD") return Family::FourthOrder;
    return Family::Straight;
}

// How many of the segments make a curve with the first.
std::size_t SegmentsOfCurve(const Drawing& drawing, std::span<const std::int32_t> segments, Family family) {
    std::size_t count = 1;
    while (count < segments.size()) {
        const EdgeRec& before = drawing.Edges[segments[count - 1]];
        const EdgeRec& edge = drawing.Edges[segments[count]];
        if (edge.StartPt != before.EndPt || !HasEnds(drawing, edge) || FamilyOf(drawing, edge) != family) break;
        ++count;
    }
    return count;
}

// Makes an arc or a circle of a segment and the one behind it, when they are one.
void TakeSecondHalf(const Drawing& drawing, const EdgeRec& second, Family family, LinePiece& piece) {
    const std::int32_t centre = piece.end;
    if (second.StartPt != centre || !IsPoint(drawing, second.EndPt) || FamilyOf(drawing, second) != family) return;
    if (!AreAlike(DistanceOf(drawing, piece.start, centre), DistanceOf(drawing, centre, second.EndPt))) return;
    const bool closes = DistanceOf(drawing, piece.start, second.EndPt) <= samePlace;
    piece.kind = closes || family == Family::CircleByCentre ? LinePieceKind::Circle : LinePieceKind::Arc;
    piece.segments = 2;
    piece.centre = centre;
    piece.end = second.EndPt;
    piece.isAnticlockwise = (drawing.Lines[second.LineNo].Flags1 & anticlockwiseFlag) != 0;
}

}  // namespace

SegmentsOfLines::SegmentsOfLines(const Drawing& drawing) {
    const std::int32_t lines = drawing.Lines.UpperBound();
    const std::int32_t edges = drawing.Edges.UpperBound();
    const auto isLine = [lines](std::int32_t line) { return line >= 1 && line <= lines; };
    const auto place = [](std::int32_t line) { return static_cast<std::size_t>(line); };
    begins.assign(static_cast<std::size_t>(lines) + 2, 0);
    for (std::int32_t index = 1; index <= edges; ++index) {
        const std::int32_t line = drawing.Edges[index].LineNo;
        if (isLine(line)) ++begins[place(line) + 1];
    }
    for (std::size_t line = 1; line < begins.size(); ++line) begins[line] += begins[line - 1];
    segments.resize(static_cast<std::size_t>(begins.back()));
    // While they are filled in, a line string's entry is the place of its next segment; afterwards that of the line
    // string behind it, so that all move up one.
    for (std::int32_t index = 1; index <= edges; ++index) {
        const std::int32_t line = drawing.Edges[index].LineNo;
        if (isLine(line)) segments[static_cast<std::size_t>(begins[place(line)]++)] = index;
    }
    std::rotate(begins.begin(), begins.end() - 1, begins.end());
    begins.front() = 0;
}

std::span<const std::int32_t> SegmentsOfLines::Of(std::int32_t lineNo) const noexcept {
    if (lineNo < 1 || static_cast<std::size_t>(lineNo) + 1 >= begins.size()) return {};
    const auto line = static_cast<std::size_t>(lineNo);
    const auto begin = static_cast<std::size_t>(begins[line]);
    return std::span(segments).subspan(begin, static_cast<std::size_t>(begins[line + 1]) - begin);
}

LinePiece FirstPiece(const Drawing& drawing, std::span<const std::int32_t> segments) {
    const EdgeRec& first = drawing.Edges[segments.front()];
    LinePiece piece;
    if (!HasEnds(drawing, first)) return piece;
    piece.kind = LinePieceKind::Straight;
    piece.start = first.StartPt;
    piece.end = first.EndPt;
    const Family family = FamilyOf(drawing, first);
    if (family == Family::Straight || segments.size() < 2) return piece;
    if (family == Family::ThirdOrder || family == Family::FourthOrder) {
        piece.segments = SegmentsOfCurve(drawing, segments, family);
        if (piece.segments == 1) return piece;
        piece.kind = LinePieceKind::Curve;
        piece.end = drawing.Edges[segments[piece.segments - 1]].EndPt;
    } else {
        TakeSecondHalf(drawing, drawing.Edges[segments[1]], family, piece);
    }
    return piece;
}

}  // namespace korvande
