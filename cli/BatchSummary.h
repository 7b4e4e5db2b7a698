#pragma once

#include <cstdint>
#include <vector>

#include "cli/CheckFile.h"
#include "cli/InputFiles.h"
#include "cli/TranslateReport.h"

namespace korvande {

class Problems;

// These tell on standard error what became of all inputs of a command.

// Of `vertaal`, with the rows of those that it came to.
void TellTranslated(const InputFiles& inputs, const std::vector<TranslateRow>& rows, const Problems& problems);

// Of `controleer`.
void TellChecked(const InputFiles& inputs, const std::vector<CheckedFile>& files, const Problems& problems);

// Of `geopackage`, so many of whose inputs went in.
void TellTakenOver(const InputFiles& inputs, std::int64_t takenOver, const Problems& problems);

}  // namespace korvande
