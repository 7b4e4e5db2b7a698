#pragma once

#include <vector>

#include "core/Text.h"

namespace korvande {

class Screen;

// A log book's lines as they are printed: pages of lines, each page beginning with its heading ("Pagina: 1" at column
// 35) and an empty line, the last ending with an empty line and the end line at column 25. `linesPerPage` is what a
// printer's page holds; a page is full one line before, so that the two end lines always find room.
std::vector<std::vector<Text>> ListingPages(const std::vector<Text>& lines, int linesPerPage);

// Prints the closed log book of this name and deletes it; when printing fails, it stays, and a message names it.
void PrintLogBook(Screen& screen, const Text& name);

}  // namespace korvande
