#include "app/GridClipboard.h"

#include "app/GridHistory.h"
#include "app/GridView.h"
#include "tests/app/GridEditingTest.h"

// Cells go to other programs and come back as text with tabs.
namespace korvande::testing {

namespace {

class GridClipboardTest : public GridEditing {
 protected:
    GridClipboardTest() { AddRows(edited, {u"BOOM", u"PAAL"}); }

    std::string Copied(const CellBlock& block) const { return ToUtf8(TextOfCells(edited, block)); }
    bool Paste(int place, int column, TextView text) {
        return PasteCells(form, edited, {place, column, place, column}, text).has_value();
    }

    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridClipboardTest, ABlockIsALineForEachRowWithTabsBetweenCells) {
    EXPECT_EQ(Copied({0, Grid::Liscad, 1, Grid::Type}), "STANDRD\tQ20\tPUNT\nBOOM\t\t");
    EXPECT_EQ(Copied({0, Grid::Lki, 0, Grid::Lki}), "Q20");
}

TEST_F(GridClipboardTest, WhatIsCopiedPastesAsItWas) {
    for (const TextView text : {u"A\tB", u"\"A, B\"", u"\"A\"\"B\"", u"\"los", u"5\" buis", u"\"\"\"\""}) {
        edited.grid[1][Grid::Description] = text;
        const Text copied = TextOfCells(edited, {0, Grid::Description, 0, Grid::B});
        edited.grid[1][Grid::Description].clear();
        const bool isPasted = Paste(0, Grid::Description, copied);
        // A quote that does not close cannot stand in a control table.
        EXPECT_EQ(isPasted, text != u"\"los") << ToUtf8(text);
        EXPECT_EQ(edited.grid[1][Grid::Description], isPasted ? Text(text) : Text());
    }
}

TEST_F(GridClipboardTest, AnEmptyCellAtTheEndOfAColumnPastesAsOne) {
    const CellBlock column = {0, Grid::Lki, 1, Grid::Lki};
    ASSERT_EQ(Cell(edited, 2, Grid::Lki), "");
    EXPECT_TRUE(PasteCells(form, edited, column, TextOfCells(edited, column)));
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q20");
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "");
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL ");
}

TEST_F(GridClipboardTest, CellsOfASpreadsheetAreReadInAnyLineEnds) {
    EXPECT_TRUE(Paste(1, Grid::Liscad, u"EIK\tQ30\tpunt\r\nBEUK\tQ31\tsymbool\r\n"));
    EXPECT_EQ(Codes(edited), "STANDRD EIK BEUK ");
    EXPECT_EQ(Cell(edited, 2, Grid::Type), "PUNT") << "in capitals, as the list stores it";
    EXPECT_EQ(Cell(edited, 3, Grid::Lki), "Q31");
    EXPECT_TRUE(Paste(1, Grid::Liscad, u"LINDE\rES"));
    EXPECT_EQ(Codes(edited), "STANDRD LINDE ES ");
}

TEST_F(GridClipboardTest, RowsThatAreMissingAreAdded) {
    const auto filled = PasteCells(form, edited, {2, Grid::Liscad, 2, Grid::Liscad}, u"A\tQ1\nB\tQ2\nC\tQ3");
    EXPECT_EQ(Codes(edited), "STANDRD BOOM A B C ");
    ASSERT_TRUE(filled);
    EXPECT_EQ(filled->top, 2);
    EXPECT_EQ(filled->bottom, 4);
    EXPECT_EQ(filled->right, Grid::Lki);
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL ");
}

TEST_F(GridClipboardTest, ASingleValueFillsTheChosenBlock) {
    EXPECT_TRUE(PasteCells(form, edited, {0, Grid::P, 2, Grid::I}, u"4"));
    for (int row = 1; row < 4; ++row) {
        EXPECT_EQ(Cell(edited, row, Grid::P), "4");
        EXPECT_EQ(Cell(edited, row, Grid::I), "4");
        EXPECT_NE(Cell(edited, row, Grid::B), "4");
    }
}

TEST_F(GridClipboardTest, WhatCannotStandInTheTableIsRefusedAsAWhole) {
    EXPECT_FALSE(Paste(1, Grid::Liscad, u"EIK\tQ30\nLANTAARNPAAL\tQ#1"));
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL ");
    EXPECT_FALSE(CanUndo(edited));
    EXPECT_EQ(screen.messages.back(),
              "Niet geplakt.\n"
              "Regel 2, kolom Liscad: 'LANTAARNPAAL' heeft 12 tekens; er passen er 7.\n"
              "Regel 2, kolom LKI: Wat achter een # staat, is in een controletabel een opmerking.");
    EXPECT_FALSE(Paste(1, Grid::I, u"1\t2\t3"));
    EXPECT_EQ(screen.messages.back(), "Niet geplakt.\nRegel 1: er zijn 3 cellen; er passen er 2.");
    EXPECT_FALSE(Paste(1, Grid::P, u"veel"));
    EXPECT_EQ(screen.messages.back(),
              "Niet geplakt.\nRegel 1, kolom P: 'veel' is geen geheel getal van -32768 tot en met 32767.");
}

TEST_F(GridClipboardTest, InASortedGridTheShownRowsAreMeant) {
    edited.grid[2][Grid::Liscad] = u"ZUIL";
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(Copied({1, Grid::Liscad, 2, Grid::Liscad}), "PAAL\nZUIL");
    EXPECT_TRUE(Paste(1, Grid::Lki, u"Q1\nQ2\n"));
    EXPECT_EQ(Cell(edited, 3, Grid::Lki), "Q1");
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "Q2");
}

TEST_F(GridClipboardTest, TheHiddenTypeOfTextsIsLeftOut) {
    EditedGrid& texts = form.editedTexts;
    EXPECT_EQ(ToUtf8(TextOfCells(texts, {0, Grid::Liscad, 0, Grid::Description})),
              "STANDRD\tZ19\tONBEKEND TEKSTOBJECT");
    EXPECT_TRUE(PasteCells(form, texts, {1, 0, 1, 0}, u"NAAM\tZ04\tNAAM VAN EEN GEBOUW"));
    EXPECT_EQ(Cell(texts, 2, Grid::Description), "NAAM VAN EEN GEBOUW");
    EXPECT_EQ(Cell(texts, 2, Grid::Type), "");
}

TEST_F(GridClipboardTest, CellsAreEmptiedInOneStep) {
    ClearCells(form, edited, {0, Grid::Liscad, 2, Grid::Lki});
    EXPECT_EQ(Codes(edited), "   ");
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "");
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "PUNT");
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL ");
}

TEST_F(GridClipboardTest, AnEmptyTableTakesRows) {
    edited.grid.SetRowCount(1);
    edited.row = 0;
    EXPECT_TRUE(Paste(0, Grid::Liscad, u"STANDRD\tQ20"));
    EXPECT_EQ(Codes(edited), "STANDRD ");
    EXPECT_FALSE(Paste(0, Grid::Liscad, u""));
}

}  // namespace

}  // namespace korvande::testing
