#pragma once

#include <cstdint>
#include <vector>

#include "core/modKORVANDE.h"

namespace korvande {

// An arc of three points: through `middle`, which lies on it, from the point `start` of the drawing to the point `end`,
// or of the second half of a circle from the far side of it.
struct ThreePointArc {
    std::int32_t start = 0;  // points by their index
    std::int32_t end = 0;
    PointRec middle{};
    bool isCircle = false;  // two half circles: from start over middle to `opposite`, and back over `otherMiddle`
    PointRec opposite{};    // without a name, as the middles
    PointRec otherMiddle{};
    bool keepsCentre = false;  // who reads it finds the centre again, to the millimetre
};

// The arcs and circles of a drawing that can be written as arcs of three points: whoever reads those finds an arc that
// turns the same way. The others stay the segments that they are.
class ThreePointArcs {
 public:
    ThreePointArcs() = default;
    explicit ThreePointArcs(const Drawing& drawing);

    // The arc that begins with a segment, or null; and whether a segment is the second half of one.
    const ThreePointArc* BeginningAt(std::int32_t segment) const noexcept {
        return ofSegment.empty() || ofSegment[static_cast<std::size_t>(segment)] <= 0
                   ? nullptr
                   : &arcs[static_cast<std::size_t>(ofSegment[static_cast<std::size_t>(segment)] - 1)];
    }
    bool IsSecondHalf(std::int32_t segment) const noexcept {
        return !ofSegment.empty() && ofSegment[static_cast<std::size_t>(segment)] < 0;
    }

 private:
    std::vector<ThreePointArc> arcs;
    std::vector<std::int32_t> ofSegment;  // by segment: its arc's place and 1, -1 for a second half, else 0; or empty
};

}  // namespace korvande
