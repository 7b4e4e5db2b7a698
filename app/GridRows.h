#pragma once

#include "app/EditedGrid.h"

namespace korvande {

struct FormKORVANDE;

// Rows that come, go and move.

// Whether there is a current row below the header.
bool HasCurrentRow(const EditedGrid& edited) noexcept;

// Appends a row coded 999, says so and makes it the current one.
void AddRow(FormKORVANDE& form, EditedGrid& edited);

// Removes the current row after a question.
void DeleteRow(FormKORVANDE& form, EditedGrid& edited);

// Moves the current row one up (-1) or down (1); it stays current. The first row stays where it is, for it stands for
// all codes that are not in the table; and in a sorted grid no row moves, for nobody would see where to.
bool CanMoveRow(const EditedGrid& edited, int step) noexcept;
void MoveRow(FormKORVANDE& form, EditedGrid& edited, int step);

}  // namespace korvande
