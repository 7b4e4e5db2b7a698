#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvande::testing {

// Everything that a control table holds or touches, one "name=value" each: the form's controls, the owner record, and
// the rows of the code tables and of the grids.
std::vector<std::string> ProjectState();

// The same in one text, and the lines in which a state differs from an earlier one of the same length.
std::string ProjectStateText();
std::string Differences(const std::vector<std::string>& before, const std::vector<std::string>& after);

// A code table's rows, one per line: code|LKI|type|description|P|I|B, the texts without trailing blanks. The letter
// names the table: P, L or T.
std::string TableText(char letter);

}  // namespace korvande::testing
