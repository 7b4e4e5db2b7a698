#pragma once

#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

// The last row with this code; 0 when there is none.
int FindByLiscad(const Table& table, const std::string& code);
int FindByLki(const Table& table, const std::string& code);

// The same, and the row is counted.
int LookUpByLiscad(Table& table, const std::string& code);
int LookUpByLki(Table& table, const std::string& code);

}  // namespace korvande::reference
