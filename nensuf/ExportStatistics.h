#pragma once

namespace korvande {

// Appends to the log book what an export came to: the counts of the drawing, the codes that were met, and the unknown
// objects, or that they were left out.
void WriteExportStatistics();

}  // namespace korvande
