#include "ui/ShownTable.h"

#include "ui/WxText.h"

namespace korvande {

wxString ShownTable::GetValue(int row, int column) { return ToWx(Cell(row + 1, column)); }

wxString ShownTable::GetColLabelValue(int column) { return ToWx(Cell(0, column)); }

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

}  // namespace korvande
