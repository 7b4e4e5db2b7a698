#include "tests/gui/GridTableTest.h"

namespace korvande::testing {

namespace {

class GridTypeTest : public GridTableTest, public ::testing::WithParamInterface<TableTab> {
 protected:
    // Opens the list on the Type cell of the first row of the file.
    void OpenList(const TableTab& which) {
        Open(which);
        DoubleClick(PlaceOf(2, Grid::Type));
    }

    // Chooses an item as the list's own event does.
    void ChooseItem(const char* item) {
        const int index = List().FindString(item);
        ASSERT_NE(index, wxNOT_FOUND);
        Choose(shown.listEditor, index);
    }
};

TEST_P(GridTypeTest, ItIsLaidOverTheCellWithTheCellsTypeChosen) {
    OpenList(GetParam());
    ASSERT_TRUE(List().IsShown());
    EXPECT_FALSE(Editor().IsShown());
    EXPECT_EQ(ToCapitals(FromWx(List().GetStringSelection())), Cells()[2][Grid::Type]);
    EXPECT_TRUE(List().GetScreenRect().Contains(PlaceOf(2, Grid::Type)));
}

TEST_P(GridTypeTest, TheChosenItemIsStoredInCapitals) {
    OpenList(GetParam());
    ChooseItem("Dummy");
    Key(WXK_RETURN);
    EXPECT_EQ(Cell(2, Grid::Type), "DUMMY");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTypeTest, AnItemIsChosenInTheOpenList) {
    OpenList(GetParam());
    const int first = List().GetSelection();
    Click(shown.listEditor);
    Key(WXK_DOWN);
    Key(WXK_RETURN);
    WaitUntil("the chosen item", [&] { return List().GetSelection() == first + 1; });
    const Text chosen = ToCapitals(FromWx(List().GetStringSelection()));
    ClickOn(1, Grid::Liscad);
    EXPECT_EQ(Cells()[2][Grid::Type], chosen);
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTypeTest, DownAndUpMoveThroughTheList) {
    OpenList(GetParam());
    const int first = List().GetSelection();
    Key(WXK_DOWN);
    EXPECT_EQ(List().GetSelection(), first + 1);
    Key(WXK_DOWN);
    Key(WXK_UP);
    EXPECT_EQ(List().GetSelection(), first + 1);
    const Text chosen = ToCapitals(FromWx(List().GetStringSelection()));
    Key(WXK_RETURN);
    EXPECT_EQ(Cells()[2][Grid::Type], chosen);
}

TEST_P(GridTypeTest, EscapeStoresTheChosenItem) {
    OpenList(GetParam());
    ChooseItem("Dummy");
    Key(WXK_ESCAPE);
    EXPECT_EQ(Cell(2, Grid::Type), "DUMMY");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTypeTest, ACharacterTypedOnATypeOpensTheList) {
    Open(GetParam());
    ClickOn(2, Grid::Type);
    Keys("x");
    EXPECT_TRUE(List().IsShown());
}

INSTANTIATE_TEST_SUITE_P(InEachTable, GridTypeTest, ::testing::Values(pointsTab, linesTab));

}  // namespace

}  // namespace korvande::testing
