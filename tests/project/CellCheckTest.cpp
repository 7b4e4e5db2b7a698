#include "project/CellCheck.h"

#include <random>

#include "core/Numbers.h"
#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

constexpr std::array<std::size_t, 4> textWidths = {7, 7, 7, 43};

class CellCheck : public ProjectTest {
 protected:
    // The project saved and loaded again.
    void SaveAndLoad() {
        const Text name = folder / "project.nst";
        ASSERT_TRUE(SaveFile(name));
        BeginAnew();
        ASSERT_TRUE(LoadFile(name));
        ASSERT_EQ(screen.messages, std::vector<std::string>());
    }

    // What becomes of a cell in the second row of the points when the control table is saved and loaded.
    Text AfterSaveAndLoad(Grid::Column column, TextView text) {
        BeginAnew();
        Grid::Row cells = {u"BOOM", u"S01", u"PUNT", u"EEN BOOM", u"1", u"2", u"3"};
        cells[column] = text;
        Edit(pointTable, 2, cells);
        SaveAndLoad();
        Grid grid(gridHeader);
        LoadGrid(grid, pointTable);
        return grid.RowCount() == 3 ? grid[2][column] : u"(no row)";
    }
};

struct Refused {
    Grid::Column column;
    TextView text;
    const char* why;
};

const Refused refusedCells[] = {
    {Grid::Description, u"BOOM, LOOF",
     "Een komma scheidt in een controletabel de velden, behalve in een tekst tussen dubbele aanhalingstekens."},
    {Grid::Description, u"\"BOOM\", LOOF",
     "Een komma scheidt in een controletabel de velden, behalve in een tekst tussen dubbele aanhalingstekens."},
    {Grid::Lki, u"S#1", "Wat achter een # staat, is in een controletabel een opmerking."},
    {Grid::Lki, u"\"A,#\"", "Wat achter een # staat, is in een controletabel een opmerking."},
    {Grid::Description, u"\"BOOM, LOOF",
     "Een tekst die met een dubbel aanhalingsteken begint, moet binnen 43 tekens een tweede hebben, dat sluit."},
    {Grid::Lki, u"\"A,BCDEFG\"",
     "Een tekst die met een dubbel aanhalingsteken begint, moet binnen 7 tekens een tweede hebben, dat sluit."},
    {Grid::Liscad, u" [X", "Een regel die met [ begint, is in een controletabel het begin van een sectie."},
    {Grid::Liscad, u"A=B", "Een = scheidt in een controletabel de code van de velden."},
    {Grid::Liscad, u"unknown", "UNKNOWN is in een controletabel de eerste regel, voor onbekende codes."},
    {Grid::Liscad, u"UNKNOWNS", "UNKNOWN is in een controletabel de eerste regel, voor onbekende codes."},
    {Grid::Description, u"pad\u2192weg", "De tekst heeft een teken dat niet in een controletabel kan staan."},
    {Grid::Description, u"een\ntwee", "De tekst heeft een teken dat niet in een controletabel kan staan."},
};

TEST_F(CellCheck, WhatAControlTableCouldNotGiveBackIsRefusedWithASentenceThatSaysWhy) {
    for (const auto& [column, text, why] : refusedCells) {
        EXPECT_EQ(ToUtf8(WhyCellIsRefused(column, text)), why) << ToUtf8(text);
    }
}

TEST_F(CellCheck, NothingIsRefusedThatWouldComeBack) {
    for (const auto& [column, text, why] : refusedCells) {
        if (text.find(u"\"BOOM, LOOF") == 0) continue;  // only with another quote behind it in its row
        const Text described = ToCapitals(Trim(text.substr(0, textWidths[column])));
        EXPECT_NE(AfterSaveAndLoad(column, text), described) << why;
    }
}

TEST_F(CellCheck, AQuoteThatIsNotClosedWouldRunOnIntoTheNextField) {
    Edit(pointTable, 2, {u"BOOM", u"\"S01", u"PUNT", u"LOOF\"", u"1", u"2", u"3"});
    SaveAndLoad();
    EXPECT_EQ(pointTable.rows[1].LkiCode.Trimmed(), u"\"S01, P");
}

TEST_F(CellCheck, WhatComesBackIsNotRefused) {
    const struct {
        Grid::Column column;
        TextView text;
    } cells[] = {{Grid::Description, u"\"BOOM, LOOF\""},
                 {Grid::Description, u"\"EEN \"\"BOOM\"\", LOOF\" OF NIET"},
                 {Grid::Description, u"\"DE \"\"BOOM\"\"\""},
                 {Grid::Description, u"\"BOOM,\""},
                 {Grid::Description, u"ZOGENAAMD \"BOOM\""},
                 {Grid::Description, u"A=B [X] UNKNOWN"},
                 {Grid::Lki, u"[X=1"},
                 {Grid::Liscad, u""},
                 {Grid::Liscad, u" B.[1] "},
                 {Grid::Description, u"één €"},
                 {Grid::Lki, u"S02 B02, en wat er achter staat, valt af"}};
    for (const auto& [column, text] : cells) {
        EXPECT_EQ(ToUtf8(WhyCellIsRefused(column, text)), "") << ToUtf8(text);
        EXPECT_EQ(AfterSaveAndLoad(column, text), ToCapitals(Trim(text.substr(0, textWidths[column]))));
    }
    for (const Grid::Column column : {Grid::P, Grid::I, Grid::B}) {
        EXPECT_EQ(ToUtf8(WhyCellIsRefused(column, u"-3,5 #\"")), "");
        EXPECT_EQ(AfterSaveAndLoad(column, u"-3,5 #\""), u"-3");
    }
}

TEST_F(CellCheck, TextsHaveWidthsAndNumbersNone) {
    for (std::size_t column = 0; column < textWidths.size(); ++column) {
        EXPECT_EQ(WidthOfColumn(static_cast<Grid::Column>(column)), textWidths[column]);
    }
    for (const Grid::Column column : {Grid::P, Grid::I, Grid::B}) EXPECT_EQ(WidthOfColumn(column), 0U);
}

// Cells of any characters that mean something to a control table, or to the files of the system.
class RandomCells {
 public:
    explicit RandomCells(unsigned seed) : random(seed) {}

    int Number(int least, int most) { return std::uniform_int_distribution(least, most)(random); }

    Text Cell(Grid::Column column) {
        if (column >= Grid::P) return Concat(Number(-40000, 40000), Number(0, 3) == 0 ? u",5" : u"");
        if (Number(0, 19) == 0) return u"Unknown";
        static constexpr TextView alphabet = u"abcXYZé߀ÿž\u0081 \t'\"\"\",,#[]=;:.\\/%\u2192\r\n0123456789";
        Text text(static_cast<std::size_t>(Number(0, Number(0, 4) == 0 ? 50 : 9)), u' ');
        for (char16_t& character : text) {
            character = alphabet[static_cast<std::size_t>(Number(0, static_cast<int>(alphabet.size()) - 1))];
        }
        if (Number(0, 3) == 0) text = Concat(u"\"", text, u"\"");
        return text;
    }

    // The first that the check lets pass.
    Text CellThatPasses(Grid::Column column) {
        while (true) {
            Text text = Cell(column);
            if (WhyCellIsRefused(column, text).empty()) return text;
        }
    }

 private:
    std::mt19937 random;
};

Text Described(Grid::Column column, TextView text) {
    if (column >= Grid::P) return Concat(SmallNumberOrZero(ToWindows1252(text)));
    return ToCapitals(Trim(text.substr(0, textWidths[column])));
}

TEST_F(CellCheck, AGridOfAnyCellsThatPassIsTheSameAfterASaveAndALoad) {
    int quotedCommas = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        RandomCells cells(seed);
        BeginAnew();
        std::array<Grid, 3> grids = {Grid(gridHeader), Grid(gridHeader), Grid(textGridHeader)};
        const std::array<CodeTable*, 3> tables = {&pointTable, &lineTable, &textTable};
        for (std::size_t table = 0; table < grids.size(); ++table) {
            Grid& grid = grids[table];
            grid.SetRowCount(1 + cells.Number(1, 6));
            for (int row = 1; row < grid.RowCount(); ++row) {
                for (std::size_t place = 0; place < Grid::columns; ++place) {
                    const auto column = static_cast<Grid::Column>(place);
                    if (tables[table] == &textTable && column == Grid::Type) continue;
                    grid[row][place] = cells.CellThatPasses(column);
                    if (column < Grid::P && Described(column, grid[row][place]).find(u',') != Text::npos)
                        ++quotedCommas;
                }
            }
            SaveGrid(grid, *tables[table]);
        }
        SaveAndLoad();
        for (std::size_t table = 0; table < grids.size(); ++table) {
            Grid loaded(gridHeader);
            LoadGrid(loaded, *tables[table]);
            ASSERT_EQ(loaded.RowCount(), grids[table].RowCount()) << "seed " << seed << ", table " << table;
            for (int row = 1; row < loaded.RowCount(); ++row) {
                for (std::size_t place = 0; place < Grid::columns; ++place) {
                    const Text& typed = grids[table][row][place];
                    ASSERT_EQ(ToUtf8(loaded[row][place]), ToUtf8(Described(static_cast<Grid::Column>(place), typed)))
                        << "seed " << seed << ", table " << table << ", row " << row << ", column " << place;
                }
            }
        }
    }
    EXPECT_GT(quotedCommas, 100) << "too few cells that the check has to look at";
}

}  // namespace

}  // namespace korvande::testing
