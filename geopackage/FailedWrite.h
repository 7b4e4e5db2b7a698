#pragma once

namespace korvande {

// Platform: the number of the run-time error for a file of a database that could not be read or written, by the
// system's own number as the library of databases has it; `usual` when it tells none (0), or none that means more.
int NumberOfFailedWrite(int systemError, int usual) noexcept;

}  // namespace korvande
