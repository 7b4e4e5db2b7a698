#include "geopackage/LineShape.h"

#include <algorithm>
#include <cmath>

#include "core/modAzimuth.h"
#include "core/modConstants.h"

namespace korvande {

namespace {

constexpr double mostSteps = 20'000;  // of one curve, which hold a circle of 80 km to its tolerance

int StepsOf(double steps) noexcept {
    // What is no number takes one step too.
    return steps > 1 ? static_cast<int>(std::min(std::ceil(steps), mostSteps)) : 1;
}

Position PositionOf(const Vertex& vertex) noexcept { return {vertex.east, vertex.north}; }

double Between(double from, double to, double part) noexcept { return from + (to - from) * part; }

// A place on the way between two others; where one of these has no height, that of the other.
Vertex OnTheWay(Position at, const Vertex& from, const Vertex& to, double part) noexcept {
    const double height = from.height == 0 ? to.height
                          : to.height == 0 ? from.height
                                           : Between(from.height, to.height, part);
    return {at.east, at.north, height};
}

// The places that an arc reaches farthest to each side, between its ends.
void AddReach(Envelope& envelope, const Arc& arc) noexcept {
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double bearing = quarter * pi / 2;
        const double turn = arc.sweep < 0 ? AngleFromTo(bearing, arc.bearing) : AngleFromTo(arc.bearing, bearing);
        if (turn >= std::fabs(arc.sweep)) continue;
        const Position at = PolarPoint(arc.centre.east, arc.centre.north, bearing, arc.radius);
        envelope.Add(at.east, at.north);
    }
}

// How far a cubic curve bends away from a line, by the differences of its control points.
double BendOf(Position from, const Controls& controls, Position to) noexcept {
    const auto second = [](Position a, Position b, Position c) {
        return Distance(a.east - 2 * b.east + c.east, a.north - 2 * b.north + c.north);
    };
    return std::max(second(from, controls.first, controls.second), second(controls.first, controls.second, to));
}

}  // namespace

void LineShape::Clear() noexcept {
    vertices.clear();
    runs.clear();
    envelope = {};
    places = 0;
    withoutHeight = 0;
}

const LineShape& LineShapes::Of(std::span<const std::int32_t> segments) {
    shape.Clear();
    std::int32_t end = 0;  // the point where the pieces so far end
    for (auto rest = segments; !rest.empty();) {
        const LinePiece piece = FirstPiece(drawing, rest);
        const auto own = rest.first(piece.segments);
        if (!CanShow(piece, own)) {
            end = 0;
        } else {
            if (piece.start != end) Begin(piece.start);
            AddPiece(piece, own);
            // A circle that ends elsewhere goes on from there.
            const Vertex there = VertexOf(piece.end);
            end = there.east == last.east && there.north == last.north ? piece.end : 0;
        }
        rest = rest.subspan(piece.segments);
    }
    return shape;
}

bool LineShapes::CanShow(const LinePiece& piece, std::span<const std::int32_t> segments) const {
    return piece.kind != LinePieceKind::Nothing && IsNear(piece.start) &&
           std::all_of(segments.begin(), segments.end(),
                       [this](std::int32_t segment) { return IsNear(drawing.Edges[segment].EndPt); });
}

bool LineShapes::IsNear(std::int32_t point) const {
    const PointRec& record = drawing.Points[point];
    return origin.From(record.East, record.North).has_value();
}

Vertex LineShapes::VertexOf(std::int32_t point) const {
    const PointRec& record = drawing.Points[point];
    return {record.East, record.North, record.Elevation};
}

void LineShapes::Begin(std::int32_t point) {
    isBegun = true;
    last = VertexOf(point);
    Count(point);
}

void LineShapes::Count(std::int32_t point) {
    ++shape.places;
    if (drawing.Points[point].Elevation == 0) ++shape.withoutHeight;
}

// The run that a piece of this kind goes into, with the place where it begins.
LineRun& LineShapes::RunOf(bool isOfArcs) {
    const bool isNew = isBegun || shape.runs.empty();
    if (isNew || shape.runs.back().isOfArcs != isOfArcs) {
        if (isNew) shape.vertices.push_back(last);
        if (isNew) shape.envelope.Add(last.east, last.north);
        shape.runs.push_back(
            {.firstVertex = shape.vertices.size() - 1, .vertexCount = 1, .isOfArcs = isOfArcs, .goesOn = !isNew});
    }
    isBegun = false;
    return shape.runs.back();
}

void LineShapes::Append(LineRun& run, const Vertex& vertex) {
    shape.vertices.push_back(vertex);
    shape.envelope.Add(vertex.east, vertex.north);
    ++run.vertexCount;
    last = vertex;
}

void LineShapes::AddPiece(const LinePiece& piece, std::span<const std::int32_t> segments) {
    switch (piece.kind) {
        case LinePieceKind::Arc:
            Count(piece.end);
            AddArc(VertexOf(piece.centre), VertexOf(piece.end), piece.isAnticlockwise);
            break;
        case LinePieceKind::Circle:
            AddCircle(VertexOf(piece.centre), piece.isAnticlockwise);
            break;
        case LinePieceKind::Curve:
            AddCurve(segments);
            break;
        default:
            Count(piece.end);
            AddStraight(VertexOf(piece.end));
            break;
    }
}

void LineShapes::AddStraight(const Vertex& to) { Append(RunOf(false), to); }

void LineShapes::AddArc(const Vertex& centre, const Vertex& to, bool isAnticlockwise) {
    const Vertex from = last;
    const Arc arc = ArcAbout(PositionOf(from), PositionOf(centre), PositionOf(to), isAnticlockwise);
    LineRun& run = RunOf(!isStraight);
    AddReach(shape.envelope, arc);
    const double step = arc.radius > besideCurve ? 2 * std::acos(1 - besideCurve / arc.radius) : 1;
    const int steps = isStraight ? StepsOf(std::fabs(arc.sweep) / step) : 2;
    for (int i = 1; i < steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        Append(run, OnTheWay(PlaceOnArc(arc, part), from, to, part));
    }
    Append(run, to);
}

// Two half circles: the ends of a whole one would not tell how it turns.
void LineShapes::AddCircle(const Vertex& centre, bool isAnticlockwise) {
    const Vertex from = last;
    AddArc(centre, {2 * centre.east - from.east, 2 * centre.north - from.north, from.height}, isAnticlockwise);
    AddArc(centre, from, isAnticlockwise);
}

void LineShapes::AddCurve(std::span<const std::int32_t> segments) {
    const auto startOf = [&](std::size_t i) { return VertexOf(drawing.Edges[segments[i]].StartPt); };
    const auto endOf = [&](std::size_t i) { return VertexOf(drawing.Edges[segments[i]].EndPt); };
    // A curve that comes back to its start goes on there too.
    const std::size_t end = segments.size() - 1;
    const bool isClosed = drawing.Edges[segments[end]].EndPt == drawing.Edges[segments[0]].StartPt;
    for (std::size_t i = 0; i <= end; ++i) {
        std::optional<Position> before;
        std::optional<Position> behind;
        if (i > 0 || isClosed) before = PositionOf(startOf(i > 0 ? i - 1 : end));
        if (i < end || isClosed) behind = PositionOf(endOf(i < end ? i + 1 : 0));
        Count(drawing.Edges[segments[i]].EndPt);
        AddCurveTo(ControlsBetween(before, PositionOf(startOf(i)), PositionOf(endOf(i)), behind), endOf(i));
    }
}

void LineShapes::AddCurveTo(const Controls& controls, const Vertex& to) {
    const Vertex from = last;
    const Position start = PositionOf(from);
    const Position end = PositionOf(to);
    // Each of n equal steps lies within 3/4 of the bend, over n², of its part of the curve.
    const int steps = StepsOf(std::sqrt(0.75 * BendOf(start, controls, end) / besideCurve));
    LineRun& run = RunOf(false);
    for (int i = 1; i < steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        Append(run, OnTheWay(PlaceOnCurve(start, controls, end, part), from, to, part));
    }
    Append(run, to);
}

}  // namespace korvande
