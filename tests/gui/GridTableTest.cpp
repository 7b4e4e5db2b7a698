#include "tests/gui/GridTableTest.h"

#include <wx/stopwatch.h>

namespace korvande::testing {

namespace {

TEST_F(GridTableTest, PointsOfferTheirTypesAndLinesTheirs) {
    Open(pointsTab);
    const auto itemsOf = [this](const char* name) {
        std::string items;
        for (const wxString& item : Find<wxChoice>(name).GetStrings()) items += item.utf8_string() + " ";
        return items;
    };
    EXPECT_EQ(itemsOf("cboEditPointCell"), "Punt Rot.Pnt Symbool Grondslag Dummy ");
    EXPECT_EQ(itemsOf("cboEditLineCell"), "Lijn Grens Grondslag Dummy ");
}

TEST_F(GridTableTest, ATableOfTwentyThousandRowsStaysSmooth) {
    for (const int rows : {100, 20000}) {
        std::string table = "[Points]\n";
        for (int i = 0; i < rows; ++i) table += "C" + std::to_string(i) + " = Q21, PUNT, NUMMER\n";
        WriteProject("tabel" + std::to_string(rows) + ".nst", "", table);
    }
    Start();
    SelectTab(tabPoints);
    shown = pointsTab;
    // Adds, changes and wipes rows of a project's table; how long that takes, in milliseconds.
    const auto edit = [this](int project, int rows) {
        Choose("File1", project);
        EXPECT_EQ(TheGrid().GetNumberRows(), rows + 1);
        const wxStopWatch watch;
        ClickOn(1, Grid::Lki);
        simulator.Char(WXK_END, wxMOD_CONTROL);
        WaitUntil("the last row", [&] { return TheGrid().GetGridCursorRow() == rows; });
        for (int i = 0; i < 5; ++i) {
            Key(WXK_PAGEUP);
            Keys("7");
            Key(WXK_RETURN);
            dialogs.buttons = {wxID_OK};
            Key(WXK_DELETE);
        }
        Key(WXK_INSERT);
        EXPECT_EQ(TheGrid().GetNumberRows(), rows + 1 - 5 + 1);
        return watch.Time();
    };
    const long small = edit(0, 100);
    const long large = edit(1, 20000);
    // Two hundred times as many rows; a cost for each of them would show.
    EXPECT_LT(large, 10 * small);
}

}  // namespace

}  // namespace korvande::testing
