#pragma once

#include <optional>

#include "nensuf/ImportRun.h"

namespace korvande {

// Read the records of a point, a symbol and a text that follow their group: why the object was left out, or nothing
// when it is in the drawing.
std::optional<LeftOut> ImportPointGroup(ImportRun& run);
std::optional<LeftOut> ImportSymbolGroup(ImportRun& run);
std::optional<LeftOut> ImportTextGroup(ImportRun& run);

}  // namespace korvande
