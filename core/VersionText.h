#pragma once

#include "core/Text.h"

namespace korvande {

// The program's version as it shows it: "8.01.064".
Text VersionText();

}  // namespace korvande
