#pragma once

#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

// Reads an IDEX file, by docs/formats/idex.md.
void ReadIdex(const std::string& file, const Settings& settings, Result& result);

}  // namespace korvande::reference
