#pragma once

#include "core/Text.h"

namespace korvande {

class LogBook;
class UnknownCodeTally;
struct UnknownCodeRec;

// Sorts the tally of unknown codes and appends its overview to the log book: per table a heading and, four to a line
// from column 20, each code with its count.
void WriteUnknownObjectOverview(LogBook& log, UnknownCodeTally& unknowns);

// One unknown code in a sentence of its own, without a full stop.
Text UnknownCodeSentence(const UnknownCodeRec& unknown);

}  // namespace korvande
