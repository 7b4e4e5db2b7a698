#pragma once

#include <optional>

#include "app/EditedGrid.h"

namespace korvande {

struct FormKORVANDE;

// Cells as other programs exchange them: the cells of a row separated by tabs, a line for each row. A cell that holds a
// tab or a line break stands in double quotes, and so does one that could be taken for such a cell.

// A block of cells: places of rows as they are shown, from 0, and columns, all of them included.
struct CellBlock {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
};

Text TextOfCells(const EditedGrid& edited, const CellBlock& block);

// Empties the cells.
void ClearCells(FormKORVANDE& form, EditedGrid& edited, const CellBlock& block);

// Puts a text's cells into the grid from the block's first cell on; rows that are missing are added. A single value
// fills the whole block. When one of them cannot stand where it would go, a message tells so and nothing is changed.
// The cells that were filled.
std::optional<CellBlock> PasteCells(FormKORVANDE& form, EditedGrid& edited, const CellBlock& block, TextView text);

}  // namespace korvande
