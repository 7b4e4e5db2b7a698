#pragma once

#include <string>

#include "tests/run/RandomDrawing.h"
#include "translation/Mode.h"

namespace korvande::testing {

// A file that is damaged in one place, and what was done to it.
struct Damaged {
    std::string bytes;
    std::string what;
};

// Damages a good drawing behind its header: cut off, a line shortened or lengthened, an end code, terminator, END or
// column name lost or changed, a separator changed, a coordinate made no number, a nested block put in, a line type
// unknown.
Damaged DamageIdex(Chance& chance, const std::string& idex);
Damaged DamageExchange(Chance& chance, const std::string& nen);

}  // namespace korvande::testing
