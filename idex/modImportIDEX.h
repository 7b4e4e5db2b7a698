#pragma once

namespace korvande {

struct Translation;

// Reads the IDEX file named by the translation, or the bytes in its place, into the drawing: the header's separator,
// terminator, name and date, the layer table, and the POINTS, LINES (with their EDGES) and TEXT tables. POLYGONS are
// read over, other keywords skipped. Points may bring generated texts along, as the export options say. Afterwards two
// diagnostic files are written on drive D:, when it is there and the translation wants them.
//
// What cannot be opened is reported and ends the read; a HEADER, LAYERS or DATABASE that is missing is reported and
// ends it too. A malformed row is a run-time error, with everything read before it in the drawing.
void ReadIdexFile(Translation& translation);

}  // namespace korvande
