#include "app/GridClipboard.h"

#include <algorithm>
#include <utility>

#include "app/CellValues.h"
#include "app/GridHistory.h"
#include "app/GridView.h"
#include "app/frmKORVANDE.h"
#include "core/Csv.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

using Cells = std::vector<std::vector<Text>>;

bool IsShown(const EditedGrid& edited, int column) { return column != Grid::Type || HasTypes(edited); }

// The columns that a person sees, from one on.
std::vector<int> ShownColumns(const EditedGrid& edited, int first, int last) {
    std::vector<int> columns;
    for (int column = first; column <= last; ++column) {
        if (IsShown(edited, column)) columns.push_back(column);
    }
    return columns;
}

// The quoted field that a text begins with; nothing when its quotes are only characters of it.
struct QuotedField {
    Text value;
    std::size_t end;  // behind the quotes
};
std::optional<QuotedField> ReadQuoted(TextView text) {
    if (!text.starts_with(u'"')) return {};
    Text value;
    std::size_t place = 1;
    while (true) {
        const std::size_t quote = text.find(u'"', place);
        if (quote == TextView::npos) return {};
        AppendTo(value, text.substr(place, quote - place));
        place = quote + 1;
        if (!text.substr(place).starts_with(u'"')) break;
        value.push_back(u'"');
        ++place;
    }
    const bool isWhole = place == text.size() || TextView(u"\t\r\n").find(text[place]) != TextView::npos;
    const bool needsQuotes = value.find_first_of(u"\t\r\n\"") != Text::npos;
    if (!isWhole || !needsQuotes) return {};
    return QuotedField{value, place};
}

Text Quoted(const Text& cell) {
    const bool isPlain = cell.find_first_of(u"\t\r\n") == Text::npos && !ReadQuoted(cell);
    return isPlain ? cell : QuoteField(cell);
}

// The line break that a text begins with: its length.
std::size_t LineBreak(TextView text) {
    if (text.starts_with(u"\r\n")) return 2;
    return text.starts_with(u'\r') || text.starts_with(u'\n') ? 1 : 0;
}

Cells CellsOf(TextView text) {
    Cells cells(1);
    while (true) {
        if (std::optional<QuotedField> quoted = ReadQuoted(text)) {
            cells.back().push_back(std::move(quoted->value));
            text.remove_prefix(quoted->end);
        } else {
            const std::size_t end = std::min(text.find_first_of(u"\t\r\n"), text.size());
            cells.back().emplace_back(text.substr(0, end));
            text.remove_prefix(end);
        }
        if (text.starts_with(u'\t')) {
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(LineBreak(text));
        if (text.empty()) return cells;
        cells.emplace_back();
    }
}

// A change of cells wherever they are, as one change of the rows between them.
class CellsChange {
 public:
    explicit CellsChange(EditedGrid& itsEdited) : edited(itsEdited), first(itsEdited.grid.RowCount()) {}

    Text& Cell(int place, int column) {
        Grid::Row& row = RowAt(place);
        return row[static_cast<std::size_t>(column)];
    }

    void Make() {
        const int present = std::min(last + 1, edited.grid.RowCount()) - first;
        if (!rows.empty()) ReplaceRows(edited, first, present, rows);
    }

 private:
    Grid::Row& RowAt(int place) {
        const bool isThere = place < edited.grid.RowCount() - 1;
        const int row = isThere ? RowAtPlace(edited, place) : place + 1;
        if (rows.empty()) {
            first = row;
            last = row - 1;
        }
        while (row < first) rows.insert(rows.begin(), edited.grid[--first]);
        while (row > last) {
            ++last;
            rows.push_back(last < edited.grid.RowCount() ? edited.grid[last] : Grid::Row());
        }
        return rows[static_cast<std::size_t>(row - first)];
    }

    EditedGrid& edited;
    std::vector<Grid::Row> rows;  // as they become
    int first;
    int last = 0;
};

// Why the cells cannot stand there, each reason with its place in the text.
std::vector<Text> Refusals(const EditedGrid& edited, const Cells& cells, const std::vector<int>& columns) {
    std::vector<Text> reasons;
    for (std::size_t line = 0; line < cells.size(); ++line) {
        if (cells[line].size() > columns.size()) {
            reasons.push_back(Concat(u"Regel ", line + 1, u": er zijn ", cells[line].size(), u" cellen; er passen er ",
                                     columns.size(), u"."));
            continue;
        }
        for (std::size_t i = 0; i < cells[line].size(); ++i) {
            const auto column = static_cast<Grid::Column>(columns[i]);
            const Text why = WhyValueIsRefused(edited, column, CellValue(column, cells[line][i]));
            if (why.empty()) continue;
            const Text& name = edited.grid[0][column];
            reasons.push_back(Concat(u"Regel ", line + 1, u", kolom ", name, u": ", why));
        }
    }
    return reasons;
}

}  // namespace

Text TextOfCells(const EditedGrid& edited, const CellBlock& block) {
    Text text;
    for (int place = block.top; place <= block.bottom; ++place) {
        const Grid::Row& row = edited.grid[RowAtPlace(edited, place)];
        bool isFirst = true;
        for (const int column : ShownColumns(edited, block.left, block.right)) {
            if (!isFirst) text.push_back(u'\t');
            isFirst = false;
            AppendTo(text, Quoted(row[static_cast<std::size_t>(column)]));
        }
        if (place < block.bottom) text.push_back(u'\n');
    }
    // The break behind the last line does not count, so an empty line needs one more.
    if (text.ends_with(u'\n')) text.push_back(u'\n');
    return text;
}

void ClearCells(FormKORVANDE& form, EditedGrid& edited, const CellBlock& block) {
    CellsChange change(edited);
    for (int place = block.top; place <= block.bottom; ++place) {
        for (const int column : ShownColumns(edited, block.left, block.right)) change.Cell(place, column).clear();
    }
    change.Make();
    TellChanged(form);
}

std::optional<CellBlock> PasteCells(FormKORVANDE& form, EditedGrid& edited, const CellBlock& block, TextView text) {
    if (text.empty()) return {};
    Cells cells = CellsOf(text);
    const std::vector<int> columns = ShownColumns(edited, block.left, Grid::columns - 1);
    const bool isOneValue = cells.size() == 1 && cells.front().size() == 1;
    if (isOneValue) {
        const std::size_t width = ShownColumns(edited, block.left, block.right).size();
        cells.assign(static_cast<std::size_t>(block.bottom - block.top) + 1,
                     std::vector<Text>(width, cells.front().front()));
    }
    const std::vector<Text> reasons = Refusals(edited, cells, columns);
    if (!reasons.empty()) {
        ShowMessage(form.screen, ListOfReasons(u"Niet geplakt.", reasons));
        return {};
    }
    CellsChange change(edited);
    CellBlock filled{block.top, block.left, block.top, block.left};
    for (std::size_t line = 0; line < cells.size(); ++line) {
        const int place = block.top + static_cast<int>(line);
        for (std::size_t i = 0; i < cells[line].size(); ++i) {
            const int column = columns[i];
            change.Cell(place, column) = CellValue(static_cast<Grid::Column>(column), cells[line][i]);
            filled.right = std::max(filled.right, column);
        }
        filled.bottom = place;
    }
    change.Make();
    TellChanged(form);
    return filled;
}

}  // namespace korvande
