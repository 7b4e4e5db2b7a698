#pragma once

#include "cli/Arguments.h"

namespace korvande {

// `vertaal`: the exit status. A UsageError is thrown before anything is written.
int Translate(const TranslateOptions& options);

}  // namespace korvande
