#include "app/GridSearch.h"

#include "app/GridView.h"
#include "tests/app/GridEditingTest.h"

namespace korvande::testing {

namespace {

class GridSearchTest : public GridEditing {
 protected:
    GridSearchTest() { AddRows(edited, {u"BOOM", u"PAAL", u"boom2"}); }

    // Row and column of what is found from the current cell on, which it becomes.
    std::string Find(TextView wanted, SearchDirection direction = SearchDirection::Forward) {
        const auto found = FindInGrid(edited, wanted, direction);
        if (!found) return "niets";
        edited.row = found->first;
        edited.column = found->second;
        return std::to_string(edited.row) + " " + std::to_string(edited.column);
    }

    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridSearchTest, ItGoesFromCellToCellInAnyLettersAndRoundTheEnd) {
    EXPECT_EQ(Find(u"oom"), "2 0");
    EXPECT_EQ(Find(u"Oom"), "4 0");
    EXPECT_EQ(Find(u"OOM"), "2 0");
    EXPECT_EQ(Find(u"onbekend"), "1 3");
}

TEST_F(GridSearchTest, ItGoesBackwardsToo) {
    EXPECT_EQ(Find(u"oom", SearchDirection::Backward), "4 0");
    EXPECT_EQ(Find(u"oom", SearchDirection::Backward), "2 0");
    EXPECT_EQ(Find(u"oom", SearchDirection::Backward), "4 0");
}

TEST_F(GridSearchTest, TheOnlyCellIsFoundAgain) {
    EXPECT_EQ(Find(u"PAAL"), "3 0");
    EXPECT_EQ(Find(u"PAAL"), "3 0");
}

TEST_F(GridSearchTest, NothingIsFoundWhereNothingIs) {
    EXPECT_EQ(Find(u"eik"), "niets");
    EXPECT_EQ(Find(u""), "niets");
    edited.grid.SetRowCount(1);
    edited.row = 0;
    EXPECT_EQ(Find(u"BOOM"), "niets");
}

TEST_F(GridSearchTest, ASortedGridIsSearchedAsItIsShown) {
    edited.grid[3][Grid::Liscad] = u"ABOOM";
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(Find(u"boom"), "3 0");
    EXPECT_EQ(Find(u"boom"), "2 0");
}

TEST_F(GridSearchTest, TheHiddenTypeOfTextsIsNotSearched) {
    EditedGrid& texts = form.editedTexts;
    texts.grid[1][Grid::Type] = u"PUNT";
    EXPECT_FALSE(FindInGrid(texts, u"PUNT", SearchDirection::Forward));
}

}  // namespace

}  // namespace korvande::testing
