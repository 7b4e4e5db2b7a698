#include "app/GridMarks.h"

#include "tests/app/GridEditingTest.h"

// What is doubtful in a table is said at the cell.
namespace korvande::testing {

namespace {

class GridMarksTest : public GridEditing {
 protected:
    static void Add(EditedGrid& edited, TextView liscad, TextView lki, TextView type) {
        Grid::Row row;
        row[Grid::Liscad] = liscad;
        row[Grid::Lki] = lki;
        row[Grid::Type] = type;
        edited.grid.ReplaceRows(edited.grid.RowCount(), 0, {row});
    }

    // "row/column/kind: reason", a line each.
    static std::vector<std::string> Marks(const EditedGrid& edited) {
        constexpr const char* kinds[] = {"dubbel", "onvolledig", "opmerking"};
        std::vector<std::string> marks;
        const GridMarks found(edited);
        for (int row = 0; row < edited.grid.RowCount(); ++row) {
            for (int column = 0; column < Grid::columns; ++column) {
                const std::optional<CellMark> mark = found.At(row, column);
                if (!mark) continue;
                marks.push_back(std::to_string(row) + " " + ToUtf8(edited.grid[0][static_cast<std::size_t>(column)]) +
                                " " + kinds[static_cast<int>(mark->kind)] + ": " + ToUtf8(mark->reason));
            }
        }
        return marks;
    }

    using Lines = std::vector<std::string>;
    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridMarksTest, ATableWithoutDoubtHasNone) {
    Add(edited, u"BOOM", u"Q21", u"PUNT");
    Add(edited, u"PAAL", u"Q22", u"GRONDSL");
    EXPECT_EQ(Marks(edited), Lines());
}

TEST_F(GridMarksTest, CodesThatOccurTwiceAreMarkedInAnyLetters) {
    Add(edited, u"BOOM", u"Q21", u"PUNT");
    Add(edited, u" boom", u"Q22", u"PUNT");
    EXPECT_EQ(Marks(edited), (Lines{"2 Liscad dubbel: Deze Liscad-code staat ook op regel 3; de onderste geldt.",
                                    "3 Liscad dubbel: Deze Liscad-code staat ook op regel 2; deze onderste geldt."}));
}

TEST_F(GridMarksTest, TheFirstRowStandsForUnknownCodesAndIsNoDuplicate) {
    Add(edited, u"STANDRD", u"Q20", u"PUNT");
    EXPECT_EQ(Marks(edited), Lines());
}

TEST_F(GridMarksTest, SharedLkiCodesAreOnlyRemarkedUpon) {
    Add(edited, u"A", u"Q21", u"PUNT");
    Add(edited, u"B", u"Q21", u"PUNT");
    Add(edited, u"C", u"Q21", u"PUNT");
    EXPECT_EQ(
        Marks(edited),
        (Lines{"2 LKI opmerking: Deze LKI-code staat ook op regel 3 en 4; naar IDEX geldt de onderste regel.",
               "3 LKI opmerking: Deze LKI-code staat ook op regel 2 en 4; naar IDEX geldt de onderste regel.",
               "4 LKI opmerking: Deze LKI-code staat ook op regel 2 en 3; naar IDEX geldt deze onderste regel."}));
}

TEST_F(GridMarksTest, OfManyRowsTheFirstAreNamed) {
    for (int i = 0; i < 8; ++i) Add(edited, u"A", Concat(u"Q2", i), u"PUNT");
    EXPECT_EQ(Marks(edited).back(),
              "9 Liscad dubbel: Deze Liscad-code staat ook op regel 2, 3, 4, 5, 6 en andere; deze onderste geldt.");
}

TEST_F(GridMarksTest, WhatIsMissingIsMarked) {
    Add(edited, u"", u"", u"");
    Add(edited, u"HULP", u"", u"DUMMY");
    EXPECT_EQ(Marks(edited),
              (Lines{"2 Liscad opmerking: Geen Liscad-code: deze regel geldt voor objecten zonder code.",
                     "2 LKI onvolledig: De LKI-code ontbreekt.", "2 Type onvolledig: Het type ontbreekt."}));
}

TEST_F(GridMarksTest, TextsHaveNoTypeThatCouldBeMissing) {
    Add(form.editedTexts, u"NAAM", u"Z01", u"");
    EXPECT_EQ(Marks(form.editedTexts), Lines());
}

TEST_F(GridMarksTest, WhatTheTableWouldChangeIsMarked) {
    Add(edited, u"LANTAARNPAAL", u"Q21", u"LIJN");
    EXPECT_EQ(Marks(edited), (Lines{"2 Liscad onvolledig: Te lang: hiervan worden 7 tekens bewaard, 'LANTAAR'.",
                                    "2 Type onvolledig: Het type LIJN bestaat niet in deze tabel."}));
}

TEST_F(GridMarksTest, TwentyThousandRowsOfOneCodeAreNoBurden) {
    std::vector<Grid::Row> rows(20000);
    for (Grid::Row& row : rows) row[Grid::Liscad] = row[Grid::Lki] = u"A";
    edited.grid.ReplaceRows(2, 0, rows);
    const GridMarks marks(edited);
    for (int row = 2; row < edited.grid.RowCount(); ++row) ASSERT_TRUE(marks.At(row, Grid::Liscad)) << row;
    EXPECT_FALSE(marks.At(edited.grid.RowCount(), Grid::Liscad));
}

}  // namespace

}  // namespace korvande::testing
