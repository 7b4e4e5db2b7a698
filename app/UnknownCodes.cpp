#include "app/UnknownCodes.h"

#include <algorithm>
#include <unordered_set>

#include "app/GridHistory.h"
#include "app/PreviewCodes.h"
#include "app/frmKORVANDE.h"
#include "core/UnknownCodeTally.h"

namespace korvande {

namespace {

constexpr TextView tables = u"PLT";

// The grid of a table, in a form or in one that stays as it is.
template <class Form>
auto& GridOf(Form& form, char16_t table) {
    if (table == u'L') return form.editedLines;
    return table == u'T' ? form.editedTexts : form.editedPoints;
}

Text CodeOf(const UnknownCodeRec& entry) {
    // An object that never got a code has one of NUL characters.
    Text code(entry.Code.View().substr(1));
    std::erase(code, u'\0');
    return Text(Trim(code));
}

// The codes that a lookup in the grid finds: those of the first row are never searched.
std::unordered_set<Text> CodesOf(const Grid& grid, Grid::Column column) {
    std::unordered_set<Text> codes;
    for (int row = 2; row < grid.RowCount(); ++row) {
        codes.emplace(Trim(TextView(grid[row][column]).substr(0, CodeKey::width)));
    }
    return codes;
}

void Sort(std::vector<UnknownCode>& codes) {
    std::sort(codes.begin(), codes.end(), [](const UnknownCode& one, const UnknownCode& other) {
        const std::size_t table = tables.find(one.table);
        const std::size_t otherTable = tables.find(other.table);
        return table != otherTable ? table < otherTable : one.code < other.code;
    });
}

// The row of a grid that a code is likely to belong with; null when none is. The first row is that of unknown codes.
const Grid::Row* LikelyRow(const Grid& grid, const UnknownCode& code) {
    constexpr std::size_t shortest = 3;  // of a code: shorter ones are near too many others
    const Text description = ToCapitals(Trim(TextView(code.description)));
    const Grid::Row* near = nullptr;
    for (int row = 2; row < grid.RowCount(); ++row) {
        if (Trim(TextView(grid[row][Grid::Lki])).empty()) continue;
        const TextView itsCode = Trim(TextView(grid[row][Grid::Liscad]));
        if (!description.empty() && ToCapitals(Trim(TextView(grid[row][Grid::Description]))) == description) {
            return &grid[row];
        }
        const bool isNear = code.code.size() >= shortest && AreOneEditApart(itsCode, code.code);
        if (near == nullptr && isNear) near = &grid[row];
    }
    return near;
}

}  // namespace

UnknownCodes UnknownCodesOf(const UnknownCodeTally& tally, Direction direction) {
    UnknownCodes unknown;
    unknown.column = direction == Direction::ToIdex ? Grid::Lki : Grid::Liscad;
    for (const UnknownCodeRec& entry : tally.Entries()) {
        unknown.codes.push_back({entry.Code.View().front(), CodeOf(entry), entry.Count});
    }
    Sort(unknown.codes);
    return unknown;
}

UnknownCodes UnknownCodesOf(const Drawing& drawing, const DisplayList& list, Direction direction) {
    UnknownCodes unknown;
    unknown.column = direction == Direction::ToIdex ? Grid::Lki : Grid::Liscad;
    const PreviewCodes codes(list);
    for (std::size_t row = 0; row < codes.Count() && !codes.CodeAt(row).isKnown; ++row) {
        const PictureCode& code = codes.CodeAt(row);
        UnknownCode entry{code.table, code.code, code.count};
        const std::optional<PictureRef> first = codes.NextOf(row, {});
        if (first && code.table != u'T') entry.description = Describe(drawing, list, *first).description;
        unknown.codes.push_back(std::move(entry));
    }
    Sort(unknown.codes);
    return unknown;
}

bool AreOneEditApart(TextView one, TextView other) noexcept {
    if (one.size() > other.size()) std::swap(one, other);
    if (other.size() - one.size() > 1 || one == other) return false;
    const auto [first, second] = std::mismatch(one.begin(), one.end(), other.begin());
    const auto rest = static_cast<std::size_t>(second - other.begin()) + 1;
    const std::size_t restOfOne = one.size() == other.size() ? rest : rest - 1;
    return one.substr(restOfOne) == other.substr(rest);
}

void Suggest(const FormKORVANDE& form, UnknownCodes& unknown) {
    if (unknown.column != Grid::Liscad) return;
    for (UnknownCode& code : unknown.codes) {
        const Grid& grid = GridOf(form, code.table).grid;
        const Grid::Row* const row = LikelyRow(grid, code);
        if (row == nullptr) continue;
        code.suggestion = Trim((*row)[Grid::Lki]);
        code.suggestedBy = Trim((*row)[Grid::Liscad]);
    }
}

UnknownCodes StillUnknown(const FormKORVANDE& form, const UnknownCodes& unknown) {
    UnknownCodes still{unknown.column, {}};
    for (const char16_t table : tables) {
        const std::unordered_set<Text> known = CodesOf(GridOf(form, table).grid, unknown.column);
        std::copy_if(unknown.codes.begin(), unknown.codes.end(), std::back_inserter(still.codes),
                     [&](const UnknownCode& code) { return code.table == table && !known.contains(code.code); });
    }
    return still;
}

TextView ObjectsOf(char16_t table) noexcept {
    if (table == u'L') return u"Lijnobject";
    return table == u'T' ? u"Tekstobject" : u"Puntobject";
}

EditedGrid* AddCodes(FormKORVANDE& form, const UnknownCodes& unknown) {
    EditedGrid* firstGrid = nullptr;
    for (const char16_t table : tables) {
        EditedGrid& edited = GridOf(form, table);
        std::vector<Grid::Row> rows;
        for (const UnknownCode& code : unknown.codes) {
            if (code.table != table) continue;
            rows.emplace_back();
            rows.back()[unknown.column] = code.code;
            if (unknown.column == Grid::Liscad) rows.back()[Grid::Lki] = code.lkiCode;
        }
        if (rows.empty()) continue;
        const int first = edited.grid.RowCount();
        ReplaceRows(edited, first, 0, rows);
        edited.row = first;
        edited.column = unknown.column == Grid::Liscad ? Grid::Lki : Grid::Liscad;
        if (firstGrid == nullptr) firstGrid = &edited;
    }
    if (firstGrid != nullptr) TellChanged(form);
    return firstGrid;
}

}  // namespace korvande
