#pragma once

#include "app/EditedGrid.h"

namespace korvande {

struct FormKORVANDE;

// How a grid is looked at. A sorted grid shows its rows in another order than they have in the table, where the last
// row of a code counts; the first row, which stands for all unknown codes, always comes first. A place is that of a row
// as it is shown, from 0.

bool IsSorted(const EditedGrid& edited) noexcept;
int RowAtPlace(const EditedGrid& edited, int place) noexcept;
int PlaceOfRow(const EditedGrid& edited, int row) noexcept;

// Sorts by a column: upwards, downwards when it is sorted upwards by it already, and then not any more. Capitals and
// small letters are the same, numbers go by their value, empty cells come last. A row that is changed stays in its
// place until the grid is sorted again.
void SortByColumn(FormKORVANDE& form, EditedGrid& edited, int column);

// The rows stand in their own order again.
void EndSorting(FormKORVANDE& form, EditedGrid& edited);

// The rows take the order in which they are shown, after a question.
void KeepSortedOrder(FormKORVANDE& form, EditedGrid& edited);

}  // namespace korvande
