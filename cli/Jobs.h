#pragma once

#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

// One input with the names that belong to it.
struct Job {
    Text input;
    Text output;
    Text logBook;  // empty: none
};

// What is to be translated, in the order given; a UsageError when the options do not go together.
std::vector<Job> JobsFor(const TranslateOptions& options, const ModeNames& mode);

// No run may write over an input or the control table, nor two writers over the same file: a UsageError when one would.
void RefuseClashes(const std::vector<Job>& jobs, const std::string& project);

}  // namespace korvande
