#pragma once

#include <vector>

#include "core/Text.h"

namespace korvande {

// A text of fields with a separator between them, a line for each row; a field may stand in double quotes, in which a
// doubled quote is one and line breaks are characters.

struct CsvLine {
    int number = 1;  // of its first line in the file
    std::vector<Text> fields;
};

struct CsvText {
    std::vector<CsvLine> lines;
    Text error;  // with its line, when it is no such text; then what was read before it
};

// Lines with nothing in them are left out.
CsvText ReadCsv(TextView text, char16_t separator);

// A text in double quotes, its own doubled.
Text QuoteField(TextView value);

// A field as it stands in such a text.
Text CsvField(TextView value, char16_t separator);

}  // namespace korvande
