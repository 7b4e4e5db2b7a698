#pragma once

#include <optional>

#include "core/LineReader.h"
#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

class Screen;

// The format by the content: a HEADER line, or an 01 and an 02 record, whose precision digit stands in column 7 for
// NEN1878; header lines are what the import takes for such. Nothing when it is neither. A run-time error when the file
// cannot be read.
std::optional<Format> Recognise(LineReader& file);

// The same of a file; also nothing when it cannot be read, or is a device, which may have no end and can be read only
// once.
std::optional<Format> FormatOfFile(Screen& screen, const Text& name);

}  // namespace korvande
