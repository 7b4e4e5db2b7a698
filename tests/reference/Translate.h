#pragma once

#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

enum class Direction { ToIdex, FromIdex };

// The two halves of a translation. The settings' tables are counted in.
Result ReadDrawing(const std::string& file, Direction direction, Format format, Settings& settings);
void WriteDrawing(Result& result, Direction direction, Format format, Settings& settings);

// A drawing as lines to compare, an object to a line.
std::string Dump(const Drawing& drawing);

}  // namespace korvande::reference
