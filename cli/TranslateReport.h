#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"

namespace korvande {

// What became of one input of `vertaal`, as a row of its report. Counts are of objects.
struct TranslateRow {
    Text input;
    Text output;
    Text logBook;
    std::int64_t status = 0;  // the exit status, had it been the only one
    bool isSkipped = false;   // done by an earlier batch, whose row this is
    std::int64_t read = 0;
    std::int64_t written = 0;
    std::int64_t leftOut = 0;
    std::int64_t unknown = 0;
    std::int64_t errors = 0;
    Text problems;  // why it failed, and the lines of what did not come across
    Text options;   // a mark of the options it was translated with
};

// As WriteReport and ReadReport.
bool WriteTranslateReport(TextView name, const std::vector<TranslateRow>& rows);
std::vector<TranslateRow> ReadTranslateReport(TextView name);

}  // namespace korvande
