#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "core/LinePieces.h"
#include "core/modKORVANDE.h"
#include "picture/Place.h"

// The places of line strings, at full precision, with their heights.
namespace korvande {

// Metres.
struct Vertex {
    double east = 0;
    double north = 0;
    double height = 0;  // 0 where none is known, as in a drawing
};

// Metres; empty until a place is added.
struct Envelope {
    double minEast = std::numeric_limits<double>::infinity();
    double minNorth = std::numeric_limits<double>::infinity();
    double maxEast = -std::numeric_limits<double>::infinity();
    double maxNorth = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const noexcept { return minEast > maxEast; }
    void Add(double east, double north) noexcept {
        minEast = std::min(minEast, east);
        minNorth = std::min(minNorth, north);
        maxEast = std::max(maxEast, east);
        maxNorth = std::max(maxNorth, north);
    }
    void Add(const Envelope& other) noexcept {
        if (other.IsEmpty()) return;
        Add(other.minEast, other.minNorth);
        Add(other.maxEast, other.maxNorth);
    }
};

// Neighbouring pieces of one kind: straight lines from place to place, or arcs, each through the next place to the one
// behind it. One that goes on from the run before begins with its last place.
struct LineRun {
    std::size_t firstVertex = 0;
    std::size_t vertexCount = 0;
    bool isOfArcs = false;
    bool goesOn = false;
};

struct LineShape {
    std::vector<Vertex> vertices;
    std::vector<LineRun> runs;
    Envelope envelope;
    std::int32_t places = 0;         // of the drawing, that it goes through
    std::int32_t withoutHeight = 0;  // of those

    bool HasHeights() const noexcept { return withoutHeight < places; }
    void Clear() noexcept;
};

// How far (metres) straight lines may lie from the curve that they stand for: the precision of the formats.
inline constexpr double besideCurve = 0.001;

// Makes the shape of a line string of these segments. What refers to nothing, or lies farther from the origin than a
// picture reaches, is left out, and with `isStraight` arcs are made of straight lines; smooth curves always are.
class LineShapes {
 public:
    LineShapes(const Drawing& itsDrawing, const PictureOrigin& itsOrigin, bool isMadeStraight)
        : drawing(itsDrawing), origin(itsOrigin), isStraight(isMadeStraight) {}

    // The same object each time.
    const LineShape& Of(std::span<const std::int32_t> segments);

 private:
    bool CanShow(const LinePiece& piece, std::span<const std::int32_t> segments) const;
    bool IsNear(std::int32_t point) const;
    Vertex VertexOf(std::int32_t point) const;

    void Begin(std::int32_t point);
    void Count(std::int32_t point);
    LineRun& RunOf(bool isOfArcs);
    void Append(LineRun& run, const Vertex& vertex);
    void AddPiece(const LinePiece& piece, std::span<const std::int32_t> segments);
    void AddStraight(const Vertex& to);
    void AddArc(const Vertex& centre, const Vertex& to, bool isAnticlockwise);
    void AddCircle(const Vertex& centre, bool isAnticlockwise);
    void AddCurve(std::span<const std::int32_t> segments);
    void AddCurveTo(const Controls& controls, const Vertex& to);

    const Drawing& drawing;
    PictureOrigin origin;
    bool isStraight;
    LineShape shape;
    bool isBegun = false;  // the next run stands on its own
    Vertex last{};
};

}  // namespace korvande
