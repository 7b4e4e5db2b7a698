#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "app/EditedGrid.h"

namespace korvande {

// Cells of a code table that a person may want to look at, with the reason.

enum class MarkKind {
    Duplicate,   // of a LISCAD code
    Incomplete,  // something is missing, or the table would change it
    Remark       // as it may be, and good to know
};

struct CellMark {
    MarkKind kind = MarkKind::Remark;
    Text reason;
};

// The marks of a grid as it was when this was made; each is found when it is asked for, since few of a large table are
// looked at. The first row, which stands for all codes that are not in the table, is nobody's duplicate.
class GridMarks {
 public:
    explicit GridMarks(const EditedGrid& itsEdited);

    // Nothing when the cell is as it should be.
    std::optional<CellMark> At(int row, int column) const;

 private:
    // The rows of each code, as the lookups tell codes apart.
    using RowsOfCode = std::unordered_map<Text, std::vector<int>>;

    static RowsOfCode RowsByCode(const Grid& grid, Grid::Column column);
    std::optional<CellMark> LiscadMark(int row) const;
    std::optional<CellMark> LkiMark(int row) const;
    std::optional<CellMark> TypeMark(int row) const;

    const EditedGrid& edited;
    RowsOfCode liscadRows;
    RowsOfCode lkiRows;
};

}  // namespace korvande
