#pragma once

#include "core/FixedText.h"

namespace korvande {

// The data owner as NEN1878 headers carry it. Never filled until the first reset; its values survive a reset and a load
// of a file that lacks them, so it lives as long as the front end, which each translation gets a copy of.
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

// Puts the defaults into a record that was never filled.
void FillOwner(OwnerRec& owner);

// A data owner without a source code gets one made from its short name or else its name, which becomes capitals itself.
void FillSource(OwnerRec& owner);

}  // namespace korvande
