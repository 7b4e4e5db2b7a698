#pragma once

#include <string>
#include <vector>

#include "tests/faults/Trial.h"

namespace korvande::testing {

// What the programs do: the console program's runs, and what the window does with files.
std::vector<std::string> ScenarioNames();
Scenario ScenarioNamed(const std::string& name);

}  // namespace korvande::testing
