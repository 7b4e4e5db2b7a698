#pragma once

#include <wx/grid.h>

#include <array>
#include <cstdint>
#include <optional>

#include "app/GridMarks.h"

namespace korvande {

struct EditedGrid;

// The cells of a form's grid, straight from the form, as a wxGrid shows them: the header row is its column labels, its
// rows are those of the form in the order in which they are looked at, each with its number, and marked cells have a
// colour of their own.
class ShownTable : public wxGridTableBase {
 public:
    explicit ShownTable(const EditedGrid& itsEdited);
    ShownTable(const ShownTable&) = delete;
    ShownTable& operator=(const ShownTable&) = delete;
    ~ShownTable() override = default;

    int GetNumberRows() override;
    int GetNumberCols() override { return Grid::columns; }
    wxString GetValue(int place, int column) override;
    wxString GetColLabelValue(int column) override;
    wxString GetRowLabelValue(int place) override;
    wxGridCellAttr* GetAttr(int place, int column, wxGridCellAttr::wxAttrKind kind) override;

    // Cells are changed by the form only.
    void SetValue(int, int, const wxString&) override {}

    // The form's cells have changed: tells the wxGrid how many rows there are now.
    void RowsChanged();

    // Why a cell is marked; empty when it is not.
    wxString ReasonAt(int place, int column);

 private:
    std::optional<CellMark> MarkAt(int place, int column);

    const EditedGrid& edited;
    int shownRows;
    std::optional<GridMarks> marks;
    std::uint64_t changesMarked = 0;                       // the changes of the grid up to which the marks are known
    std::array<wxObjectDataPtr<wxGridCellAttr>, 3> looks;  // of the kinds of marks
};

}  // namespace korvande
