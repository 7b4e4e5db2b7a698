#include "project/CodeTables.h"

#include <algorithm>
#include <bit>
#include <functional>

#include "core/modKORVANDE.h"
#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

std::int32_t Lookup(CodeTable& table, CodeLookup& lookup, const CodeKey& code) {
    if (table.rows.empty()) return 0;
    const std::int32_t row = lookup.Find(table.rows, code);
    ++table.rows[static_cast<std::size_t>(row)].Count;
    if (row == 0 && frmKORVANDE().chkExportUnknowns) {
        FixedText<8> key{};
        key.characters[0] = table.letter;
        std::copy(code.characters.begin(), code.characters.end(), key.characters.begin() + 1);
        CountUnknownCode(key);
    }
    return row;
}

std::int32_t LookupByLiscad(CodeTable& table, const CodeKey& code) { return Lookup(table, table.byLiscad, code); }

std::int32_t LookupByLki(CodeTable& table, const CodeKey& code) { return Lookup(table, table.byLki, code); }

}  // namespace

std::int32_t CodeLookup::Find(const std::vector<CodeRow>& rows, const CodeKey& key) {
    if (remembers && key == lastKey) return lastRow;
    if (slots.empty()) BuildHash(rows);
    remembers = true;
    lastKey = key;
    lastRow = slots[SlotOf(rows, key)];
    ++searches;
    return lastRow;
}

void CodeLookup::Forget() noexcept {
    slots.clear();
    remembers = false;
}

void CodeLookup::BuildHash(const std::vector<CodeRow>& rows) {
    // At most half of the slots are taken, so that a search always ends and ends soon.
    slots.assign(std::bit_ceil(2 * rows.size() + 2), 0);
    for (std::size_t row = 1; row < rows.size(); ++row) {
        slots[SlotOf(rows, rows[row].*field)] = static_cast<std::int32_t>(row);
    }
}

// The slot of the row with this code, or the free one where it would go.
std::size_t CodeLookup::SlotOf(const std::vector<CodeRow>& rows, const CodeKey& key) const noexcept {
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = std::hash<TextView>()(key.View()) & mask;
    while (slots[slot] != 0 && !(rows[static_cast<std::size_t>(slots[slot])].*field == key)) slot = (slot + 1) & mask;
    return slot;
}

void CodeTable::RowsChanged() noexcept {
    byLiscad.Forget();
    byLki.Forget();
}

CodeTable& PointCodes() {
    static CodeTable table(u'P');
    return table;
}

CodeTable& LineCodes() {
    static CodeTable table(u'L');
    return table;
}

CodeTable& TextCodes() {
    static CodeTable table(u'T');
    return table;
}

std::int32_t LookupPointByLiscadCode(const CodeKey& code) { return LookupByLiscad(PointCodes(), code); }
std::int32_t LookupLineByLiscadCode(const CodeKey& code) { return LookupByLiscad(LineCodes(), code); }
std::int32_t LookupTextByLiscadCode(const CodeKey& code) { return LookupByLiscad(TextCodes(), code); }
std::int32_t LookupPointCode(const CodeKey& lkiCode) { return LookupByLki(PointCodes(), lkiCode); }
std::int32_t LookupLineCode(const CodeKey& lkiCode) { return LookupByLki(LineCodes(), lkiCode); }
std::int32_t LookupTextCode(const CodeKey& lkiCode) { return LookupByLki(TextCodes(), lkiCode); }

}  // namespace korvande
