#include "app/GridHistory.h"

#include <algorithm>
#include <utility>

#include "app/EditedGrid.h"

namespace korvande {

namespace {

// The rows at the places of a sorted grid when `removed` rows from `first` on have given way to `added` others.
void AdaptOrder(std::vector<int>& places, int first, int removed, int added) {
    const int kept = std::min(removed, added);
    std::erase_if(places, [=](int row) { return row >= first + kept && row < first + removed; });
    for (int& row : places) {
        if (row >= first + removed) row += added - removed;
    }
    for (int row = first + kept; row < first + added; ++row) places.push_back(row);
}

void Splice(EditedGrid& edited, int first, const std::vector<Grid::Row>& before, const std::vector<Grid::Row>& after) {
    const int removed = static_cast<int>(before.size());
    const int added = static_cast<int>(after.size());
    edited.grid.ReplaceRows(first, removed, after);
    ++edited.changes;
    if (edited.order.column >= 0) AdaptOrder(edited.order.rows, first, removed, added);
    edited.row = std::min(edited.row, edited.grid.RowCount() - 1);
}

void GoTo(EditedGrid& edited, const RowsChange& change) {
    edited.row = std::min(change.first, edited.grid.RowCount() - 1);
    edited.column = change.column;
}

// Moves the last change of one list to the end of another, and tells it.
const RowsChange& Move(std::vector<RowsChange>& from, std::vector<RowsChange>& to) {
    to.push_back(std::move(from.back()));
    from.pop_back();
    return to.back();
}

}  // namespace

void ReplaceRows(EditedGrid& edited, int first, int count, const std::vector<Grid::Row>& rows) {
    RowsChange change{first, {}, rows, edited.column};
    for (int row = first; row < first + count; ++row) change.before.push_back(edited.grid[row]);
    if (change.before == change.after) return;
    Splice(edited, first, change.before, change.after);
    edited.history.done.push_back(std::move(change));
    edited.history.undone.clear();
}

bool CanUndo(const EditedGrid& edited) noexcept { return !edited.history.done.empty(); }

bool CanRedo(const EditedGrid& edited) noexcept { return !edited.history.undone.empty(); }

void Undo(EditedGrid& edited) {
    if (!CanUndo(edited)) return;
    const RowsChange& change = Move(edited.history.done, edited.history.undone);
    Splice(edited, change.first, change.after, change.before);
    GoTo(edited, change);
}

void Redo(EditedGrid& edited) {
    if (!CanRedo(edited)) return;
    const RowsChange& change = Move(edited.history.undone, edited.history.done);
    Splice(edited, change.first, change.before, change.after);
    GoTo(edited, change);
}

}  // namespace korvande
