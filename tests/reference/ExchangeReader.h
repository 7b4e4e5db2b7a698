#pragma once

#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

// Reads a NEN1878 or SUF2 file, by docs/formats/nen1878-suf2.md. The settings' tables are counted in.
void ReadExchange(const std::string& file, Format format, Settings& settings, Result& result);

}  // namespace korvande::reference
