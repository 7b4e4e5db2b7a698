#include "app/GridView.h"

#include "app/GridHistory.h"
#include "app/GridRows.h"
#include "tests/app/GridEditingTest.h"

// Sorting is a way of looking; rows move only when a person says so.
namespace korvande::testing {

namespace {

class GridViewTest : public GridEditing {
 protected:
    GridViewTest() { AddRows(edited, {u"PAAL", u"boom", u"", u"HEG"}); }

    std::string ShownCodes() const {
        std::string codes;
        for (int place = 0; place < edited.grid.RowCount() - 1; ++place) {
            codes += Cell(edited, RowAtPlace(edited, place), Grid::Liscad) + " ";
        }
        return codes;
    }

    EditedGrid& edited = form.editedPoints;
    const std::string inFile = "STANDRD PAAL boom  HEG ";
};

TEST_F(GridViewTest, AColumnSortsUpwardsThenDownwardsThenNotAnyMore) {
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(ShownCodes(), "STANDRD boom HEG PAAL  ");
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(ShownCodes(), "STANDRD PAAL HEG boom  ");
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(ShownCodes(), inFile);
    EXPECT_FALSE(IsSorted(edited));
}

TEST_F(GridViewTest, TheFileKeepsItsOrder) {
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(Codes(edited), inFile);
    SaveGridData(form);
    EXPECT_EQ(form.project.codes.points.rows[1].LiscadCode.TrimmedRight(), u"PAAL");
}

TEST_F(GridViewTest, NumbersGoByTheirValueAndEqualRowsKeepTheirOrder) {
    const Text values[] = {u"5", u"10", u"9", u"10"};
    for (int row = 2; row < 6; ++row) edited.grid[row][Grid::P] = values[row - 2];
    SortByColumn(form, edited, Grid::P);
    EXPECT_EQ(ShownCodes(), "STANDRD PAAL  boom HEG ");
}

TEST_F(GridViewTest, EachRowHasItsPlace) {
    SortByColumn(form, edited, Grid::Liscad);
    for (int row = 1; row < edited.grid.RowCount(); ++row) {
        EXPECT_EQ(RowAtPlace(edited, PlaceOfRow(edited, row)), row);
    }
    EXPECT_EQ(PlaceOfRow(edited, 3), 1);
}

TEST_F(GridViewTest, ARowThatIsEditedStaysInItsPlace) {
    SortByColumn(form, edited, Grid::Liscad);
    Start(edited, 3, Grid::Liscad);
    edited.textEditor.text = u"ZUIL";
    PressText(edited, keys::enter);
    EXPECT_EQ(ShownCodes(), "STANDRD ZUIL HEG PAAL  ");
}

TEST_F(GridViewTest, RowsComeAndGoInASortedGrid) {
    SortByColumn(form, edited, Grid::Liscad);
    GridKeyDown(form, edited, keys::insertRow);
    EXPECT_EQ(ShownCodes(), "STANDRD boom HEG PAAL  999 ");
    edited.row = 3;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    EXPECT_EQ(ShownCodes(), "STANDRD HEG PAAL  999 ");
    EXPECT_EQ(Cell(edited, edited.row, Grid::Liscad), "HEG");
    EXPECT_EQ(Codes(edited), "STANDRD PAAL  HEG 999 ");
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD PAAL boom  HEG 999 ");
    EXPECT_EQ(ShownCodes(), "STANDRD HEG PAAL  999 boom ");
}

TEST_F(GridViewTest, NoRowMovesInASortedGridAndTheFirstNever) {
    edited.row = 3;
    EXPECT_TRUE(CanMoveRow(edited, 1));
    EXPECT_TRUE(CanMoveRow(edited, -1));
    edited.row = 2;
    EXPECT_FALSE(CanMoveRow(edited, -1));
    edited.row = 1;
    EXPECT_FALSE(CanMoveRow(edited, 1));
    edited.row = 5;
    EXPECT_FALSE(CanMoveRow(edited, 1));
    SortByColumn(form, edited, Grid::Liscad);
    edited.row = 3;
    MoveRow(form, edited, 1);
    EXPECT_EQ(Codes(edited), inFile);
}

TEST_F(GridViewTest, ARowMovesAndStaysCurrent) {
    edited.row = 3;
    MoveRow(form, edited, -1);
    EXPECT_EQ(Codes(edited), "STANDRD boom PAAL  HEG ");
    EXPECT_EQ(edited.row, 2);
    MoveRow(form, edited, 1);
    EXPECT_EQ(Codes(edited), inFile);
    EXPECT_EQ(edited.row, 3);
}

TEST_F(GridViewTest, TheSortedOrderIsTakenOverOnlyAfterYes) {
    SortByColumn(form, edited, Grid::Liscad);
    edited.row = 3;
    screen.answers = {Answer::No};
    KeepSortedOrder(form, edited);
    EXPECT_EQ(Codes(edited), inFile);
    EXPECT_TRUE(IsSorted(edited));
    screen.answers = {Answer::Yes};
    KeepSortedOrder(form, edited);
    EXPECT_EQ(Codes(edited), "STANDRD boom HEG PAAL  ");
    EXPECT_FALSE(IsSorted(edited));
    EXPECT_EQ(edited.row, 2);
    EXPECT_EQ(screen.boxes.back().buttons, Buttons::YesNo);
    Undo(edited);
    EXPECT_EQ(Codes(edited), inFile);
}

TEST_F(GridViewTest, AnEmptyTableIsNotSorted) {
    edited.grid.SetRowCount(1);
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_FALSE(IsSorted(edited));
}

}  // namespace

}  // namespace korvande::testing
