#include <gmock/gmock.h>
#include <wx/display.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>

#include <cstdlib>

#include "app/TabPlacement.h"
#include "tests/gui/Layout.h"
#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

using ::testing::IsEmpty;

// What the size of the text makes of the window; without a choice of surroundings, the usual one.
double TextSize() {
    const char* const size = std::getenv("GDK_DPI_SCALE");
    return size == nullptr ? 1 : std::atof(size);
}

class WindowSizeTest : public WindowTest {
 protected:
    void Open() {
        WriteProject("Gemeente Molveren.nst", "MOLVEREN");
        Start();
        WaitUntil("the window in its size", [this] { return window->GetMinClientSize() == wxDefaultSize; });
    }

    wxScrolledWindow& Page(int tab) const {
        return dynamic_cast<wxScrolledWindow&>(*Find<wxNotebook>("tabs").GetPage(static_cast<std::size_t>(tab)));
    }

    // The last of the room may have been given out only when nothing happens any more.
    static void ExpectNothingCut(const wxWindow& shown) {
        WaitUntil("room for all of " + shown.GetName().utf8_string(), [&] { return CutControls(shown).empty(); });
        EXPECT_THAT(CutControls(shown), IsEmpty());
    }

    // Whether all of a control is inside what is seen of its page.
    static bool IsInSight(const wxScrolledWindow& page, const wxWindow& control) {
        return page.GetScreenRect().Contains(control.GetScreenRect());
    }

    // Goes through a page by the Tab key, for as many steps, with a look at each control that gets the keyboard.
    void Walk(int steps, bool forward, const std::function<void(const wxWindow&)>& look) {
        for (int i = 0; i < steps; ++i) {
            simulator.Char(WXK_TAB, forward ? wxMOD_NONE : wxMOD_SHIFT);
            LetEventsRun();
            const wxWindow* const focused = wxWindow::FindFocus();
            if (focused != nullptr) look(*focused);
        }
    }
};

TEST_F(WindowSizeTest, ThePagesFitWithoutScrollingWhereTheDisplayHasRoomForThem) {
    if (TextSize() > 1) GTEST_SKIP() << "a large text may need more than there is";
    Open();
    for (const int tab : {tabGeneral, tabSettings}) {
        SelectTab(tab);
        const wxScrolledWindow& page = Page(tab);
        EXPECT_FALSE(page.HasScrollbar(wxVERTICAL)) << tab;
        EXPECT_FALSE(page.HasScrollbar(wxHORIZONTAL)) << tab;
    }
}

TEST_F(WindowSizeTest, TheWindowWithItsFrameIsNotLargerThanTheDisplay) {
    Open();
    const wxRect display = wxDisplay(window).GetClientArea();
    WaitUntil("a window that fits", [&] { return display.Contains(window->GetScreenRect()); });
}

TEST_F(WindowSizeTest, NothingIsCutOnAnyTab) {
    Open();
    for (const int tab : {tabGeneral, tabSettings, tabPoints, tabLines, tabTexts, tabInformation}) {
        SelectTab(tab);
        ExpectNothingCut(*window);
    }
}

TEST_F(WindowSizeTest, UpToATextOfOneAndAHalfNoPageIsWiderThanTheWindow) {
    if (TextSize() > 1.5) GTEST_SKIP() << "such a text is scrolled to";
    Open();
    for (const int tab : {tabGeneral, tabSettings}) {
        SelectTab(tab);
        WaitUntil("a page as wide as the window, tab " + std::to_string(tab),
                  [&] { return Page(tab).GetVirtualSize().x <= Page(tab).GetClientSize().x; });
    }
}

TEST_F(WindowSizeTest, ColumnsWithoutRoomBesideEachOtherStandBelowEachOther) {
    Open();
    SelectTab(tabSettings);
    const auto& import = Find<wxWindow>("framImport");
    const auto& exporting = Find<wxWindow>("framExport");
    window->SetClientSize(import.GetBestSize().x + 60, window->GetClientSize().y);
    WaitUntil("columns below each other", [&] { return exporting.GetPosition().y > import.GetPosition().y; });
    EXPECT_EQ(exporting.GetPosition().x, import.GetPosition().x);
    ExpectNothingCut(Page(tabSettings));
}

TEST_F(WindowSizeTest, AControlThatGetsTheKeyboardComesIntoSightWithItsCaption) {
    Open();
    window->SetClientSize(window->FromDIP(wxSize(420, 300)));
    const wxScrolledWindow& page = Page(tabGeneral);
    WaitUntil("a small page", [&] { return page.GetClientSize().y < 300; });
    Find<wxWindow>("txtProject").SetFocus();
    LetEventsRun();
    int boxes = 0;
    for (const bool forward : {true, false}) {
        Walk(20, forward, [&](const wxWindow& control) {
            if (!page.IsDescendant(const_cast<wxWindow*>(&control))) return;
            const auto* const caption = dynamic_cast<const wxStaticText*>(control.GetPrevSibling());
            if (caption == nullptr) return;
            ++boxes;
            const std::string name = control.GetName().utf8_string();
            WaitUntil("the caption of " + name, [&] { return IsInSight(page, *caption); });
            const wxRect both = caption->GetScreenRect().Union(control.GetScreenRect());
            const bool fits = both.width <= page.GetClientSize().x;
            EXPECT_TRUE(!fits || IsInSight(page, control)) << name;
        });
    }
    EXPECT_GT(boxes, 8);
    EXPECT_GT(page.GetVirtualSize().y, page.GetClientSize().y);
}

TEST_F(WindowSizeTest, AFrameThatFitsOnThePageComesIntoSightAsAWhole) {
    Open();
    window->SetClientSize(window->GetClientSize().x, window->FromDIP(TextSize() > 1 ? 500 : 360));
    wxScrolledWindow& page = Page(tabGeneral);
    const auto& owner = Find<wxWindow>("framOwner");
    WaitUntil("a small page", [&] { return !IsInSight(page, owner); });
    ASSERT_LT(owner.GetSize().y, page.GetClientSize().y);
    Find<wxWindow>("txtCity").SetFocus();
    WaitUntil("the owner in sight", [&] {
        const wxRect seen = page.GetScreenRect();
        const wxRect frame = owner.GetScreenRect();
        return frame.y >= seen.y && frame.GetBottom() <= seen.GetBottom();
    });
}

TEST_F(WindowSizeTest, AClickOnAPartlyHiddenControlDoesNotMoveThePage) {
    if (TextSize() > 1) GTEST_SKIP() << "the option is out of sight then";
    Open();
    window->SetClientSize(window->GetClientSize().x, window->FromDIP(static_cast<int>(360 * TextSize())));
    wxScrolledWindow& page = Page(tabGeneral);
    WaitUntil("a small page", [&] { return !IsInSight(page, Find<wxWindow>("framOwner")); });
    page.Scroll(0, 0);
    LetEventsRun();
    Click("optReportDisk");
    EXPECT_EQ(page.GetViewStart().y, 0);
    EXPECT_TRUE(form.project.options.optReportDisk);
}

}  // namespace

}  // namespace korvande::testing
