#include "app/GridView.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "app/GridHistory.h"
#include "app/frmKORVANDE.h"
#include "core/Numbers.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

// What a cell is sorted by.
struct SortKey {
    bool isEmpty;
    int number;
    Text text;
};

SortKey KeyOf(const Text& cell, int column) {
    const Text text = ToCapitals(Trim(cell));
    const bool isNumber = column >= Grid::P;
    return {text.empty(), isNumber ? SmallNumberOrZero(ToWindows1252(text)) : 0, isNumber ? Text() : text};
}

std::vector<int> SortedRows(const Grid& grid, int column, bool isDescending) {
    std::vector<SortKey> rowKeys;
    rowKeys.reserve(static_cast<std::size_t>(grid.RowCount()));
    for (int row = 0; row < grid.RowCount(); ++row) {
        rowKeys.push_back(KeyOf(grid[row][static_cast<std::size_t>(column)], column));
    }
    std::vector<int> rows(rowKeys.size() - 1);
    std::iota(rows.begin(), rows.end(), 1);
    std::stable_sort(rows.begin() + 1, rows.end(), [&rowKeys, isDescending](int a, int b) {
        const SortKey& left = rowKeys[static_cast<std::size_t>(a)];
        const SortKey& right = rowKeys[static_cast<std::size_t>(b)];
        if (left.isEmpty || right.isEmpty) return !left.isEmpty && right.isEmpty;
        const auto lower = [](const SortKey& one, const SortKey& other) {
            return one.number != other.number ? one.number < other.number : one.text < other.text;
        };
        return isDescending ? lower(right, left) : lower(left, right);
    });
    return rows;
}

}  // namespace

bool IsSorted(const EditedGrid& edited) noexcept { return edited.order.column >= 0; }

int RowAtPlace(const EditedGrid& edited, int place) noexcept {
    const auto& rows = edited.order.rows;
    const auto index = static_cast<std::size_t>(place);
    return IsSorted(edited) && index < rows.size() ? rows[index] : place + 1;
}

int PlaceOfRow(const EditedGrid& edited, int row) noexcept {
    if (!IsSorted(edited)) return row - 1;
    const auto& rows = edited.order.rows;
    const auto place = std::find(rows.begin(), rows.end(), row);
    return place == rows.end() ? row - 1 : static_cast<int>(place - rows.begin());
}

void SortByColumn(FormKORVANDE& form, EditedGrid& edited, int column) {
    GridOrder& order = edited.order;
    const bool isAgain = order.column == column;
    if ((isAgain && order.isDescending) || edited.grid.RowCount() <= 1) {
        order = {};
    } else {
        order = {column, isAgain, SortedRows(edited.grid, column, isAgain)};
    }
    TellChanged(form);
}

void EndSorting(FormKORVANDE& form, EditedGrid& edited) {
    edited.order = {};
    TellChanged(form);
}

void KeepSortedOrder(FormKORVANDE& form, EditedGrid& edited) {
    if (!IsSorted(edited)) return;
    const Text question =
        Concat(u"De regels van de tabel krijgen de volgorde waarin ze nu staan, gesorteerd op ",
               edited.grid[0][static_cast<std::size_t>(edited.order.column)],
               u".\nVan een code die vaker in de tabel staat, kan daardoor een andere regel gaan gelden.\n\n"
               u"Volgorde vastleggen?");
    if (form.screen.ShowMessage({question, {}, Icon::Question, Buttons::YesNo}) != Answer::Yes) return;
    const GridOrder order = std::exchange(edited.order, {});
    std::vector<Grid::Row> rows;
    for (const int row : order.rows) rows.push_back(edited.grid[row]);
    const auto current = std::find(order.rows.begin(), order.rows.end(), edited.row);
    ReplaceRows(edited, 1, edited.grid.RowCount() - 1, rows);
    if (current != order.rows.end()) edited.row = static_cast<int>(current - order.rows.begin()) + 1;
    TellChanged(form);
}

}  // namespace korvande
