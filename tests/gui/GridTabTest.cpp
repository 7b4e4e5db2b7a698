#include <wx/button.h>
#include <wx/menu.h>

#include "app/GridHistory.h"
#include "app/GridView.h"
#include "tests/gui/GridTableTest.h"

// What stands around a grid, and what a grid shows of its rows.
namespace korvande::testing {

namespace {

class GridTabTest : public GridTableTest {
 protected:
    void OpenPoints() { Open(pointsTab); }

    void ClickOnHeader(int column) {
        wxGrid& grid = TheGrid();
        const wxRect cell = grid.CellToRect(0, column);
        const wxPoint middle(grid.CalcScrolledPosition(cell.GetPosition()).x + cell.width / 2,
                             grid.GetColLabelSize() / 2);
        simulator.MouseMove(grid.GetGridColLabelWindow()->ClientToScreen(middle));
        LetEventsRun();
        simulator.MouseClick();
        LetEventsRun();
    }
    std::string ShownCodes() const {
        std::string codes;
        for (int row = 0; row < TheGrid().GetNumberRows(); ++row) {
            codes += TheGrid().GetCellValue(row, Grid::Liscad).utf8_string() + " ";
        }
        return codes;
    }
    std::string Cursor() const {
        return std::to_string(TheGrid().GetGridCursorRow() + 1) + " " + std::to_string(TheGrid().GetGridCursorCol());
    }
    std::string Remark() const { return Find<wxStaticText>("lblRemarkPoints").GetLabelText().utf8_string(); }
    bool IsEnabled(const char* button) const { return Find<wxButton>(button).IsEnabled(); }
    wxColour ColourAt(int row, int column) const { return TheGrid().GetCellBackgroundColour(row - 1, column); }
};

TEST_F(GridTabTest, TheButtonsAddDeleteAndMoveRows) {
    OpenPoints();
    ClickOn(3, Grid::Liscad);
    Click("cmdRowUpPoints");
    EXPECT_EQ(ShownCodes(), "STANDRD A2 A1 A3 ");
    EXPECT_FALSE(IsEnabled("cmdRowUpPoints")) << "nothing goes above the first row";
    Click("cmdRowDownPoints");
    EXPECT_EQ(ShownCodes(), "STANDRD A1 A2 A3 ");
    dialogs.buttons = {wxID_OK};
    Click("cmdDeleteRowPoints");
    EXPECT_EQ(ShownCodes(), "STANDRD A1 A3 ");
    Click("cmdAddRowPoints");
    EXPECT_EQ(ShownCodes(), "STANDRD A1 A3 999 ");
    WaitUntil("the focus in the grid", [this] { return GridHasFocus(); });
    Keys("B");
    Key(WXK_RETURN);
    EXPECT_EQ(ShownCodes(), "STANDRD A1 A3 B ");
}

TEST_F(GridTabTest, UndoAndRedoHaveButtonsThatTellWhetherThereIsAnything) {
    OpenPoints();
    EXPECT_FALSE(IsEnabled("cmdUndoPoints"));
    ClickOn(2, Grid::Liscad);
    Keys("X");
    // The edit under way counts too.
    ClickOn(2, Grid::Lki);
    Click("cmdUndoPoints");
    EXPECT_EQ(Cell(2, Grid::Liscad), "A1");
    EXPECT_FALSE(IsEnabled("cmdUndoPoints"));
    Click("cmdRedoPoints");
    EXPECT_EQ(Cell(2, Grid::Liscad), "X");
    EXPECT_FALSE(IsEnabled("cmdRedoPoints"));
}

TEST_F(GridTabTest, AClickOnAHeaderSortsAndTheThirdShowsTheFilesOrder) {
    WriteProject("proef.nst", "", "[Points]\nC = Q1, PUNT, X\nA = Q2, PUNT, Y\nB = Q3, PUNT, Z\n");
    Start();
    SelectTab(tabPoints);
    ClickOn(3, Grid::Liscad);
    ClickOnHeader(Grid::Liscad);
    EXPECT_EQ(ShownCodes(), "STANDRD A B C ");
    EXPECT_EQ(TheGrid().GetColLabelValue(Grid::Liscad).utf8_string(), "Liscad ▲");
    EXPECT_EQ(Cursor(), "2 0") << "the current cell stays with its row";
    EXPECT_EQ(TheGrid().GetRowLabelValue(1), "3") << "rows keep their numbers";
    EXPECT_FALSE(IsEnabled("cmdRowUpPoints"));
    ClickOnHeader(Grid::Liscad);
    EXPECT_EQ(ShownCodes(), "STANDRD C B A ");
    ClickOnHeader(Grid::Liscad);
    EXPECT_EQ(ShownCodes(), "STANDRD C A B ");
    EXPECT_EQ(TheGrid().GetColLabelValue(Grid::Liscad), "Liscad");
}

TEST_F(GridTabTest, AnEditInASortedGridGoesIntoTheRowThatIsShown) {
    WriteProject("proef.nst", "", "[Points]\nC = Q1, PUNT, X\nA = Q2, PUNT, Y\n");
    Start();
    SelectTab(tabPoints);
    ClickOnHeader(Grid::Liscad);
    ClickOn(2, Grid::Lki);
    Keys("Z");
    Key(WXK_RETURN);
    EXPECT_EQ(Cell(3, Grid::Liscad), "A");
    EXPECT_EQ(Cell(3, Grid::Lki), "Z");
    dialogs.buttons = {wxID_YES};
    Click("cmdKeepOrderPoints");
    EXPECT_EQ(Cell(2, Grid::Liscad), "A");
    EXPECT_FALSE(IsEnabled("cmdKeepOrderPoints"));
}

TEST_F(GridTabTest, TheSearchGoesFromCellToCellWhileTheBoxKeepsTheKeyboard) {
    OpenPoints();
    ClickOn(1, Grid::Liscad);
    Key('F', wxMOD_CONTROL);
    WaitUntil("the search box", [this] { return Find<wxTextCtrl>("txtSearchPoints").HasFocus(); });
    Keys("punt");
    Key(WXK_RETURN);
    EXPECT_EQ(Cursor(), "1 2");
    Key(WXK_RETURN);
    EXPECT_EQ(Cursor(), "1 3") << "ONBEKEND PUNTOBJECT";
    Key(WXK_RETURN);
    EXPECT_EQ(Cursor(), "2 2");
    Key(WXK_RETURN, wxMOD_SHIFT);
    EXPECT_EQ(Cursor(), "1 3");
    Click("cmdNextPoints");
    EXPECT_EQ(Cursor(), "2 2");
    Click("cmdPreviousPoints");
    EXPECT_EQ(Cursor(), "1 3");
    Key('F', wxMOD_CONTROL);
    Keys("xyz");
    Key(WXK_RETURN);
    EXPECT_EQ(Remark(), "'xyz' komt in deze tabel niet voor.");
    Key(WXK_ESCAPE);
    WaitUntil("the focus in the grid", [this] { return GridHasFocus(); });
}

TEST_F(GridTabTest, DoubtfulCellsHaveAColourAndTheCurrentOneItsReason) {
    WriteProject("proef.nst", "", "[Points]\nA = Q1, PUNT, X\nA = Q2, PUNT, Y\nB = , PUNT, Z\n");
    Start();
    SelectTab(tabPoints);
    const wxColour plain = ColourAt(1, Grid::Liscad);
    EXPECT_NE(ColourAt(2, Grid::Liscad), plain);
    EXPECT_NE(ColourAt(3, Grid::Liscad), plain);
    EXPECT_NE(ColourAt(4, Grid::Lki), plain);
    EXPECT_NE(ColourAt(4, Grid::Lki), ColourAt(2, Grid::Liscad));
    EXPECT_EQ(ColourAt(4, Grid::Liscad), plain);
    ClickOn(2, Grid::Liscad);
    EXPECT_EQ(Remark(), "Deze Liscad-code staat ook op regel 3; de onderste geldt.");
    ClickOn(4, Grid::Lki);
    EXPECT_EQ(Remark(), "De LKI-code ontbreekt.");
    EXPECT_EQ(TheGrid().GetGridWindow()->GetToolTipText(), "De LKI-code ontbreekt.") << "under the mouse";
    Keys("Q3");
    Key(WXK_RETURN);
    EXPECT_EQ(Remark(), "");
    EXPECT_EQ(ColourAt(4, Grid::Lki), plain);
}

TEST_F(GridTabTest, ATextThatDoesNotFitIsShownUnderTheMouse) {
    WriteProject("proef.nst", "", "[Points]\nA = Q1, PUNT, VLOERPEIL VAN DE BEGANE GROND\nB = Q2, PUNT, KORT\n");
    Start();
    shown = pointsTab;
    SelectTab(tabPoints);
    TheGrid().SetColSize(Grid::Description, 80);
    ClickOn(3, Grid::Description);
    EXPECT_EQ(TheGrid().GetGridWindow()->GetToolTipText(), "");
    ClickOn(2, Grid::Description);
    EXPECT_EQ(TheGrid().GetGridWindow()->GetToolTipText(), "VLOERPEIL VAN DE BEGANE GROND");
}

TEST_F(GridTabTest, TheEditorSitsExactlyOnItsCell) {
    OpenPoints();
    ClickOn(2, Grid::Description);
    Keys("A");
    ASSERT_TRUE(Editor().IsShown());
    const wxRect cell = TheGrid().CellToRect(1, Grid::Description);
    EXPECT_EQ(Editor().GetRect(), cell) << Editor().GetRect().height << " " << cell.height;
}

TEST_F(GridTabTest, TheGridHasTheSystemsFontAndItsColumnsShareItsWidth) {
    OpenPoints();
    EXPECT_EQ(TheGrid().GetDefaultCellFont().GetPointSize(), window->GetFont().GetPointSize());
    const auto sum = [this] {
        int width = 0;
        for (int column = 0; column < Grid::columns; ++column) width += TheGrid().GetColSize(column);
        return width;
    };
    const auto fills = [&] { return sum() == TheGrid().GetGridWindow()->GetClientSize().x; };
    WaitUntil("columns as wide as the grid", fills);
    const int before = sum();
    window->SetSize(window->GetSize() + wxSize(100, 0));
    WaitUntil("wider columns", [&] { return sum() > before && fills(); });
}

TEST_F(GridTabTest, AColumnThatIsDraggedKeepsItsWidthForTheNextTime) {
    OpenPoints();
    const int before = TheGrid().GetColSize(Grid::Lki);
    const wxRect cell = TheGrid().CellToRect(0, Grid::Lki);
    wxWindow* const header = TheGrid().GetGridColLabelWindow();
    const wxPoint edge = header->ClientToScreen(wxPoint(cell.GetRight() + 1, TheGrid().GetColLabelSize() / 2));
    simulator.MouseMove(edge);
    LetEventsRun();
    simulator.MouseDown();
    LetEventsRun();
    simulator.MouseMove(edge + wxPoint(15, 0));
    LetEventsRun();
    simulator.MouseMove(edge + wxPoint(30, 0));
    LetEventsRun();
    simulator.MouseUp();
    WaitUntil("the wider column", [&] { return TheGrid().GetColSize(Grid::Lki) > before + 20; });
    const int wider = TheGrid().GetColSize(Grid::Lki);
    Close();
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
    Start();
    EXPECT_NEAR(TheGrid().GetColSize(Grid::Lki), wider, 1);
    EXPECT_EQ(Find<wxGrid>("gridLines").GetColSize(Grid::Lki), before) << "each grid has its own";
}

TEST_F(GridTabTest, ATableIsExportedAndImportedAgain) {
    OpenPoints();
    dialogs.files = {folder / "codes.csv"};
    Press("cmdExportPoints");
    EXPECT_EQ(Remark(), "4 regels geëxporteerd naar codes.csv.");
    EXPECT_EQ(FileBytes(folder / "codes.csv").substr(0, 41), "\xEF\xBB\xBFLiscad;LKI;Type;Omschrijving;P;I;B\r\nST");
    EXPECT_FALSE(dialogs.fileQuestions.back().opens);
    ClickOn(2, Grid::Liscad);
    Keys("X");
    Key(WXK_RETURN);
    dialogs.files = {folder / "codes.csv"};
    dialogs.buttons = {wxID_YES};
    Press("cmdImportPoints");
    EXPECT_EQ(Cell(2, Grid::Liscad), "A1");
    EXPECT_EQ(Remark(), "4 regels geïmporteerd uit codes.csv.");
    Press("cmdUndoPoints");
    EXPECT_EQ(Cell(2, Grid::Liscad), "X");
}

}  // namespace

}  // namespace korvande::testing
