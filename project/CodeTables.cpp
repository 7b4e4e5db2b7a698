#include "project/CodeTables.h"

#include <bit>
#include <functional>

namespace korvande {

namespace {

// A table with its unknown row only.
void ResetTable(CodeTable& table, TextView lkiCode, TextView type, TextView description) {
    CodeRow row{};
    row.LiscadCode = u"STANDRD";
    row.LkiCode = lkiCode;
    row.Type = type;
    row.Description = description;
    table.rows.assign(1, row);
    table.RowsChanged();
}

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
    ForgetUses();
}

void CodeTable::ForgetUses() noexcept {
    for (const std::int32_t row : used) {
        if (static_cast<std::size_t>(row) < rows.size()) rows[static_cast<std::size_t>(row)].Count = 0;
    }
    used.clear();
}

std::int32_t FindLiscadCode(CodeTable& table, const CodeKey& code) {
    return table.rows.empty() ? 0 : table.byLiscad.Find(table.rows, code);
}

std::int32_t FindLkiCode(CodeTable& table, const CodeKey& lkiCode) {
    return table.rows.empty() ? 0 : table.byLki.Find(table.rows, lkiCode);
}

void CountUse(CodeTable& table, std::int32_t row, std::int32_t times) {
    if (table.rows.empty()) return;
    std::int32_t& count = table.rows[static_cast<std::size_t>(row)].Count;
    if (count == 0) table.used.push_back(row);
    count += times;
}

void ForgetUses(CodeTables& codes) noexcept {
    for (CodeTable* const table : {&codes.points, &codes.lines, &codes.texts}) table->ForgetUses();
}

void ResetCodeTables(CodeTables& codes) {
    ResetTable(codes.points, u"Q20", types::point, u"ONBEKEND PUNTOBJECT");
    ResetTable(codes.lines, u"Q00", types::line, u"ONBEKEND LIJNOBJECT");
    ResetTable(codes.texts, u"Z19", {}, u"ONBEKEND TEKSTOBJECT");
}

}  // namespace korvande
