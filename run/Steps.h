#pragma once

namespace korvande {

struct Translation;

// The steps that every translation takes, whoever asked for it: the reader over its input, the writer over what came of
// it, the closing of the output and of the account. An error that escapes a step ends that step only, and is reported;
// a person's end of the run is told in the log book and in the outcome.
void ReadAndWrite(Translation& translation);

// The first of them alone, for a drawing that is looked at: all its objects are read, unknown ones with their own
// codes, which are tallied. Nothing is written.
void ReadDrawing(Translation& translation);

}  // namespace korvande
