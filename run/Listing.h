#pragma once

#include <vector>

#include "core/Text.h"

namespace korvande {

// The log book as it is printed: pages of lines, each page beginning with its heading ("Pagina: 1" at column 35) and an
// empty line, the last ending with the end line at column 25. A page holds `linesPerPage` lines.
std::vector<std::vector<Text>> ListingPages(TextView logFileName, int linesPerPage);

// Prints the closed log book (TheRun().LogFileName) and deletes it; when printing fails, it stays, and a message names
// it.
void PrintLogBook();

}  // namespace korvande
