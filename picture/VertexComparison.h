#pragma once

#include <vector>

#include "picture/Comparison.h"

namespace korvande {

struct Drawing;

// The points of line strings and texts of a drawing, in the order of their places.
struct ComparedVertices {
    const Drawing& drawing;
    std::vector<ComparedVertex> vertices;
};

// Compares the places of line strings and texts that both drawings have: their points' names and heights. Tells what
// differs behind the other differences, and counts.
void CompareVertices(const ComparedVertices& first, const ComparedVertices& second, bool areBothFromIdex,
                     Comparison& result);

}  // namespace korvande
