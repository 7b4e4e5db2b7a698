#pragma once

namespace korvande {

struct Translation;

// Appends to the log book what an export came to: the counts of the drawing, the codes that were met, and the unknown
// objects, or that they were left out.
void WriteExportStatistics(Translation& translation);

}  // namespace korvande
