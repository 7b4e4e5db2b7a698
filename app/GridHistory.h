#pragma once

#include <vector>

#include "project/Grid.h"

namespace korvande {

struct EditedGrid;

// The one way in which a person changes the rows of a grid, so that each change can be undone: `count` rows from
// `first` on give way to others. What changes nothing is no change. Rows that come new are last in a sorted grid.
void ReplaceRows(EditedGrid& edited, int first, int count, const std::vector<Grid::Row>& rows);

bool CanUndo(const EditedGrid& edited) noexcept;
bool CanRedo(const EditedGrid& edited) noexcept;

// Takes the last change back, or makes it again; the current cell goes where it was made. Without one nothing happens.
void Undo(EditedGrid& edited);
void Redo(EditedGrid& edited);

}  // namespace korvande
