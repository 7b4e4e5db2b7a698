#pragma once

#include <optional>

#include "core/LineReader.h"
#include "translation/Mode.h"

namespace korvande {

// The format by the content: a HEADER line, or an 01 and an 02 record, whose precision digit stands in column 7 for
// NEN1878; header lines are what the import takes for such. Nothing when it is neither. A run-time error when the file
// cannot be read.
std::optional<Format> Recognise(LineReader& file);

}  // namespace korvande
