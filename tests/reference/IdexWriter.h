#pragma once

#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

// A drawing as an IDEX file, by docs/formats/idex.md.
std::string WriteIdex(const Drawing& drawing);

}  // namespace korvande::reference
