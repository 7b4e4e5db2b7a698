#pragma once

namespace korvande {

// Platform: the number of the run-time error for a file of a database that could not be read or written, by the
// system's own number as the library of databases has it; 0: it tells none.
int NumberOfFailedWrite(int systemError) noexcept;

}  // namespace korvande
