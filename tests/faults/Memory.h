#pragma once

namespace korvande::testing {

// From here on every request for memory is asked about first, whoever makes it; true: there is none. The sanitizers
// have memory of their own, which nobody is asked about.
void WatchMemory(bool (*isToFail)());

}  // namespace korvande::testing
