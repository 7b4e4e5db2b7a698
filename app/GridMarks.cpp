#include "app/GridMarks.h"

#include <utility>

#include "app/CellValues.h"
#include "project/CellCheck.h"

namespace korvande {

namespace {

constexpr int firstSearchedRow = 2;

// In capitals and cut to its field.
Text KeyOf(const Text& cell) { return ToCapitals(Trim(TextView(cell).substr(0, CodeKey::width))); }

// The other rows of a code: "regel 4", "regel 4 en 9", "regel 4, 9 en 12"; of many the first ones.
Text OtherRows(const std::vector<int>& rows, int row) {
    constexpr std::size_t most = 5;
    const std::size_t others = rows.size() - 1;
    Text text = u"regel ";
    std::size_t named = 0;
    for (auto one = rows.begin(); one != rows.end() && named < most; ++one) {
        if (*one == row) continue;
        if (named > 0) AppendTo(text, named + 1 < others ? u", " : u" en ");
        AppendTo(text, *one);
        ++named;
    }
    if (named < others) AppendTo(text, u" en andere");
    return text;
}

CellMark Marked(MarkKind kind, Text reason) { return {kind, std::move(reason)}; }

// Of a text that the table would cut.
std::optional<CellMark> LengthMark(const Text& cell, Grid::Column column) {
    const std::size_t width = WidthOfColumn(column);
    const TextView value = Trim(cell);
    if (value.size() <= width) return {};
    return Marked(MarkKind::Incomplete,
                  Concat(u"Te lang: hiervan worden ", width, u" tekens bewaard, '", value.substr(0, width), u"'."));
}

}  // namespace

GridMarks::GridMarks(const EditedGrid& itsEdited)
    : edited(itsEdited),
      liscadRows(RowsByCode(itsEdited.grid, Grid::Liscad)),
      lkiRows(RowsByCode(itsEdited.grid, Grid::Lki)) {}

GridMarks::RowsOfCode GridMarks::RowsByCode(const Grid& grid, Grid::Column column) {
    RowsOfCode rows;
    for (int row = firstSearchedRow; row < grid.RowCount(); ++row) rows[KeyOf(grid[row][column])].push_back(row);
    return rows;
}

std::optional<CellMark> GridMarks::At(int row, int column) const {
    if (row < 1 || row >= edited.grid.RowCount()) return {};
    switch (column) {
        case Grid::Liscad:
            return LiscadMark(row);
        case Grid::Lki:
            return LkiMark(row);
        case Grid::Type:
            return TypeMark(row);
        case Grid::Description:
            return LengthMark(edited.grid[row][Grid::Description], Grid::Description);
        default:
            return {};
    }
}

std::optional<CellMark> GridMarks::LiscadMark(int row) const {
    const Text& cell = edited.grid[row][Grid::Liscad];
    if (std::optional<CellMark> tooLong = LengthMark(cell, Grid::Liscad)) return tooLong;
    if (row < firstSearchedRow) return {};
    const Text code = KeyOf(cell);
    if (const auto found = liscadRows.find(code); found != liscadRows.end() && found->second.size() > 1) {
        const std::vector<int>& rows = found->second;
        const TextView which = row == rows.back() ? u"; deze onderste geldt." : u"; de onderste geldt.";
        const TextView what = code.empty() ? TextView(u"De lege Liscad-code") : TextView(u"Deze Liscad-code");
        return Marked(MarkKind::Duplicate, Concat(what, u" staat ook op ", OtherRows(rows, row), which));
    }
    if (!code.empty()) return {};
    return Marked(MarkKind::Remark, u"Geen Liscad-code: deze regel geldt voor objecten zonder code.");
}

std::optional<CellMark> GridMarks::LkiMark(int row) const {
    const Text& cell = edited.grid[row][Grid::Lki];
    if (std::optional<CellMark> tooLong = LengthMark(cell, Grid::Lki)) return tooLong;
    const Text code = KeyOf(cell);
    if (code.empty()) {
        if (KeyOf(edited.grid[row][Grid::Type]) == types::dummy) return {};
        return Marked(MarkKind::Incomplete, u"De LKI-code ontbreekt.");
    }
    const auto found = lkiRows.find(code);
    if (row < firstSearchedRow || found == lkiRows.end() || found->second.size() < 2) return {};
    const std::vector<int>& rows = found->second;
    const TextView which = row == rows.back() ? u"deze onderste regel." : u"de onderste regel.";
    return Marked(MarkKind::Remark,
                  Concat(u"Deze LKI-code staat ook op ", OtherRows(rows, row), u"; naar IDEX geldt ", which));
}

std::optional<CellMark> GridMarks::TypeMark(int row) const {
    if (!HasTypes(edited)) return {};
    const Text type = ToCapitals(Trim(edited.grid[row][Grid::Type]));
    if (type.empty()) return Marked(MarkKind::Incomplete, u"Het type ontbreekt.");
    if (IsKnownType(edited, type)) return {};
    return Marked(MarkKind::Incomplete, Concat(u"Het type ", type, u" bestaat niet in deze tabel."));
}

}  // namespace korvande
