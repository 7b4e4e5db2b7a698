#pragma once

#include <optional>

#include "app/EditedGrid.h"

namespace korvande {

enum class SearchDirection { Forward, Backward };

// The next cell whose text has `wanted` in it, in any letters, from the current cell on in the order in which the grid
// is shown; behind the last cell the search goes on at the first one, and ends with the current cell. The row and the
// column; nothing when no cell has it.
std::optional<std::pair<int, int>> FindInGrid(const EditedGrid& edited, TextView wanted, SearchDirection direction);

}  // namespace korvande
