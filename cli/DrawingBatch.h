#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "cli/InputFiles.h"

namespace korvande {

// The inputs of a command that reads drawings of any format.
struct DrawingBatch {
    InputFiles inputs;
    std::size_t workers = 1;  // drawings at a time
    TextView progress;        // what is shown meanwhile; empty: nothing

    // Whether there is something to add up.
    bool IsMany() const noexcept { return inputs.hasFolders || inputs.files.size() > 1; }
};

// Looks for them. A UsageError when the report would be written over one of them, or over the control table.
DrawingBatch FindDrawings(const std::vector<std::string>& names, const BatchOptions& options,
                          const std::string& project, TextView progress);

}  // namespace korvande
