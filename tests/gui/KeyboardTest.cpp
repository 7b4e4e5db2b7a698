#include <gmock/gmock.h>
#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include "app/TabPlacement.h"
#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;

constexpr char rows[] =
    "[Points]\nA1 = Q21, PUNT, EEN\nA2 = Q22, DUMMY, TWEE\n[Lines]\nB1 = Q31, LIJN, EEN\n[Texts]\nC1 = Z21, EEN\n";

class KeyboardTest : public WindowTest {
 protected:
    KeyboardTest() {
        WriteProject("proef.nst", "", rows);
        Start();
        WaitForKeyboard();
    }

    wxNotebook& Tabs() const { return Find<wxNotebook>("tabs"); }

    void Focus(const char* name) {
        Find<wxWindow>(name).SetFocus();
        WaitUntil(std::string("the keyboard in ") + name, [&] { return Find<wxWindow>(name).HasFocus(); });
    }

    bool IsAtHeaders() const { return Tabs().HasFocus(); }

    // The tab that is shown once a key has been pressed there; back to where it began.
    int TabAfter(int key, int modifiers) {
        const int before = Tabs().GetSelection();
        Key(key, modifiers);
        WaitUntil("another tab", [&] { return Tabs().GetSelection() != before; });
        return Tabs().GetSelection();
    }

    // The frame or grid that a control stands in.
    static std::string AreaOf(const wxWindow* control) {
        const wxWindow* area = control;
        while (area != nullptr) {
            const std::string name = area->GetName().utf8_string();
            if (name == "tabs" || name.starts_with("fram") || name.starts_with("grid")) return name;
            area = area->GetParent();
        }
        return "";
    }

    std::vector<std::string> AreasBy(int key, int modifiers, int steps) {
        std::vector<std::string> areas;
        for (int i = 0; i < steps; ++i) {
            Key(key, modifiers);
            areas.push_back(AreaOf(wxWindow::FindFocus()));
        }
        return areas;
    }
};

TEST_F(KeyboardTest, ControlTabAndControlPageKeysChangeTheTabFromTheHeadersAndFromBoxes) {
    Tabs().SetFocus();
    LetEventsRun();
    EXPECT_EQ(TabAfter(WXK_TAB, wxMOD_CONTROL), tabSettings);
    EXPECT_EQ(TabAfter(WXK_PAGEDOWN, wxMOD_CONTROL), tabPoints);
    EXPECT_EQ(TabAfter(WXK_PAGEUP, wxMOD_CONTROL), tabSettings);
    EXPECT_EQ(TabAfter(WXK_TAB, wxMOD_CONTROL | wxMOD_SHIFT), tabGeneral);
    EXPECT_EQ(TabAfter(WXK_PAGEUP, wxMOD_CONTROL), tabInformation);
    EXPECT_EQ(TabAfter(WXK_PAGEDOWN, wxMOD_CONTROL), tabGeneral);
    for (const char* const control : {"txtCity", "File1", "optReportDisk", "cmdNewJob", "cmdStart"}) {
        SelectTab(tabGeneral);
        Find<wxWindow>(control).SetFocus();
        LetEventsRun();
        EXPECT_EQ(TabAfter(WXK_TAB, wxMOD_CONTROL), tabSettings) << control;
        EXPECT_TRUE(IsAtHeaders()) << control;
    }
}

TEST_F(KeyboardTest, TheyChangeTheTabFromAListToo) {
    Find<wxWindow>("cboXlateMode").SetFocus();
    LetEventsRun();
    EXPECT_EQ(TabAfter(WXK_PAGEDOWN, wxMOD_CONTROL), tabSettings);
    Find<wxWindow>("cboCharacterSet").SetFocus();
    LetEventsRun();
    EXPECT_EQ(TabAfter(WXK_TAB, wxMOD_CONTROL), tabPoints);
}

TEST_F(KeyboardTest, TheyChangeTheTabFromAGridAndFromTheEditorOfACellWhichKeepsWhatWasTyped) {
    SelectTab(tabPoints);
    Focus("gridPoints");
    EXPECT_EQ(TabAfter(WXK_TAB, wxMOD_CONTROL), tabLines);
    SelectTab(tabPoints);
    Focus("gridPoints");
    EXPECT_EQ(TabAfter(WXK_PAGEUP, wxMOD_CONTROL), tabSettings);
    SelectTab(tabPoints);
    Focus("gridPoints");
    Find<wxGrid>("gridPoints").SetGridCursor(1, 1);
    Keys("Q99");
    ASSERT_TRUE(Find<wxWindow>("txtEditPointCell").IsShown());
    EXPECT_EQ(TabAfter(WXK_PAGEDOWN, wxMOD_CONTROL), tabLines);
    EXPECT_EQ(form.gridPoints[2][Grid::Lki], u"Q99");
    EXPECT_FALSE(Find<wxWindow>("txtEditPointCell").IsShown());
}

TEST_F(KeyboardTest, TheTabKeyGoesFromTheHeadersIntoThePageAndBack) {
    Tabs().SetFocus();
    LetEventsRun();
    ASSERT_TRUE(IsAtHeaders());
    Key(WXK_TAB);
    EXPECT_TRUE(Find<wxWindow>("txtProject").HasFocus());
    Key(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(IsAtHeaders());
    Key(WXK_RIGHT);
    EXPECT_EQ(Tabs().GetSelection(), tabSettings);
}

TEST_F(KeyboardTest, TheTabKeyGoesFromTheLastControlOfAPageToTheHeaders) {
    Focus("txtCity");
    Key(WXK_TAB);
    EXPECT_TRUE(IsAtHeaders());
}

TEST_F(KeyboardTest, F6GoesThroughTheHeadersAndTheFramesOfAPageAndShiftF6Back) {
    Tabs().SetFocus();
    LetEventsRun();
    EXPECT_THAT(AreasBy(WXK_F6, wxMOD_NONE, 4),
                ElementsAre("framProject", "framStandalone", "framReport", ::testing::_));
    Focus("txtCity");
    EXPECT_THAT(AreasBy(WXK_F6, wxMOD_NONE, 2), ElementsAre("tabs", "framProject"));
    EXPECT_THAT(AreasBy(WXK_F6, wxMOD_SHIFT, 2), ElementsAre("tabs", "framOwner"));
}

TEST_F(KeyboardTest, F6FromTheModeListGoesOnToTheOwner) {
    Find<wxWindow>("cboXlateMode").SetFocus();
    LetEventsRun();
    EXPECT_THAT(AreasBy(WXK_F6, wxMOD_NONE, 1), ElementsAre("framOwner"));
}

TEST_F(KeyboardTest, F6GoesToTheChosenOptionOfAGroupAndChangesNothing) {
    Find<wxRadioButton>("optReportDisk").SetValue(true);
    SelectReport(form.project.options, &Options::optReportDisk);
    Focus("txtFileIDEX");
    Key(WXK_F6);
    EXPECT_TRUE(Find<wxWindow>("optReportDisk").HasFocus());
    EXPECT_TRUE(form.project.options.optReportDisk);
}

TEST_F(KeyboardTest, F6LeavesAGridAndReachesIt) {
    SelectTab(tabPoints);
    Tabs().SetFocus();
    LetEventsRun();
    bool isReached = false;
    for (int i = 0; i < 6 && !isReached; ++i) isReached = AreasBy(WXK_F6, wxMOD_NONE, 1)[0] == "gridPoints";
    EXPECT_TRUE(isReached);
    EXPECT_NE(AreasBy(WXK_F6, wxMOD_NONE, 1)[0], "gridPoints");
}

TEST_F(KeyboardTest, F6ReachesTheLineThatTellsOfARun) {
    form.lastRun.outcome = u"Alles is vertaald";
    window->ShowForm();
    LetEventsRun();
    Focus("txtCity");
    EXPECT_THAT(AreasBy(WXK_F6, wxMOD_NONE, 2), ElementsAre("framOutcome", "tabs"));
}

TEST_F(KeyboardTest, TheLetterOfACaptionReachesItsControlFromBoxesListsGridsAndEditors) {
    for (const char* const control : {"txtCity", "File1", "cmdNewJob", "optReportNone", "cboXlateMode"}) {
        Find<wxWindow>(control).SetFocus();
        LetEventsRun();
        Key('I', wxMOD_ALT);
        EXPECT_TRUE(Find<wxWindow>("txtFileIDEX").HasFocus()) << control;
    }
    SelectTab(tabPoints);
    Focus("gridPoints");
    Key('Z', wxMOD_ALT);
    const wxWindow* const focused = wxWindow::FindFocus();
    ASSERT_NE(focused, nullptr);
    EXPECT_NE(AreaOf(focused), "gridPoints");
    Focus("gridPoints");
    Keys("Q");
    ASSERT_TRUE(Find<wxWindow>("txtEditPointCell").IsShown());
    Key('Z', wxMOD_ALT);
    EXPECT_FALSE(Find<wxWindow>("txtEditPointCell").IsShown());
    EXPECT_EQ(wxWindow::FindFocus(), focused);
}

}  // namespace

}  // namespace korvande::testing
