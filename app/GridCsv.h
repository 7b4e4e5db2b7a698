#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/EditedGrid.h"

namespace korvande {

// A code table as a CSV file: a header row with the names of the grid's columns, then its rows. The type of texts,
// which have none, is no column of theirs.

struct CsvForm {
    char16_t separator = u';';
    bool isUtf8 = true;  // with a byte order mark; otherwise Windows-1252
};

// Nothing when the form lacks a character of the table; the errors tell which.
std::string CsvOfGrid(const EditedGrid& edited, const CsvForm& form, std::vector<Text>& errors);

struct CsvRows {
    std::vector<Grid::Row> rows;
    int emptyRows = 0;         // that were left out
    std::vector<Text> errors;  // with their lines; then the rows are not to be used
};

// Fields are separated by semicolons, commas or tabs. The bytes are UTF-8 when they begin with its mark or are valid as
// such, else Windows-1252. With a header row the columns may stand in any order; without one they stand as the grid's.
// What the table could not hold as it stands is an error.
CsvRows ReadGridCsv(const EditedGrid& edited, std::string_view bytes);

}  // namespace korvande
