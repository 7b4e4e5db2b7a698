#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/listbox.h>

#include <optional>

#include "tests/gui/TranslationFixture.h"
#include "tests/gui/WindowManager.h"

// What the window keeps for its user from one session to the next.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;

constexpr TextView settings = u"Software\\TERAMUND\\KORVANDE";

class RememberedTest : public TranslationFixture {
 protected:
    ~RememberedTest() override {
        // While its form is there.
        if (IsOpen()) CloseToTheEnd();
    }

    void CloseToTheEnd() {
        Close();
        WaitUntil("the end of the window", [this] { return !IsOpen(); });
    }

    // The program started anew, with another form.
    void StartAnew() {
        CloseToTheEnd();
        next.emplace(screen);
        window = OpenMainWindow(screen, *next, {{}, false});
        ASSERT_TRUE(IsOpen());
        WaitUntil("the window", [this] { return window->IsShownOnScreen(); });
        simulator.MouseMove(window->GetScreenPosition() + wxPoint(window->GetSize().x / 2, 5));
        LetEventsRun();
    }

    // Opens the recent files of a box, and presses keys in the list that comes up.
    void InRecentFiles(const char* button, const std::vector<int>& keys) {
        window->CallAfter([this, keys] {
            for (const int key : keys) simulator.Char(key);
        });
        Press(button);
        LetEventsRun();
    }

    // What a window manager puts around a window comes on top of the size that was asked for before it was there.
    void WaitForFrame() const {
        if (WindowManagerName().empty()) return;
        WaitUntil("the frame", [this] { return window->ClientToScreen(wxPoint()).y > window->GetScreenPosition().y; });
    }

    bool IsInSight() const { return wxDisplay(0U).GetClientArea().Contains(window->GetRect()); }

    std::optional<FormKORVANDE> next;
};

TEST_F(RememberedTest, TheWindowOpensWhereItWasLeft) {
    Start();
    const wxRect place(150, 90, 1000, 780);
    ASSERT_NE(window->GetRect(), place);
    WaitForFrame();
    window->SetSize(place);
    WaitUntil("the window in its new place", [&] { return window->GetRect() == place; });
    StartAnew();
    EXPECT_EQ(TestRegistry::Value(settings, u"WindowPlace"), "150 90 1000 780 0");
    WaitUntil("the window where it was", [&] { return window->GetRect() == place; });
}

TEST_F(RememberedTest, AWindowThatWouldBeOutOfSightOpensInSight) {
    for (const char16_t* const kept : {u"5000 5000 900 700 0", u"-3000 100 900 700 1", u"1200 950 900 700 0", u"rommel",
                                       u"0 0 1 1 0", u"99999999999999 0 900 700 0"}) {
        TestRegistry::Set(settings, u"WindowPlace", kept);
        Start();
        WaitUntil("a window in sight for " + ToUtf8(kept), [this] { return IsInSight(); });
        EXPECT_GE(window->GetSize().x, 800) << ToUtf8(kept);
        CloseToTheEnd();
    }
}

TEST_F(RememberedTest, AMaximisedWindowIsKeptAsOne) {
    TestRegistry::Set(settings, u"WindowPlace", u"150 90 1000 780 1");
    Start();
    WaitUntil("the window maximised", [this] { return window->IsMaximized(); });
    LetEventsRun();
    CloseToTheEnd();
    EXPECT_EQ(TestRegistry::Value(settings, u"WindowPlace"), "150 90 1000 780 1");
}

TEST_F(RememberedTest, ARecentFileIsChosenWithItsModeAndItsOutput) {
    Open();
    Choose("cboXlateMode", 1);
    Press("cmdStart");
    StartAnew();
    EXPECT_EQ(Find<wxChoice>("cboXlateMode").GetSelection(), 0);
    Type("txtFileIDEX", "");
    Type("txtFileSUFNEN", "");
    InRecentFiles("cmdRecentIDEX", {WXK_DOWN, WXK_RETURN});
    EXPECT_EQ(TextOf("txtFileIDEX"), ToUtf8(folder / "straat.idx"));
    EXPECT_EQ(Find<wxChoice>("cboXlateMode").GetSelection(), 1);
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "straat.SF2"));
    EXPECT_EQ(next->cboXlateMode.index, 1);
}

TEST_F(RememberedTest, ARecentFileThatIsGoneIsToldAndCanBeTakenFromTheList) {
    Open();
    Press("cmdStart");
    std::filesystem::remove(folder.Path() + "/straat.idx");
    Type("txtFileIDEX", "iets anders");
    dialogs.messages.clear();
    dialogs.buttons = {wxID_YES};
    InRecentFiles("cmdRecentIDEX", {WXK_DOWN, WXK_RETURN});
    EXPECT_THAT(dialogs.messages, ElementsAre("Het bestand is er niet meer:\n" + ToUtf8(folder / "straat.idx") +
                                              "\n\nUit deze lijst halen?"));
    EXPECT_EQ(TextOf("txtFileIDEX"), "iets anders");
    EXPECT_EQ(TestRegistry::Value(settings, u"RecentOrder"), "");
}

TEST_F(RememberedTest, TheListOfABoxThatNothingWasReadFromHasNothingToChoose) {
    Open();
    Press("cmdStart");
    const std::string before = TextOf("txtFileSUFNEN");
    InRecentFiles("cmdRecentSUFNEN", {WXK_DOWN, WXK_RETURN, WXK_ESCAPE});
    EXPECT_EQ(TextOf("txtFileSUFNEN"), before);
    EXPECT_EQ(Find<wxChoice>("cboXlateMode").GetSelection(), 0);
}

TEST_F(RememberedTest, TheGFieldSourceStartsAsDescribedWhateverWasChosen) {
    Open();
    Choose("lstSource", 3);
    Press("cmdStart");
    StartAnew();
    EXPECT_EQ(Find<wxListBox>("lstSource").GetSelection(), 0);
    EXPECT_EQ(Find<wxChoice>("cboXlateMode").GetSelection(), 0);
}

TEST_F(RememberedTest, ADialogOfAnEmptyBoxBeginsInTheFolderOfTheFileChosenLast) {
    std::filesystem::copy(folder.Path() + "/straat.idx", projects + "/ander.idx");
    Start();
    dialogs.files = {FromUtf8(projects + "/ander.idx")};
    Press("cmdBrowseIDEX");
    ASSERT_EQ(TextOf("txtFileIDEX"), projects + "/ander.idx");
    Type("txtFileIDEX", "");
    Press("cmdBrowseIDEX");
    ASSERT_EQ(dialogs.fileQuestions.size(), 2U);
    EXPECT_EQ(dialogs.fileQuestions[1].folder, projects + "/");
}

}  // namespace

}  // namespace korvande::testing
