#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/Grid.h"
#include "project/Project.h"

namespace korvande::testing {

// Everything that a project holds, one "name=value" each: the options, the owner record, and the rows of the code
// tables.
std::vector<std::string> ProjectState(const Project& project);

// The lines in which a state differs from an earlier one of the same length.
std::string Differences(const std::vector<std::string>& before, const std::vector<std::string>& after);

// A code table's rows, one per line: code|LKI|type|description|P|I|B, the texts without trailing blanks.
std::string TableText(const CodeTable& table);

// The cells of a grid's row, separated by "|".
std::string CellsText(const Grid::Row& row);

}  // namespace korvande::testing
