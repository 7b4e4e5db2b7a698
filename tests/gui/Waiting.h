#pragma once

#include <functional>
#include <string>

namespace korvande::testing {

// Lets the window's events run until the condition holds; a test failure that says what was awaited when that takes too
// long. True when it holds.
bool WaitUntil(const std::string& what, const std::function<bool()>& condition);

// Lets all waiting events run.
void LetEventsRun();

}  // namespace korvande::testing
