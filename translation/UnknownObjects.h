#pragma once

namespace korvande {

class LogBook;
class UnknownCodeTally;

// Sorts the tally of unknown codes and appends its overview to the log book: per table a heading and, four to a line
// from column 20, each code with its count.
void WriteUnknownObjectOverview(LogBook& log, UnknownCodeTally& unknowns);

}  // namespace korvande
