#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "core/Text.h"

namespace korvande {

using ReportValue = std::variant<Text, std::int64_t, bool>;
using ReportRow = std::vector<ReportValue>;

// What became of the inputs of a command: a row for each, with a value in every column.
struct BatchReport {
    TextView command;
    std::vector<std::string> columns;
    std::vector<ReportRow> rows;
};

// A UsageError when no report can get this name: it ends on .csv or .json, in a folder that is there.
void RefuseReportName(TextView name);

// Writes a report, as its name says: .csv with the names of the columns in its first line, ";" between them, CR LF, and
// in UTF-8 with a byte order mark, as spreadsheets in Dutch take it; or .json with an object a row, its members named
// as the columns. False when it cannot be written, which standard error tells.
bool WriteReport(TextView name, const BatchReport& report);

// Takes the rows of a report that was written so into this one, with the columns that it has; `sample` holds a value of
// the kind of each. Nothing when there is no such file; a UsageError when it is something else.
void ReadReport(TextView name, const ReportRow& sample, BatchReport& report);

// Lines in one value: "; " stands between them.
Text InOneValue(const std::vector<Text>& lines);

}  // namespace korvande
