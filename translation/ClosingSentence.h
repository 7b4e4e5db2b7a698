#pragma once

#include <cstdint>

#include "core/Text.h"

namespace korvande {

struct Translation;

// Whether all went well: no error, and nothing that came across otherwise than it was read.
bool WentWell(const Translation& translation) noexcept;

// The objects that were left out and that nobody asked to leave out.
std::int64_t ObjectsLost(const Translation& translation) noexcept;

// "412 van 415 objecten vertaald, 3 weggelaten, 0 fouten — straat.sfn": what became of the objects that were read, and
// the output without its folder; of a run that failed the closing sentence.
Text OutcomeLine(const Translation& translation);

// What a person is told at the end: that the input was translated, or with what losses, or why it was not.
Text ClosingSentence(const Translation& translation);

}  // namespace korvande
