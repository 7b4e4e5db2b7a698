#include "project/Grid.h"

#include <random>

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

class GridTest : public ProjectTest {
 protected:
    Grid grid{gridHeader};
};

TEST_F(GridTest, TheHeaderStandsInItsFirstRow) {
    EXPECT_EQ(CellsText(Grid(gridHeader)[0]), "Liscad|LKI|Type|Omschrijving|P|I|B");
    EXPECT_EQ(CellsText(Grid(textGridHeader)[0]), "Liscad|LKI|-|Omschrijving|P|I|B");
    EXPECT_EQ(CellsText(Grid(u"A|B")[0]), "A|B|||||");
}

TEST_F(GridTest, RowsGiveWayToOthersInTheirPlace) {
    grid.SetRowCount(4);
    for (int row = 1; row < 4; ++row) grid[row][Grid::Liscad] = Concat(row);
    Grid::Row other;
    other[Grid::Liscad] = u"9";
    grid.ReplaceRows(1, 2, {other});
    ASSERT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid[0][Grid::Liscad], u"Liscad");
    EXPECT_EQ(grid[1][Grid::Liscad], u"9");
    EXPECT_EQ(grid[2][Grid::Liscad], u"3");
}

TEST_F(GridTest, ItShowsItsTable) {
    CodeRow row = pointTable.rows[0];
    row.LiscadCode = u" AB";
    row.LkiCode = u"S01 A01";
    row.Type = u"ROT.PNT";
    row.Description = u"Café";
    row.P = -32768;
    row.I = 0;
    row.B = 32767;
    pointTable.rows.push_back(row);
    LoadGrid(grid, pointTable);
    ASSERT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid[0][Grid::Liscad], u"Liscad");
    EXPECT_EQ(CellsText(grid[1]), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0");
    EXPECT_EQ(CellsText(grid[2]), "AB|S01 A01|ROT.PNT|Café|-32768|0|32767");
    LoadGrid(grid, lineTable);
    ASSERT_EQ(grid.RowCount(), 2);
    EXPECT_EQ(CellsText(grid[1]), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0");
    LoadGrid(grid, textTable);
    EXPECT_EQ(CellsText(grid[1]), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0");
}

TEST_F(GridTest, ItGetsShorterWithItsTable) {
    pointTable.rows.resize(10, pointTable.rows[0]);
    LoadGrid(grid, pointTable);
    EXPECT_EQ(grid.RowCount(), 11);
    pointTable.rows.resize(1);
    LoadGrid(grid, pointTable);
    EXPECT_EQ(grid.RowCount(), 2);
    pointTable.rows.clear();
    LoadGrid(grid, pointTable);
    EXPECT_EQ(grid.RowCount(), 1);
}

TEST_F(GridTest, TheTableIsMadeAnewFromIt) {
    LoadGrid(grid, pointTable);
    grid.SetRowCount(4);
    grid[2] = {u"ABCDEFGHI", u"123456789", u"GRONDSLAG", Text(50, u'd'), u"12abc", u"", u"-7.5"};
    pointTable.rows.resize(9);
    CountUse(pointTable, 0, 5);
    CountUse(pointTable, 8);
    SaveGrid(grid, pointTable);
    EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\nABCDEFG|1234567|GRONDSL|" +
                                         std::string(43, 'd') + "|12|0|-8\n|||" + "|0|0|0\n");
    for (const CodeRow& row : pointTable.rows) EXPECT_EQ(row.Count, 0);
    EXPECT_FALSE(pointTable.rows[2].LiscadCode.NeverFilled());
}

TEST_F(GridTest, AnEmptyCellIsZeroAndANumberEndsWhereItsDigitsDo) {
    const struct {
        TextView cell;
        std::int16_t number;
    } cases[] = {{u"", 0},      {u"12", 12}, {u"  12 m", 12},   {u"12abc", 12}, {u"abc", 0},         {u"-3", -3},
                 {u"2.5", 2},   {u"3.5", 4}, {u"32767", 32767}, {u"32768", 0},  {u"-32768", -32768}, {u"-32769", 0},
                 {u"1e999", 0}, {u"€", 0},   {u"1E2", 100}};
    LoadGrid(grid, lineTable);
    for (const auto& [cell, number] : cases) {
        grid[1][Grid::P] = cell;
        SaveGrid(grid, lineTable);
        EXPECT_EQ(lineTable.rows[0].P, number) << ToUtf8(cell);
    }
}

TEST_F(GridTest, WithoutAnyRowItMakesATableWithoutAnyRow) {
    SaveGrid(grid, textTable);
    EXPECT_TRUE(textTable.rows.empty());
    ResetProject(project);
    grid.SetRowCount(0);
    SaveGrid(grid, textTable);
    EXPECT_TRUE(textTable.rows.empty());
}

TEST_F(GridTest, IntoTheTableAndBackNothingChanges) {
    Edit(textTable, 2, {u"NAAM", u"Z02", u"", u"Straatnaam é", u"1", u"-2", u"3"});
    const std::string before = TableText(textTable);
    LoadGrid(grid, textTable);
    SaveGrid(grid, textTable);
    EXPECT_EQ(TableText(textTable), before);
}

TEST_F(GridTest, ATableTakenFromItIsNotMetByAnOldMemory) {
    const CodeKey key = MakeFixedText<7>(u"A");
    Edit(pointTable, 2, {u"A", u"Q1"});
    EXPECT_EQ(FindLiscadCode(pointTable, key), 1);
    EXPECT_EQ(FindLkiCode(pointTable, MakeFixedText<7>(u"Q1")), 1);
    Edit(pointTable, 2, {u"B", u"Q2"});
    EXPECT_EQ(FindLiscadCode(pointTable, key), 0);
    EXPECT_EQ(FindLkiCode(pointTable, MakeFixedText<7>(u"Q1")), 0);
}

// Texts as control tables leave them and as they never do: with blanks around them, never filled, of any character.
CodeRow RandomRow(std::mt19937& random) {
    const auto text = [&random] {
        Text made;
        for (std::size_t length = random() % 50; length > 0; --length) made += u"  aB9é€\0\"|"[random() % 10];
        return made;
    };
    CodeRow row{};
    row.Count = static_cast<std::int32_t>(random() % 5);
    if (random() % 4 != 0) row.LiscadCode = text();
    if (random() % 4 != 0) row.LkiCode = text();
    if (random() % 4 != 0) row.Type = text();
    if (random() % 4 != 0) row.Description = text();
    row.P = static_cast<std::int16_t>(random());
    row.I = static_cast<std::int16_t>(random());
    row.B = static_cast<std::int16_t>(random());
    return row;
}

TEST_F(GridTest, PassingThroughGridsIsLoadingAndSavingThem) {
    std::mt19937 random(1878);
    for (int round = 0; round < 100; ++round) {
        for (CodeTable* const table : {&pointTable, &lineTable, &textTable}) {
            table->rows.clear();
            for (std::size_t rows = random() % 20; rows > 0; --rows) table->rows.push_back(RandomRow(random));
            table->RowsChanged();
        }
        CodeTables passed = project.codes;
        FindLiscadCode(passed.points, MakeFixedText<7>(u"A"));  // a memory of the table as it was
        PassThroughGrids(passed);
        for (CodeTable* const table : {&pointTable, &lineTable, &textTable}) {
            LoadGrid(grid, *table);
            SaveGrid(grid, *table);
        }
        const auto same = [](const CodeTable& a, const CodeTable& b) {
            return std::equal(
                a.rows.begin(), a.rows.end(), b.rows.begin(), b.rows.end(), [](const CodeRow& x, const CodeRow& y) {
                    return x.Count == y.Count && x.LiscadCode == y.LiscadCode && x.LkiCode == y.LkiCode &&
                           x.Type == y.Type && x.Description == y.Description && x.P == y.P && x.I == y.I && x.B == y.B;
                });
        };
        ASSERT_TRUE(same(passed.points, pointTable)) << round;
        ASSERT_TRUE(same(passed.lines, lineTable)) << round;
        ASSERT_TRUE(same(passed.texts, textTable)) << round;
    }
}

TEST_F(GridTest, ATranslationGetsTablesAsGridsWouldGiveThemBack) {
    CodeRow row{};
    row.LiscadCode = u" AB";
    pointTable.rows.push_back(row);
    EXPECT_EQ(FreshTables(project).points.rows.back().LiscadCode.View(), u"AB     ");
    EXPECT_EQ(pointTable.rows.back().LiscadCode.View(), u" AB    ") << "those of the project stay";
}

TEST_F(GridTest, PassingThroughGridsForgetsTheLookupsMemories) {
    // A code that a grid cuts the blanks in front of.
    Edit(pointTable, 2, {u"A", u"Q1"});
    pointTable.rows[1].LiscadCode = u" A";
    pointTable.RowsChanged();
    EXPECT_EQ(FindLiscadCode(pointTable, MakeFixedText<7>(u"A")), 0);
    PassThroughGrids(project.codes);
    EXPECT_EQ(FindLiscadCode(pointTable, MakeFixedText<7>(u"A")), 1);
}

}  // namespace

}  // namespace korvande::testing
