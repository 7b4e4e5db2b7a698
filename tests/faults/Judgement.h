#pragma once

#include <string>

#include "tests/faults/Trial.h"

namespace korvande::testing {

// What a program may never do, whatever goes wrong: a sentence about the first such thing, or "" when it did well.
// `good` is what it does when nothing goes wrong.
std::string FaultOf(const Scenario& scenario, const Trial& good, const Fault& fault, const Trial& trial);

// A file that stays as it was until its successor is whole; a log book and what is like it is written where it stands.
bool IsReplaced(const std::string& name, const std::string& bytes);

// What is not whole without its last line.
bool IsWhole(const std::string& bytes);

}  // namespace korvande::testing
