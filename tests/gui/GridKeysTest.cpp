#include "app/GridHistory.h"
#include "tests/gui/GridTableTest.h"
#include "ui/ClipboardText.h"

// The keys of a grid beside those that edit, add and delete.
namespace korvande::testing {

namespace {

class GridKeysTest : public GridTableTest, public ::testing::WithParamInterface<TableTab> {
 protected:
    std::string Cursor() const {
        return std::to_string(TheGrid().GetGridCursorRow() + 1) + " " + std::to_string(TheGrid().GetGridCursorCol());
    }
    // A control of this table.
    std::string Named(const char* control) const { return control + std::string(shown.grid).substr(4); }
    int LastRow() { return Cells().RowCount() - 1; }
    // Chooses a block of cells with the keyboard.
    void Choose(int row, int column, int rows, int columns) {
        ClickOn(row, column);
        for (int i = 1; i < columns; ++i) Key(WXK_RIGHT, wxMOD_SHIFT);
        for (int i = 1; i < rows; ++i) Key(WXK_DOWN, wxMOD_SHIFT);
    }
    static std::string Clipboard() { return ToUtf8(ClipboardText()); }
};

TEST_P(GridKeysTest, TabGoesFromCellToCellAndLeavesTheGridAtTheLastOne) {
    Open(GetParam());
    ClickOn(1, Grid::Lki);
    Key(WXK_TAB);
    EXPECT_EQ(Cursor(), shown.listEditor != nullptr ? "1 2" : "1 3") << "the next column that is shown";
    ClickOn(1, Grid::B);
    Key(WXK_TAB);
    EXPECT_EQ(Cursor(), "2 0");
    ClickOn(LastRow(), Grid::B);
    ASSERT_TRUE(GridHasFocus());
    Key(WXK_TAB);
    WaitUntil("the focus behind the grid", [this] { return Find<wxWindow>(Named("cmdAddRow").c_str()).HasFocus(); });
}

TEST_P(GridKeysTest, ShiftTabGoesBackAndLeavesTheGridAtTheFirstCell) {
    Open(GetParam());
    ClickOn(2, Grid::Liscad);
    Key(WXK_TAB, wxMOD_SHIFT);
    EXPECT_EQ(Cursor(), "1 6");
    ClickOn(1, Grid::Liscad);
    ASSERT_TRUE(GridHasFocus());
    Key(WXK_TAB, wxMOD_SHIFT);
    WaitUntil("the focus before the grid", [this] { return Find<wxWindow>(Named("cmdPrevious").c_str()).HasFocus(); });
}

TEST_P(GridKeysTest, TabAfterTypingStoresTheTextAndGoesToTheNextCell) {
    Open(GetParam());
    ClickOn(2, Grid::Liscad);
    Keys("AB");
    Key(WXK_TAB);
    EXPECT_EQ(Cell(2, Grid::Liscad), "AB");
    EXPECT_FALSE(HasEditor());
    EXPECT_EQ(Cursor(), "2 1");
    WaitUntil("the focus in the grid", [this] { return GridHasFocus(); });
    Keys("C");
    Key(WXK_TAB, wxMOD_SHIFT);
    EXPECT_EQ(Cell(2, Grid::Lki), "C");
    EXPECT_EQ(Cursor(), "2 0");
}

TEST_P(GridKeysTest, F2EditsTheWholeText) {
    Open(GetParam());
    ClickOn(2, Grid::Description);
    Key(WXK_F2);
    ASSERT_TRUE(Editor().IsShown());
    EXPECT_EQ(Editor().GetStringSelection(), "EEN");
}

TEST_P(GridKeysTest, CtrlInsertCopiesAndAddsNoRow) {
    Open(GetParam());
    const int before = Cells().RowCount();
    Choose(2, Grid::Liscad, 2, 2);
    Key(WXK_INSERT, wxMOD_CONTROL);
    EXPECT_EQ(Cells().RowCount(), before);
    EXPECT_EQ(Clipboard(), Cell(2, 0) + "\t" + Cell(2, 1) + "\n" + Cell(3, 0) + "\t" + Cell(3, 1));
}

TEST_P(GridKeysTest, ShiftDeleteCutsAndDeletesNoRow) {
    Open(GetParam());
    const int before = Cells().RowCount();
    const std::string code = Cell(2, Grid::Lki);
    ClickOn(2, Grid::Lki);
    Key(WXK_DELETE, wxMOD_SHIFT);
    EXPECT_EQ(Cells().RowCount(), before);
    EXPECT_EQ(Clipboard(), code);
    EXPECT_EQ(Cell(2, Grid::Lki), "");
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_P(GridKeysTest, ABlockIsCopiedAndPastedElsewhere) {
    Open(GetParam());
    Choose(2, Grid::Liscad, 2, 2);
    Key('C', wxMOD_CONTROL);
    const std::string codes = Clipboard();
    ClickOn(LastRow(), Grid::Liscad);
    const int last = LastRow();
    Key('V', wxMOD_CONTROL);
    EXPECT_EQ(LastRow(), last + 1);
    EXPECT_EQ(Cell(last, 0) + "\t" + Cell(last, 1) + "\n" + Cell(last + 1, 0) + "\t" + Cell(last + 1, 1), codes);
    EXPECT_TRUE(TheGrid().IsInSelection(last, 1));
}

TEST_P(GridKeysTest, CtrlZTakesBackAndCtrlYMakesAgain) {
    Open(GetParam());
    const std::string before = Cell(2, Grid::Lki);
    ClickOn(2, Grid::Lki);
    Keys("X");
    Key(WXK_RETURN);
    Key(WXK_INSERT);
    Key('Z', wxMOD_CONTROL);
    Key('Z', wxMOD_CONTROL);
    EXPECT_EQ(Cell(2, Grid::Lki), before);
    EXPECT_EQ(Cursor(), "2 1");
    Key('Y', wxMOD_CONTROL);
    EXPECT_EQ(Cell(2, Grid::Lki), "X");
}

TEST_P(GridKeysTest, AltUpAndDownMoveTheRow) {
    Open(GetParam());
    const std::string code = Cell(2, Grid::Liscad);
    ClickOn(2, Grid::Liscad);
    Key(WXK_DOWN, wxMOD_ALT);
    EXPECT_EQ(Cell(3, Grid::Liscad), code);
    EXPECT_EQ(Cursor(), "3 0");
    Key(WXK_UP, wxMOD_ALT);
    EXPECT_EQ(Cell(2, Grid::Liscad), code);
}

INSTANTIATE_TEST_SUITE_P(InEachTable, GridKeysTest, ::testing::Values(pointsTab, linesTab, textsTab));

}  // namespace

}  // namespace korvande::testing
