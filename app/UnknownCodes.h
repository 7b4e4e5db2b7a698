#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "app/EditedGrid.h"
#include "translation/Mode.h"

namespace korvande {

class UnknownCodeTally;
struct DisplayList;
struct Drawing;
struct FormKORVANDE;

// A code that a drawing had and its table has not.
struct UnknownCode {
    char16_t table = u'P';  // its letter: P, L or T
    Text code;              // empty: of objects without one
    std::int32_t count = 0;
    Text description{};  // of its first object, when that has one of its own
    Text suggestion{};   // the LKI code that it is likely to have; empty: none
    Text suggestedBy{};  // the code of the row that has it
    Text lkiCode{};      // with which it is to be added
};

// Those of a translation: by table, as the tabs stand, then by code.
struct UnknownCodes {
    Grid::Column column = Grid::Liscad;  // in which they are missing: that of LKI on the way to IDEX
    std::vector<UnknownCode> codes;
};
UnknownCodes UnknownCodesOf(const UnknownCodeTally& tally, Direction direction);

// Those of a picture, in its drawing.
UnknownCodes UnknownCodesOf(const Drawing& drawing, const DisplayList& list, Direction direction);

// Gives those of an IDEX drawing a suggestion, where a row of their grid has the description of their first object, or
// a code that differs from theirs in one character.
void Suggest(const FormKORVANDE& form, UnknownCodes& unknown);

// Whether one character added, taken away or replaced makes one text of the other.
bool AreOneEditApart(TextView one, TextView other) noexcept;

// Those that the grids have not got meanwhile.
UnknownCodes StillUnknown(const FormKORVANDE& form, const UnknownCodes& unknown);

// What the objects of a table are called.
TextView ObjectsOf(char16_t table) noexcept;

// Adds a row for each of the codes at the end of its grid, one step to be undone in each, and makes the first of them
// current there, in its first empty cell. The first grid that got one; null when there was no code.
EditedGrid* AddCodes(FormKORVANDE& form, const UnknownCodes& unknown);

}  // namespace korvande
