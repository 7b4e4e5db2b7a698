#include "app/UnknownCodes.h"

#include <algorithm>
#include <unordered_set>

#include "app/GridHistory.h"
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

}  // namespace

UnknownCodes UnknownCodesOf(const UnknownCodeTally& tally, Direction direction) {
    UnknownCodes unknown;
    unknown.column = direction == Direction::ToIdex ? Grid::Lki : Grid::Liscad;
    for (const UnknownCodeRec& entry : tally.Entries()) {
        unknown.codes.push_back({entry.Code.View().front(), CodeOf(entry), entry.Count});
    }
    std::sort(unknown.codes.begin(), unknown.codes.end(), [](const UnknownCode& one, const UnknownCode& other) {
        const std::size_t table = tables.find(one.table);
        const std::size_t otherTable = tables.find(other.table);
        return table != otherTable ? table < otherTable : one.code < other.code;
    });
    return unknown;
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
