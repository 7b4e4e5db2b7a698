#include "ui/ShownTable.h"

#include <wx/settings.h>

#include "app/EditedGrid.h"
#include "app/GridView.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

wxGridCellAttr* LookOf(const wxColour& background) {
    auto* const look = new wxGridCellAttr();
    const bool isDark = wxSystemSettings::GetAppearance().IsDark();
    look->SetBackgroundColour(background);
    look->SetTextColour(isDark ? *wxWHITE : *wxBLACK);
    return look;
}

// By the kind of mark.
wxColour ColourOf(MarkKind kind) {
    const bool isDark = wxSystemSettings::GetAppearance().IsDark();
    switch (kind) {
        case MarkKind::Duplicate:
            return isDark ? wxColour(122, 62, 0) : wxColour(255, 209, 160);
        case MarkKind::Incomplete:
            return isDark ? wxColour(92, 82, 0) : wxColour(255, 243, 170);
        default:
            return isDark ? wxColour(28, 58, 96) : wxColour(218, 234, 250);
    }
}

}  // namespace

ShownTable::ShownTable(const EditedGrid& itsEdited) : edited(itsEdited), shownRows(itsEdited.grid.RowCount() - 1) {
    for (const MarkKind kind : {MarkKind::Duplicate, MarkKind::Incomplete, MarkKind::Remark}) {
        looks[static_cast<std::size_t>(kind)].reset(LookOf(ColourOf(kind)));
    }
}

int ShownTable::GetNumberRows() { return edited.grid.RowCount() - 1; }

wxString ShownTable::GetValue(int place, int column) {
    return ToWx(edited.grid[RowAtPlace(edited, place)][static_cast<std::size_t>(column)]);
}

wxString ShownTable::GetColLabelValue(int column) {
    const Text& name = edited.grid[0][static_cast<std::size_t>(column)];
    if (edited.order.column != column) return ToWx(name);
    return ToWx(Concat(name, edited.order.isDescending ? u" \u25BC" : u" \u25B2"));
}

wxString ShownTable::GetRowLabelValue(int place) { return wxString::Format("%d", RowAtPlace(edited, place)); }

wxGridCellAttr* ShownTable::GetAttr(int place, int column, wxGridCellAttr::wxAttrKind kind) {
    const std::optional<CellMark> mark = MarkAt(place, column);
    if (!mark) return wxGridTableBase::GetAttr(place, column, kind);
    wxGridCellAttr* const look = looks[static_cast<std::size_t>(mark->kind)].get();
    look->IncRef();
    return look;
}

void ShownTable::RowsChanged() {
    const int added = GetNumberRows() - shownRows;
    shownRows += added;
    if (GetView() == nullptr || added == 0) return;
    if (added > 0) {
        wxGridTableMessage appended(this, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, added);
        GetView()->ProcessTableMessage(appended);
    } else {
        wxGridTableMessage deleted(this, wxGRIDTABLE_NOTIFY_ROWS_DELETED, shownRows, -added);
        GetView()->ProcessTableMessage(deleted);
    }
}

wxString ShownTable::ReasonAt(int place, int column) {
    const std::optional<CellMark> mark = MarkAt(place, column);
    return mark ? ToWx(mark->reason) : wxString();
}

std::optional<CellMark> ShownTable::MarkAt(int place, int column) {
    if (!marks || changesMarked != edited.changes) marks.emplace(edited);
    changesMarked = edited.changes;
    return marks->At(RowAtPlace(edited, place), column);
}

}  // namespace korvande
