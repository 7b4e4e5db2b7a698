#pragma once

#include "translation/Mode.h"

namespace korvande {

class LineWriter;
struct OwnerRec;

// Writes the records that open a file: 01 and 02 in SUF2; 01, 02, 07N, 07A and 07W (the owner of the data) in NEN1878.
// Both carry today's date.
void WriteExportHeader(LineWriter& output, Variant variant, const OwnerRec& owner);

}  // namespace korvande
