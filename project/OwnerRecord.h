#pragma once

#include "core/FixedText.h"

namespace korvande {

// The data owner as NEN1878 headers carry it. Never filled until the first reset; its values survive a reset and a load
// of a file that lacks them.
struct OwnerRec {
    FixedText<35> NameLong;
    FixedText<8> NameShort;
    FixedText<24> Street;
    FixedText<5> Number;
    FixedText<5> Extra;
    FixedText<6> ZipCode;
    FixedText<24> Town;
    FixedText<5> Source;
};

OwnerRec& TheOwner() noexcept;

// The record into the owner boxes of the form, without trailing blanks, and the boxes back into the record.
void ShowOwner();
void TakeOwner();

}  // namespace korvande
