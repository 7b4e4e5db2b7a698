#pragma once

#include "core/Text.h"
#include "project/Options.h"

namespace korvande {

// The value of an option as a person reads it; what belongs to it is told with it.
Text OptionText(const Options& options, const Option& option);

}  // namespace korvande
