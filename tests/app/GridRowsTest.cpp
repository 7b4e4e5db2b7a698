#include "tests/app/GridEditingTest.h"

// Rows that come and go.
namespace korvande::testing {

namespace {

class GridRows : public GridEditing {};

TEST_F(GridRows, InsertAppendsARowSaysSoAndGoesThere) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = form.*kind.edited;
        AddRows(edited, {u"BOOM", u"PAAL"});
        edited.row = 2;
        int rowAtMessage = 0;
        screen.onMessage = [&] { rowAtMessage = edited.row; };
        GridKeyDown(form, edited, keys::insertRow);
        EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL 999 ") << kind.name;
        for (int column = 1; column < Grid::columns; ++column) EXPECT_EQ(Cell(edited, 4, column), "") << column;
        EXPECT_EQ(edited.row, 4) << kind.name;
        EXPECT_EQ(rowAtMessage, 2) << kind.name;
        EXPECT_EQ(screen.messages.back(),
                  "Liscad code '999' is onderaan de tabel toegevoegd.\nDeze regel wijzigen naar de juiste inhoud.");
        EXPECT_EQ(screen.boxes.back().buttons, Buttons::Ok);
    }
}

TEST_F(GridRows, InsertTwiceAppendsTwoRows) {
    GridKeyDown(form, form.editedPoints, keys::insertRow);
    GridKeyDown(form, form.editedPoints, keys::insertRow);
    EXPECT_EQ(Codes(form.editedPoints), "STANDRD 999 999 ");
    EXPECT_EQ(form.editedPoints.row, 3);
}

TEST_F(GridRows, DeleteAsksAndRemovesTheCurrentRow) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = form.*kind.edited;
        AddRows(edited, {u"BOOM", u"PAAL"});
        edited.row = 2;
        screen.answers = {Answer::Ok};
        GridKeyDown(form, edited, keys::deleteRow);
        EXPECT_EQ(Codes(edited), "STANDRD PAAL ") << kind.name;
        EXPECT_EQ(edited.row, 2) << kind.name;
        EXPECT_EQ(screen.messages.back(), "Liscad code 'BOOM' zal worden gewist");
        EXPECT_EQ(screen.boxes.back().title, u"Wissen Tabelregel");
        EXPECT_EQ(screen.boxes.back().buttons, Buttons::OkCancel);
    }
}

TEST_F(GridRows, ACancelledDeleteRemovesNothing) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, {u"BOOM"});
    edited.row = 2;
    screen.answers = {Answer::Cancel};
    GridKeyDown(form, edited, keys::deleteRow);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM ");
}

TEST_F(GridRows, BehindTheLastRowTheNewLastOneBecomesCurrent) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, {u"BOOM"});
    edited.row = 2;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    EXPECT_EQ(edited.row, 1);
}

TEST_F(GridRows, TheUnknownRowCanBeRemovedAndTheNextOneTakesItsPlace) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, {u"BOOM", u"PAAL"});
    edited.row = 1;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    SaveGridData(form);
    ASSERT_EQ(form.project.codes.points.rows.size(), 2U);
    EXPECT_EQ(form.project.codes.points.rows[0].LiscadCode.TrimmedRight(), u"BOOM");
    EXPECT_EQ(FindLiscadCode(form.project.codes.points, MakeFixedText<7>(u"WEG")), 0);
}

TEST_F(GridRows, ATableCanLoseItsLastRowAndGetOneAgain) {
    EditedGrid& edited = form.editedPoints;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    EXPECT_EQ(edited.grid.RowCount(), 1);
    EXPECT_EQ(edited.row, 0);
    GridKeyDown(form, edited, keys::deleteRow);
    StartEdit(form, edited, u'A');
    EXPECT_EQ(screen.messages.size(), 1U);
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(ToUtf8(edited.grid[0][Grid::Liscad]), "Liscad");
    SaveGridData(form);
    EXPECT_TRUE(form.project.codes.points.rows.empty());
    GridKeyDown(form, edited, keys::insertRow);
    EXPECT_EQ(edited.row, 1);
    EXPECT_EQ(Codes(edited), "999 ");
}

TEST_F(GridRows, OtherKeysDoNothingOnTheGrid) {
    EditedGrid& edited = form.editedPoints;
    const Grid before = edited.grid;
    for (std::int16_t key = 0; key < 256; ++key) {
        if (key != keys::insertRow && key != keys::deleteRow) GridKeyDown(form, edited, key);
    }
    EXPECT_EQ(Codes(edited), "STANDRD ");
    EXPECT_EQ(before[1], edited.grid[1]);
    EXPECT_EQ(edited.row, 1);
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(GridRows, TheWindowHearsOfEveryChange) {
    EditedGrid& edited = form.editedPoints;
    int changes = 0;
    form.changed = [&] { ++changes; };
    GridKeyDown(form, edited, keys::insertRow);
    EXPECT_GT(changes, 0);
    changes = 0;
    screen.answers = {Answer::Ok};
    GridKeyDown(form, edited, keys::deleteRow);
    EXPECT_GT(changes, 0);
    changes = 0;
    Start(edited, 1, Grid::Lki, u'A');
    EndEdit(form, edited);
    EXPECT_GT(changes, 0);
}

TEST_F(GridRows, TwentyThousandRowsAreNoBurden) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, std::vector<Text>(20000, u"BOOM"));
    edited.row = 2;
    screen.answers.assign(50, Answer::Ok);
    for (int i = 0; i < 50; ++i) GridKeyDown(form, edited, keys::deleteRow);
    for (int i = 0; i < 50; ++i) GridKeyDown(form, edited, keys::insertRow);
    EXPECT_EQ(edited.grid.RowCount(), 20002);
    EXPECT_EQ(edited.row, 20001);
    EXPECT_EQ(Cell(edited, 20001, Grid::Liscad), "999");
}

}  // namespace

}  // namespace korvande::testing
