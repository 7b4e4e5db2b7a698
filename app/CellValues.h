#pragma once

#include "app/EditedGrid.h"

namespace korvande {

// The values that come into a grid many at a time, from another program: what the table would change is refused, so
// that nobody has to look through them.

// Whether a table has types; the column of one that has none is not shown.
bool HasTypes(const EditedGrid& edited) noexcept;

// A value as a cell of the column holds it: without the blanks around it, a type in capitals.
Text CellValue(Grid::Column column, TextView value);

// Why such a value cannot stand in the column, in one sentence; empty when it can.
Text WhyValueIsRefused(const EditedGrid& edited, Grid::Column column, TextView value);

// Whether a type, as it stands in the table, is one of those that the list offers.
bool IsKnownType(const EditedGrid& edited, TextView type);

// One message of reasons, each on a line; of many the first ones.
Text ListOfReasons(TextView heading, const std::vector<Text>& reasons);

}  // namespace korvande
