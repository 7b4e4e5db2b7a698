#pragma once

namespace korvande {

// Writes the records that open a file to the run's output: 01 and 02 in SUF2; 01, 02, 07N, 07A and 07W (the owner of
// the data) in NEN1878. Both carry today's date.
void WriteExportHeader();

}  // namespace korvande
