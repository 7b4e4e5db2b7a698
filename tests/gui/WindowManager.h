#pragma once

#include <string>

namespace korvande::testing {

// The name of the window manager that runs on the display; empty when there is none.
std::string WindowManagerName();

}  // namespace korvande::testing
