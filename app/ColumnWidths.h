#pragma once

#include <array>

#include "core/Text.h"
#include "project/Grid.h"

namespace korvande {

// The widths of a grid's columns, in device-independent pixels; 0: a person did not choose one.
using ColumnWidths = std::array<int, Grid::columns>;

// What is kept of them per user, under the grid's name.
ColumnWidths RememberedWidths(TextView grid);
void RememberWidths(TextView grid, const ColumnWidths& widths);

// The widths in a room: those that were chosen, for the others the least that they need; the description takes what is
// left when it has no chosen one.
ColumnWidths WidthsInRoom(const ColumnWidths& chosen, const ColumnWidths& least, int room);

}  // namespace korvande
