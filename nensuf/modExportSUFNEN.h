#pragma once

namespace korvande {

// Writes the drawing to TheRun().SufNenFileName, as NEN1878 or SUF2 by TheRun().ExportNen, and its statistics to the
// log book. With chkExportUnknowns off the unknown row of each code table becomes of type DUMMY.
//
// A file that cannot be opened is told in a message and the log book, and ends the export. An error on the way escapes
// and leaves the output open with what was written so far; both mark the output as failed in the run's outcome.
void ExportSufNen();

}  // namespace korvande
