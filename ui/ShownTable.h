#pragma once

#include <wx/grid.h>

#include "project/Grid.h"

namespace korvande {

// The cells of a form's grid, straight from the form, as a wxGrid shows them: the header row is its column labels, and
// its row 0 the form's row 1.
class ShownTable : public wxGridTableBase {
 public:
    explicit ShownTable(const Grid& formGrid) : cells(formGrid), shownRows(formGrid.RowCount() - 1) {}

    int GetNumberRows() override { return cells.RowCount() - 1; }
    int GetNumberCols() override { return Grid::columns; }
    wxString GetValue(int row, int column) override;
    wxString GetColLabelValue(int column) override;

    // Cells are changed by the form only.
    void SetValue(int, int, const wxString&) override {}

    // Tells the wxGrid how many rows there are now.
    void RowsChanged();

 private:
    const Text& Cell(int row, int column) const { return cells[row][static_cast<std::size_t>(column)]; }

    const Grid& cells;
    int shownRows;
};

}  // namespace korvande
