#include "app/GridSearch.h"

#include <utility>

#include "app/CellValues.h"
#include "app/GridView.h"

namespace korvande {

std::optional<std::pair<int, int>> FindInGrid(const EditedGrid& edited, TextView wanted, SearchDirection direction) {
    const Text capitals = ToCapitals(wanted);
    const int cells = (edited.grid.RowCount() - 1) * Grid::columns;
    if (capitals.empty() || cells == 0) return {};
    const int step = direction == SearchDirection::Forward ? 1 : cells - 1;
    int cell = PlaceOfRow(edited, edited.row) * Grid::columns + edited.column;
    for (int i = 0; i < cells; ++i) {
        cell = (cell + step) % cells;
        const int row = RowAtPlace(edited, cell / Grid::columns);
        const int column = cell % Grid::columns;
        if (column == Grid::Type && !HasTypes(edited)) continue;
        const Text& text = edited.grid[row][static_cast<std::size_t>(column)];
        if (ToCapitals(text).find(capitals) != Text::npos) return std::pair(row, column);
    }
    return {};
}

}  // namespace korvande
