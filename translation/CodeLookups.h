#pragma once

#include <cstdint>

#include "core/UnknownCodeTally.h"
#include "project/CodeTables.h"

namespace korvande {

// The lookups of a translation: the row of the code, 0 when it is unknown. Each adds 1 to the uses of that row and,
// when the code is unknown, to the tally of unknown codes unless that is null; a table that lost every row counts
// nothing. The first three, by LISCAD code, serve the export; the others, by LKI code, the import.
std::int32_t LookupPointByLiscadCode(CodeTable& points, UnknownCodeTally* unknowns, const CodeKey& code);
std::int32_t LookupLineByLiscadCode(CodeTable& lines, UnknownCodeTally* unknowns, const CodeKey& code);
std::int32_t LookupTextByLiscadCode(CodeTable& texts, UnknownCodeTally* unknowns, const CodeKey& code);
std::int32_t LookupPointCode(CodeTable& points, UnknownCodeTally* unknowns, const CodeKey& lkiCode);
std::int32_t LookupLineCode(CodeTable& lines, UnknownCodeTally* unknowns, const CodeKey& lkiCode);
std::int32_t LookupTextCode(CodeTable& texts, UnknownCodeTally* unknowns, const CodeKey& lkiCode);

// The same additions for a code whose row is known from a lookup before.
void CountLookup(CodeTable& table, UnknownCodeTally* unknowns, const CodeKey& code, std::int32_t row);

}  // namespace korvande
