#pragma once

#include "core/Text.h"

namespace korvande {

struct Translation;

// Where the output is written until it is finished; empty: in its own place, because it is no regular file, or because
// it may not be written, so that opening it tells why.
Text TemporaryNameFor(const Text& output);

// Lets the finished output take the place of an earlier one, which until then stayed as it was; what a translation that
// failed has written is deleted.
void PutInPlace(Translation& translation);

}  // namespace korvande
