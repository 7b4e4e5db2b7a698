#include "app/GridHistory.h"

#include "app/GridRows.h"
#include "app/GridView.h"
#include "tests/app/GridEditingTest.h"

// What was changed in a grid can be taken back.
namespace korvande::testing {

namespace {

class GridHistoryTest : public GridEditing {
 protected:
    GridHistoryTest() { AddRows(edited, {u"BOOM", u"PAAL", u"HEG"}); }

    // An edit as a person makes one.
    void Type(int row, int column, TextView text) {
        Start(edited, row, column);
        edited.textEditor.text = text;
        PressText(edited, keys::enter);
    }

    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridHistoryTest, AnEditIsTakenBackAndMadeAgain) {
    Type(2, Grid::Lki, u"Q21");
    Type(3, Grid::Lki, u"Q22");
    Undo(edited);
    EXPECT_EQ(Cell(edited, 3, Grid::Lki), "");
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "Q21");
    Undo(edited);
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "");
    EXPECT_FALSE(CanUndo(edited));
    Redo(edited);
    Redo(edited);
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "Q21");
    EXPECT_EQ(Cell(edited, 3, Grid::Lki), "Q22");
    EXPECT_FALSE(CanRedo(edited));
}

TEST_F(GridHistoryTest, ItGoesToTheCellThatItChanges) {
    Type(2, Grid::Lki, u"Q21");
    edited.row = 4;
    edited.column = Grid::B;
    Undo(edited);
    EXPECT_EQ(edited.row, 2);
    EXPECT_EQ(edited.column, Grid::Lki);
}

TEST_F(GridHistoryTest, AddedDeletedAndMovedRowsComeBack) {
    edited.row = 2;
    GridKeyDown(form, edited, keys::insertRow);
    edited.row = 3;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    edited.row = 2;
    MoveRow(form, edited, 1);
    EXPECT_EQ(Codes(edited), "STANDRD HEG BOOM 999 ");
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM HEG 999 ");
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL HEG 999 ");
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL HEG ");
    for (int i = 0; i < 3; ++i) Redo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD HEG BOOM 999 ");
}

TEST_F(GridHistoryTest, ANewChangeForgetsWhatWasTakenBack) {
    Type(2, Grid::Lki, u"Q21");
    Undo(edited);
    Type(3, Grid::Lki, u"Q22");
    EXPECT_FALSE(CanRedo(edited));
    Redo(edited);
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "");
}

TEST_F(GridHistoryTest, ACellThatIsLeftAsItWasIsNoChange) {
    Type(2, Grid::Liscad, u"BOOM");
    EXPECT_FALSE(CanUndo(edited));
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL HEG ");
}

TEST_F(GridHistoryTest, AnotherProjectHasAHistoryAndAnOrderOfItsOwn) {
    WriteProject("ander.nst");
    Type(2, Grid::Lki, u"Q21");
    Undo(edited);
    Type(2, Grid::Lki, u"Q22");
    SortByColumn(form, edited, Grid::Liscad);
    LoadProject(form, u"ander.nst");
    EXPECT_FALSE(CanUndo(edited));
    EXPECT_FALSE(CanRedo(edited));
    EXPECT_FALSE(IsSorted(edited));
}

TEST_F(GridHistoryTest, TakenBackEditsAreNoChangeOfTheProject) {
    WriteProject("proef.nst", "", "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND, 0, 0, 0\n");
    LoadProject(form, u"proef.nst");
    Type(1, Grid::Lki, u"Q99");
    EXPECT_EQ(AskAboutEdits(form), Edits::Save);
    Undo(edited);
    EXPECT_EQ(AskAboutEdits(form), Edits::None);
}

}  // namespace

}  // namespace korvande::testing
