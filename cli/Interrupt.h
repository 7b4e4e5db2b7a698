#pragma once

namespace korvande {

// From here on the first interrupt (Ctrl+C, a request to end) asks a run to end at its next pump of events; a second
// one ends the program at once.
void CatchInterrupts();
bool IsInterrupted() noexcept;

}  // namespace korvande
