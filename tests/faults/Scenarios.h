#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/faults/Trial.h"

namespace korvande::testing {

// What the programs do: the console program's runs, and what the window does with files.
std::vector<std::string> ScenarioNames();
Scenario ScenarioNamed(const std::string& name);

// The console program, in the process that it is tried in; its words are there before.
std::function<int()> ConsoleRun(const std::vector<std::string>& words);

}  // namespace korvande::testing
