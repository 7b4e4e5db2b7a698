#pragma once

#include <utility>
#include <vector>

#include "core/Text.h"
#include "project/Grid.h"

namespace korvande {

// A rectangle in twips.
struct TwipsRectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// An editor control: a text box, or a drop-down list whose items are fixed.
struct CellEditor {
    bool isVisible = false;
    bool hasFocus = false;
    Text text;  // of a text box, or the chosen item of a list (empty: none)
    int selectionStart = 0;
    int selectionLength = 0;
    TwipsRectangle place;
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
};

}  // namespace korvande
