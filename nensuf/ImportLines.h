#pragma once

#include <optional>

#include "nensuf/ImportRun.h"

namespace korvande {

// Read the records of a line and of a chain of arcs that follow their group: why the object was left out, or nothing
// when it is in the drawing. Of a chain of arcs the result is the last one's; the others are accounted for.
std::optional<LeftOut> ImportLineGroup(ImportRun& run);
std::optional<LeftOut> ImportArcGroup(ImportRun& run);

}  // namespace korvande
