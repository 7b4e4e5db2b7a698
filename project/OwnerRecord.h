#pragma once

#include <string_view>

#include "core/FixedText.h"
#include "project/Options.h"

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

// A data owner without a source code gets one made from its name.
void FillSource(OwnerRec& owner);

// The record into the owner boxes, without trailing blanks, and the boxes back into the record.
void ShowOwner(const OwnerRec& owner, Options& options);
void TakeOwner(const Options& options, OwnerRec& owner);

// Windows-1252 bytes into the field that a box shows.
void TakeOwnerField(OwnerRec& owner, Text Options::*box, std::string_view bytes);

}  // namespace korvande
