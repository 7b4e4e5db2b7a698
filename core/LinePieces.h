#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/modKORVANDE.h"

// What the segments of line strings are together. A drawing keeps an arc as two segments, start to centre and centre to
// end, a circle likewise, and a curve as segments between the points that it goes through.
namespace korvande {

// The bit of a line string's Flags1 that makes its arcs turn anticlockwise.
inline constexpr std::int32_t anticlockwiseFlag = 16;

// The segments of each line string, in the order of the array, where those of others may stand between them.
class SegmentsOfLines {
 public:
    explicit SegmentsOfLines(const Drawing& drawing);

    // Indices of segments; none for a number that is no line string's. A segment of no line string is nobody's.
    std::span<const std::int32_t> Of(std::int32_t lineNo) const noexcept;

 private:
    std::vector<std::int32_t> begins;  // by line number: its first place in `segments`, and one more
    std::vector<std::int32_t> segments;
};

enum class LinePieceKind {
    Straight,  // one segment, of any line type that makes nothing else
    Arc,       // two segments, about a centre
    Circle,    // two segments, about a centre and back to the start
    Curve,     // two segments or more that go on from each other
    Nothing    // one segment, with an end that is no point
};

struct LinePiece {
    LinePieceKind kind = LinePieceKind::Nothing;
    std::size_t segments = 1;  // how many it takes
    std::int32_t start = 0;    // points by their index
    std::int32_t centre = 0;   // of an arc or a circle; else 0
    std::int32_t end = 0;
    bool isAnticlockwise = false;  // an arc or a circle
};

// The piece that the first of these segments (of one line string, at least one) begins.
//
// Two neighbouring segments ARC_CENT, or CIRCLE_CENT, are an arc, or a circle, when the second begins at the point
// where the first ends and both ends are as far from that point, within 1 % or 0.05 m. Two segments ARC_CENT that end
// where they begin (within half a millimetre) are a circle too. Two segments CURVE_3RD or CURVE_4RD, or more of the
// same type, each of which begins where the one before ends, are a curve.
LinePiece FirstPiece(const Drawing& drawing, std::span<const std::int32_t> segments);

}  // namespace korvande
