#include "tests/gui/GridTableTest.h"

namespace korvande::testing {

namespace {

class GridTest : public GridTableTest, public ::testing::WithParamInterface<TableTab> {};

TEST_P(GridTest, TypingOnACellReplacesItsText) {
    Open(GetParam());
    ClickOn(2, Grid::Lki);
    Keys("A");
    ASSERT_TRUE(Editor().IsShown());
    EXPECT_EQ(TextOf(shown.textEditor), "A");
    EXPECT_EQ(Editor().GetInsertionPoint(), 1);
    Keys("b1");
    Key(WXK_RETURN);
    EXPECT_EQ(Cell(2, Grid::Lki), "Ab1");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTest, WhatTheControlTableCouldNotGiveBackIsRefusedWhenTheCellIsLeft) {
    Open(GetParam());
    const std::string before = Cell(2, Grid::Description);
    ClickOn(2, Grid::Description);
    Keys("a#b");
    ClickOn(1, Grid::Liscad);
    EXPECT_EQ(Cell(2, Grid::Description), before);
    EXPECT_FALSE(HasEditor());
    EXPECT_EQ(dialogs.messages,
              std::vector<std::string>{
                  "Niet overgenomen: a#b\nWat achter een # staat, is in een controletabel een opmerking."});
}

TEST_P(GridTest, EscapeStoresWhatWasTyped) {
    Open(GetParam());
    ClickOn(2, Grid::Description);
    Keys("nieuw");
    Key(WXK_ESCAPE);
    EXPECT_EQ(Cell(2, Grid::Description), "nieuw");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTest, ADoubleClickEditsTheOldTextAllSelected) {
    Open(GetParam());
    DoubleClick(PlaceOf(2, Grid::Description));
    ASSERT_TRUE(Editor().IsShown());
    EXPECT_EQ(TextOf(shown.textEditor), "EEN");
    EXPECT_EQ(Editor().GetStringSelection(), "EEN");
    Key(WXK_END);
    Keys("2");
    ClickOn(1, Grid::Liscad);
    EXPECT_EQ(Cell(2, Grid::Description), "EEN2");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTest, EnterOnACellEditsItsText) {
    Open(GetParam());
    ClickOn(3, Grid::Lki);
    Key(WXK_RETURN);
    ASSERT_TRUE(Editor().IsShown());
    EXPECT_EQ(TextOf(shown.textEditor), Cell(3, Grid::Lki));
    Key(WXK_RETURN);
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTest, TheKeyboardGoesOnInTheGridAfterAnEdit) {
    Open(GetParam());
    ClickOn(1, Grid::P);
    Keys("1");
    Key(WXK_RETURN);
    Key(WXK_DOWN);
    Keys("2");
    Key(WXK_ESCAPE);
    EXPECT_EQ(Cell(1, Grid::P), "1");
    EXPECT_EQ(Cell(2, Grid::P), "2");
}

TEST_P(GridTest, InsertAppendsRowsCodedNineNineNineAndMakesTheLastCurrent) {
    Open(GetParam());
    const int before = Cells().RowCount();
    ClickOn(1, Grid::Liscad);
    Key(WXK_INSERT);
    Key(WXK_INSERT);
    EXPECT_EQ(Cells().RowCount(), before + 2);
    EXPECT_EQ(TheGrid().GetNumberRows(), before + 1);
    EXPECT_EQ(Cell(before, Grid::Liscad), "999");
    EXPECT_EQ(Cell(before + 1, Grid::Liscad), "999");
    EXPECT_EQ(TheGrid().GetGridCursorRow(), before);
    EXPECT_EQ(dialogs.LastMessage(),
              "Liscad code '999' is onderaan de tabel toegevoegd.\nDeze regel wijzigen naar de juiste inhoud.");
    EXPECT_EQ(dialogs.labels.back(), "OK");
}

TEST_P(GridTest, DeleteRemovesTheCurrentRowAfterOk) {
    Open(GetParam());
    const std::string code = Cell(2, Grid::Liscad);
    const std::string next = Cell(3, Grid::Liscad);
    ClickOn(2, Grid::Liscad);
    Key(WXK_DELETE);
    EXPECT_EQ(Cell(2, Grid::Liscad), code) << "Cancel keeps the row";
    dialogs.buttons = {wxID_OK};
    Key(WXK_DELETE);
    EXPECT_EQ(Cell(2, Grid::Liscad), next);
    EXPECT_EQ(dialogs.LastMessage(), "Liscad code '" + code + "' zal worden gewist");
    EXPECT_EQ(dialogs.titles.back(), "Wissen Tabelregel");
    EXPECT_EQ(dialogs.labels.back(), "OK Annuleren");
}

TEST_P(GridTest, TheLastRowCanBeDeletedToo) {
    Open(GetParam());
    ClickOn(1, Grid::Liscad);
    while (Cells().RowCount() > 1) {
        dialogs.buttons = {wxID_OK};
        Key(WXK_DELETE);
    }
    EXPECT_EQ(TheGrid().GetNumberRows(), 0);
    Keys("A");
    EXPECT_FALSE(HasEditor());
    Key(WXK_DELETE);
    Key(WXK_INSERT);
    EXPECT_EQ(TheGrid().GetNumberRows(), 1);
    Keys("X");
    Key(WXK_RETURN);
    EXPECT_EQ(Cell(1, Grid::Liscad), "X");
}

TEST_P(GridTest, AClickOutsideTheGridEndsTheEdit) {
    Open(GetParam());
    ClickOn(2, Grid::Description);
    Keys("abc");
    SelectTab(tabGeneral);
    Click("txtCity");
    EXPECT_EQ(Cell(2, Grid::Description), "abc");
    EXPECT_FALSE(HasEditor());
}

TEST_P(GridTest, TheColumnsHaveTheirHeadersAndAtLeastTheirWidths) {
    Open(GetParam());
    const bool hasTypes = shown.listEditor != nullptr;
    const std::vector<int> twips = hasTypes ? std::vector<int>{900, 900, 1000, 5250, 400, 400, 400}
                                            : std::vector<int>{900, 900, 0, 6250, 400, 400, 400};
    const std::vector<std::string> headers = {"Liscad", "LKI", hasTypes ? "Type" : "-", "Omschrijving", "P", "I", "B"};
    for (int column = 0; column < Grid::columns; ++column) {
        const auto place = static_cast<std::size_t>(column);
        EXPECT_GE(TheGrid().GetColSize(column) + 0.5, window->FromDIP(twips[place]) / 15.0) << column;
        EXPECT_EQ(TheGrid().GetColLabelValue(column).utf8_string(), headers[place]);
    }
    EXPECT_EQ(TheGrid().GetColSize(Grid::Type) > 0, hasTypes);
}

TEST_P(GridTest, AnEditIsSavedWithTheProject) {
    Open(GetParam());
    ClickOn(2, Grid::Lki);
    Keys("Z9");
    Close();
    EXPECT_FALSE(IsOpen());
    EXPECT_NE(ProjectBytes("proef.nst").find(" = Z9, "), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(InEachTable, GridTest, ::testing::Values(pointsTab, linesTab, textsTab));

}  // namespace

}  // namespace korvande::testing
