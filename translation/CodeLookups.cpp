#include "translation/CodeLookups.h"

#include <algorithm>

namespace korvande {

namespace {

std::int32_t Counted(CodeTable& table, UnknownCodeTally* unknowns, const CodeKey& code, std::int32_t row) {
    CountLookup(table, unknowns, code, row);
    return row;
}

std::int32_t ByLiscad(CodeTable& table, UnknownCodeTally* unknowns, const CodeKey& code) {
    return Counted(table, unknowns, code, FindLiscadCode(table, code));
}

std::int32_t ByLki(CodeTable& table, UnknownCodeTally* unknowns, const CodeKey& code) {
    return Counted(table, unknowns, code, FindLkiCode(table, code));
}

}  // namespace

void CountLookup(CodeTable& table, UnknownCodeTally* unknowns, const CodeKey& code, std::int32_t row) {
    if (table.rows.empty()) return;
    CountUse(table, row);
    if (row != 0 || unknowns == nullptr) return;
    FixedText<8> key{};
    key.characters[0] = table.letter;
    std::copy(code.characters.begin(), code.characters.end(), key.characters.begin() + 1);
    CountUnknownCode(*unknowns, key);
}

std::int32_t LookupPointByLiscadCode(CodeTable& points, UnknownCodeTally* unknowns, const CodeKey& code) {
    return ByLiscad(points, unknowns, code);
}
std::int32_t LookupLineByLiscadCode(CodeTable& lines, UnknownCodeTally* unknowns, const CodeKey& code) {
    return ByLiscad(lines, unknowns, code);
}
std::int32_t LookupTextByLiscadCode(CodeTable& texts, UnknownCodeTally* unknowns, const CodeKey& code) {
    return ByLiscad(texts, unknowns, code);
}
std::int32_t LookupPointCode(CodeTable& points, UnknownCodeTally* unknowns, const CodeKey& lkiCode) {
    return ByLki(points, unknowns, lkiCode);
}
std::int32_t LookupLineCode(CodeTable& lines, UnknownCodeTally* unknowns, const CodeKey& lkiCode) {
    return ByLki(lines, unknowns, lkiCode);
}
std::int32_t LookupTextCode(CodeTable& texts, UnknownCodeTally* unknowns, const CodeKey& lkiCode) {
    return ByLki(texts, unknowns, lkiCode);
}

}  // namespace korvande
