#pragma once

#include <string>
#include <vector>

#include "tests/faults/Trial.h"

namespace korvande::testing {

// What the window does with files, without its pixels: messages go to standard error, and each is answered as Escape
// does, but for the earlier output, which is to be replaced. After an error it goes on, as a window does.
std::vector<std::string> WindowScenarioNames();
Scenario WindowScenario(const std::string& name);

}  // namespace korvande::testing
