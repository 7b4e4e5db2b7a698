#pragma once

namespace korvande {

struct Translation;

// Writes the drawing as NEN1878 or SUF2, by the variant of the translation's mode, to the output that SufNenFileName
// names, and its statistics to the log book. With chkExportUnknowns off objects of an unknown code are left out. Beside
// the use counts of the code tables and the tally of unknown codes nothing of the drawing or the tables changes.
//
// A file that cannot be opened is told in a message and the log book, and ends the export. An error on the way escapes
// and leaves the output open with what was written so far; both mark the output as failed in the outcome.
void ExportSufNen(Translation& translation);

}  // namespace korvande
