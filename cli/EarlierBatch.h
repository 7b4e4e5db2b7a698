#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "cli/Jobs.h"
#include "cli/TranslateReport.h"

namespace korvande {

// What an earlier batch has done already, when this one is to go on with it: by its report and by the times of the
// files. It does not change.
class EarlierBatch {
 public:
    // A UsageError when the report is none.
    explicit EarlierBatch(const TranslateOptions& itsOptions);

    // The row of a job that need not be done again: it went well enough to have an output, with the same options, and
    // the output is newer than the input and the control table.
    std::optional<TranslateRow> RowOf(const RunNames& job) const;

    // A mark of all options on which outputs and log books depend.
    const Text& Mark() const noexcept { return mark; }

 private:
    Text project;
    Text mark;
    std::unordered_map<std::string, TranslateRow> rows;  // by the identity of the output
};

}  // namespace korvande
