#include "app/GridRows.h"

#include <algorithm>

#include "app/GridHistory.h"
#include "app/GridView.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

constexpr int firstMovableRow = 2;

}  // namespace

bool HasCurrentRow(const EditedGrid& edited) noexcept { return edited.row >= 1 && edited.row < edited.grid.RowCount(); }

void AddRow(FormKORVANDE& form, EditedGrid& edited) {
    const int row = edited.grid.RowCount();
    Grid::Row added;
    added[Grid::Liscad] = u"999";
    ReplaceRows(edited, row, 0, {added});
    TellChanged(form);
    ShowMessage(form.screen,
                u"Liscad code '999' is onderaan de tabel toegevoegd.\n"
                u"Deze regel wijzigen naar de juiste inhoud.");
    edited.row = row;
    TellChanged(form);
}

void DeleteRow(FormKORVANDE& form, EditedGrid& edited) {
    if (!HasCurrentRow(edited)) return;
    const Text question = Concat(u"Liscad code '", edited.grid[edited.row][Grid::Liscad], u"' zal worden gewist");
    const MessageBox box{question, u"Wissen Tabelregel", Icon::None, Buttons::OkCancel};
    if (form.screen.ShowMessage(box) != Answer::Ok) return;
    const int place = PlaceOfRow(edited, edited.row);
    ReplaceRows(edited, edited.row, 1, {});
    const int last = edited.grid.RowCount() - 1;
    edited.row = last == 0 ? 0 : RowAtPlace(edited, std::min(place, last - 1));
    TellChanged(form);
}

bool CanMoveRow(const EditedGrid& edited, int step) noexcept {
    if (IsSorted(edited)) return false;
    const int target = edited.row + step;
    return std::min(edited.row, target) >= firstMovableRow && std::max(edited.row, target) < edited.grid.RowCount();
}

void MoveRow(FormKORVANDE& form, EditedGrid& edited, int step) {
    if (!CanMoveRow(edited, step)) return;
    const int upper = std::min(edited.row, edited.row + step);
    const int target = edited.row + step;
    ReplaceRows(edited, upper, 2, {edited.grid[upper + 1], edited.grid[upper]});
    edited.row = target;
    TellChanged(form);
}

}  // namespace korvande
