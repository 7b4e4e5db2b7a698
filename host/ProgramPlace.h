#pragma once

#include "core/Text.h"

namespace korvande {

// Where the running program stands: its folder without a separator at the end, and its name without extension. Both are
// empty when the system does not tell.
struct ProgramPlace {
    Text folder;
    Text name;
};

// Platform.
ProgramPlace RunningProgram();

}  // namespace korvande
