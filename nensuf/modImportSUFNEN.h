#pragma once

namespace korvande {

struct Translation;

// Reads the NEN1878 or SUF2 drawing that SufNenFileName names into the translation's drawing, beginning in the variant
// of its mode; the answers to its questions about the format may change the variant for the rest of this import. Opens
// the output, IdexFileName, for the IDEX writer. Sets the project's name and date.
//
// A file that cannot be opened is reported, and the import goes on without it. A missing 01 or 02 record, or Cancel at
// a question, ends it with a message; what was imported until then stays in the drawing.
void ImportNenSuf(Translation& translation);

}  // namespace korvande
