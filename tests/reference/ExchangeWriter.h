#pragma once

#include "tests/reference/Values.h"

namespace korvande::reference {

// A drawing as a NEN1878 or SUF2 file, by docs/formats/nen1878-suf2.md. Arcs are written segment by segment. The
// settings' tables are counted in.
void WriteExchange(Format format, Settings& settings, Result& result);

}  // namespace korvande::reference
