#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "core/Text.h"
#include "project/Grid.h"

namespace korvande {

// An editor control: a text box, or a drop-down list whose items are fixed.
struct CellEditor {
    bool isVisible = false;
    bool hasFocus = false;
    Text text;  // of a text box, or the chosen item of a list (empty: none)
    int selectionStart = 0;
    int selectionLength = 0;
};

// A change of a grid: from row `first` on, the rows before gave way to the rows after.
struct RowsChange {
    int first = 0;
    std::vector<Grid::Row> before;
    std::vector<Grid::Row> after;
    int column = 0;  // the current one at the time
};

// What was changed in a grid since it was loaded, and what of it was taken back; the latest last.
struct GridHistory {
    std::vector<RowsChange> done;
    std::vector<RowsChange> undone;
};

// The order in which a grid is looked at, which is not that of its rows when it was sorted.
struct GridOrder {
    int column = -1;  // by which it is sorted; -1: the rows' own order
    bool isDescending = false;
    std::vector<int> rows;  // the row at each place; empty in the rows' own order
};

// A grid with its editors, as the window has one on each of the code table tabs: the first cell current, no edit.
struct EditedGrid {
    explicit EditedGrid(Grid& itsGrid, std::vector<Text> items = {}) : grid(itsGrid), listItems(std::move(items)) {}

    Grid& grid;
    std::vector<Text> listItems;  // empty: the grid has no list editor
    CellEditor textEditor;
    CellEditor listEditor;
    int row = 1;  // the current cell; row 0 is the header, current in a grid without other rows
    int column = 0;
    bool gridHasFocus = false;
    std::uint64_t changes = 0;  // how often the rows became others
    GridHistory history;
    GridOrder order;
};

}  // namespace korvande
