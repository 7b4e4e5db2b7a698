#pragma once

namespace korvande {

struct Translation;

// Writes the drawing, as a NEN1878/SUF2 file filled it, to the translation's output, which is open already, and closes
// it; then appends the statistics and the overview of unknown objects to the log book. All objects go on one layer;
// points are numbered by their place in the drawing, in which nothing is changed.
void WriteIdexFile(Translation& translation);

}  // namespace korvande
