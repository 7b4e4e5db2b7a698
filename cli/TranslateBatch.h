#pragma once

#include <cstddef>
#include <vector>

#include "cli/Arguments.h"
#include "cli/InputFiles.h"
#include "cli/Jobs.h"
#include "translation/Mode.h"

namespace korvande {

class JsonDocument;
struct Project;

struct Batch {
    InputFiles inputs;
    std::vector<RunNames> jobs;
    std::size_t workers = 1;  // translations at a time
};

// Translates all jobs, and writes the report when one is wanted; the exit status. What is left behind and told, and its
// order, is the same for any number of workers. With several jobs, or a folder, the account of all of them is told at
// the end, and a job that fails keeps none of the others back.
int TranslateBatch(const Batch& batch, const Project& project, Mode mode, const TranslateOptions& options,
                   const JsonDocument& document);

}  // namespace korvande
