#pragma once

#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "cli/InputFiles.h"
#include "core/Text.h"
#include "run/RunNames.h"
#include "translation/Mode.h"

namespace korvande {

// What is to be translated of the inputs that were found for the options, in their order; a UsageError when the options
// do not go together. With an output folder, what came from a folder goes into the same folders below it.
std::vector<RunNames> JobsFor(const TranslateOptions& options, Mode mode, const InputFiles& inputs);

// No run may write over an input or the control table, nor two writers over the same file: a UsageError when one would.
// `project` and `report` may be empty.
void RefuseClashes(const std::vector<RunNames>& jobs, const std::string& project, const std::string& report);

}  // namespace korvande
