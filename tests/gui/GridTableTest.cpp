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
    std::string table = "[Points]\n";
    for (int i = 0; i < 20000; ++i) table += "C" + std::to_string(i) + " = Q21, PUNT, NUMMER\n";
    WriteProject("groot.nst", "", table);
    Start();
    SelectTab(tabPoints);
    shown = pointsTab;
    ASSERT_EQ(TheGrid().GetNumberRows(), 20001);
    const wxStopWatch watch;
    ClickOn(1, Grid::Lki);
    simulator.Char(WXK_END, wxMOD_CONTROL);
    WaitUntil("the last row", [this] { return TheGrid().GetGridCursorRow() == 20000; });
    for (int i = 0; i < 5; ++i) {
        Key(WXK_PAGEUP);
        Keys("7");
        Key(WXK_RETURN);
        dialogs.buttons = {wxID_OK};
        Key(WXK_DELETE);
    }
    Key(WXK_INSERT);
    EXPECT_EQ(TheGrid().GetNumberRows(), 20001 - 5 + 1);
    EXPECT_LT(watch.Time(), 5000);
}

}  // namespace

}  // namespace korvande::testing
