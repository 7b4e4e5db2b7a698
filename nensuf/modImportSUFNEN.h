#pragma once

namespace korvande {

// Reads the NEN1878 or SUF2 file named by TheRun().SufNenFileName into the drawing, beginning in the variant of
// TheRun().NenMode, which the answers to its questions about the format may change. Opens the output,
// TheRun().IdexFileName, for the IDEX writer. Sets the project's name and date.
//
// A file that cannot be opened is reported, and the import goes on without it. A missing 01 or 02 record, or Cancel at
// a question, ends it with a message; what was imported until then stays in the drawing.
void ImportNenSuf();

}  // namespace korvande
