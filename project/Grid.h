#pragma once

#include <array>
#include <vector>

#include "core/Text.h"
#include "project/CodeTables.h"

namespace korvande {

// A code table as a person edits it: rows of seven cells of text. Row 0 is the header; row r shows row r - 1 of the
// table.
class Grid {
 public:
    static constexpr int columns = 7;
    enum Column { Liscad, Lki, Type, Description, P, I, B };
    using Row = std::array<Text, columns>;

    explicit Grid(TextView header);

    int RowCount() const noexcept { return static_cast<int>(rows.size()); }
    void SetRowCount(int count) { rows.resize(static_cast<std::size_t>(count)); }
    Row& operator[](int row) { return rows[static_cast<std::size_t>(row)]; }
    const Row& operator[](int row) const { return rows[static_cast<std::size_t>(row)]; }
    // `count` rows from `first` on give way to others.
    void ReplaceRows(int first, int count, const std::vector<Row>& others) {
        const auto place = rows.erase(rows.begin() + first, rows.begin() + first + count);
        rows.insert(place, others.begin(), others.end());
    }

 private:
    std::vector<Row> rows;
};

inline constexpr TextView gridHeader = u"Liscad|LKI|Type|Omschrijving|P|I|B";
inline constexpr TextView textGridHeader = u"Liscad|LKI|-|Omschrijving|P|I|B";

// A table into a grid, below its header, texts without the blanks around them; and a grid into a table that is made
// anew, with all counts 0: texts are cut to their widths, of P, I and B the leading number counts.
void LoadGrid(Grid& grid, const CodeTable& table);
void SaveGrid(const Grid& grid, CodeTable& table);

// What becomes of the tables when they are shown in grids and taken back, for a front end that has no grids.
void PassThroughGrids(CodeTables& codes);

}  // namespace korvande
