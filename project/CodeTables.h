#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/FixedText.h"

// The code tables: LISCAD codes to LKI codes and back, one table each for points, lines and texts.
namespace korvande {

struct CodeRow {
    std::int32_t Count;  // lookups of the current run that ended on this row
    FixedText<7> LiscadCode;
    FixedText<7> LkiCode;
    FixedText<7> Type;  // not used in the texts table
    FixedText<43> Description;
    std::int16_t P;
    std::int16_t I;
    std::int16_t B;
};
using PointCodeRow = CodeRow;
using LineCodeRow = CodeRow;
using TextCodeRow = CodeRow;

using CodeKey = FixedText<7>;

// The type words that a translation interprets.
namespace types {
inline constexpr TextView point = u"PUNT";
inline constexpr TextView rotatedPoint = u"ROT.PNT";
inline constexpr TextView symbol = u"SYMBOOL";
inline constexpr TextView controlPoint = u"GRONDSL";
inline constexpr TextView line = u"LIJN";
inline constexpr TextView boundary = u"GRENS";
inline constexpr TextView dummy = u"DUMMY";
}  // namespace types

// Finds rows by one of their two codes. Of rows with the same code the lowest in the table (the last) is found; row 0,
// the unknown row, is never searched and is the answer when nothing matches. A one-entry memory answers a code asked
// twice in a row; other codes go through a hash of the table.
class CodeLookup {
 public:
    explicit CodeLookup(FixedText<7> CodeRow::*codeField) : field(codeField) {}

    std::int32_t Find(const std::vector<CodeRow>& rows, const CodeKey& key);

    // Forgets the memory and the hash: the table has changed.
    void Forget() noexcept;

    // How many searches were made, for the memory answers without one.
    std::int64_t SearchCount() const noexcept { return searches; }

 private:
    void BuildHash(const std::vector<CodeRow>& rows);
    std::size_t SlotOf(const std::vector<CodeRow>& rows, const CodeKey& key) const noexcept;

    FixedText<7> CodeRow::*field;
    std::vector<std::int32_t> slots;  // row numbers; 0: free
    bool remembers = false;
    CodeKey lastKey{};
    std::int32_t lastRow = 0;
    std::int64_t searches = 0;
};

// One of the three tables: its letter in the tally of unknown codes ("P", "L" or "T") and its rows, row 0 the unknown
// row.
struct CodeTable {
    explicit CodeTable(char16_t tableLetter) : letter(tableLetter) {}

    char16_t letter;
    std::vector<CodeRow> rows;
    CodeLookup byLiscad{&CodeRow::LiscadCode};
    CodeLookup byLki{&CodeRow::LkiCode};
    std::vector<std::int32_t> used;  // the rows whose Count is not 0, so that no large table is gone through for a few

    // Forgets the lookups' memories and the uses; to be called whenever rows or their codes changed.
    void RowsChanged() noexcept;

    // Every row as not yet used.
    void ForgetUses() noexcept;
};

// The three tables of a project.
struct CodeTables {
    CodeTable points{u'P'};
    CodeTable lines{u'L'};
    CodeTable texts{u'T'};
};

// Looking up: the row of a code, 0 when it is unknown or the table lost every row. Nothing is counted.
std::int32_t FindLiscadCode(CodeTable& table, const CodeKey& code);
std::int32_t FindLkiCode(CodeTable& table, const CodeKey& lkiCode);

// Counting: adds to the uses of a row. A table that lost every row counts nothing.
void CountUse(CodeTable& table, std::int32_t row, std::int32_t times = 1);

// Every row as not yet used.
void ForgetUses(CodeTables& codes) noexcept;

// Each table with its unknown row only.
void ResetCodeTables(CodeTables& codes);

}  // namespace korvande
