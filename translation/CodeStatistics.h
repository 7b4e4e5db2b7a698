#pragma once

#include "core/Text.h"

namespace korvande {

struct CodeTables;
class LogBook;

// Which code tables get the word "GEEN" below their heading.
enum class NoneFor { TablesWithoutRows, TablesWithoutUsedRows };

// Appends to the log book, for the lines, the points and the texts, an empty line, a heading of this participle and
// the kind of object, and a line per row that lookups have ended on: LISCAD code, description and how often.
void WriteCodeStatistics(LogBook& log, const CodeTables& codes, TextView participle, NoneFor noneFor);

}  // namespace korvande
