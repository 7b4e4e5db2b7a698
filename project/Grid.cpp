#include "project/Grid.h"

#include <algorithm>

#include "core/Numbers.h"

namespace korvande {

namespace {

Grid::Row CellsOf(const CodeRow& row) {
    Grid::Row cells;
    cells[Grid::Liscad] = row.LiscadCode.Trimmed();
    cells[Grid::Lki] = row.LkiCode.Trimmed();
    cells[Grid::Type] = row.Type.Trimmed();
    cells[Grid::Description] = row.Description.Trimmed();
    cells[Grid::P] = Concat(row.P);
    cells[Grid::I] = Concat(row.I);
    cells[Grid::B] = Concat(row.B);
    return cells;
}

CodeRow RowOf(const Grid::Row& cells) {
    CodeRow row{};
    row.LiscadCode = cells[Grid::Liscad];
    row.LkiCode = cells[Grid::Lki];
    row.Type = cells[Grid::Type];
    row.Description = cells[Grid::Description];
    row.P = SmallNumberOrZero(ToWindows1252(cells[Grid::P]));
    row.I = SmallNumberOrZero(ToWindows1252(cells[Grid::I]));
    row.B = SmallNumberOrZero(ToWindows1252(cells[Grid::B]));
    return row;
}

}  // namespace

Grid::Grid(TextView header) : rows(1) {
    for (Text& cell : rows.front()) {
        const std::size_t end = std::min(header.find(u'|'), header.size());
        cell = header.substr(0, end);
        header.remove_prefix(std::min(end + 1, header.size()));
    }
}

void LoadGrid(Grid& grid, const CodeTable& table) {
    grid.SetRowCount(static_cast<int>(table.rows.size()) + 1);
    int gridRow = 1;
    for (const CodeRow& row : table.rows) grid[gridRow++] = CellsOf(row);
}

void SaveGrid(const Grid& grid, CodeTable& table) {
    table.rows.clear();
    for (int gridRow = 1; gridRow < grid.RowCount(); ++gridRow) table.rows.push_back(RowOf(grid[gridRow]));
    table.RowsChanged();
}

void PassThroughGrids(CodeTables& codes) {
    for (CodeTable* const table : {&codes.points, &codes.lines, &codes.texts}) {
        for (CodeRow& row : table->rows) row = RowOf(CellsOf(row));
        table->RowsChanged();
    }
}

}  // namespace korvande
