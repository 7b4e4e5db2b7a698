#pragma once

#include <cstddef>

#include "core/Text.h"
#include "project/Grid.h"

namespace korvande {

// Why a control table could not give back a cell of a code table's grid as it was typed, in one sentence; empty when it
// can, after the described changes: capitals, no blanks around it, cut to its width, numbers for P, I and B. The rules
// are the same in all rows, for a row becomes the first one when those above it are deleted.
Text WhyCellIsRefused(Grid::Column column, TextView text);

// How many characters a column's field of the table holds; 0 for the numbers P, I and B.
std::size_t WidthOfColumn(Grid::Column column) noexcept;

}  // namespace korvande
