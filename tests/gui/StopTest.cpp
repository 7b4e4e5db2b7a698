#include <wx/gauge.h>

#include <gmock/gmock.h>

#include "app/RunActivity.h"
#include "tests/gui/TranslationFixture.h"

// The button that ends a run and leaves the window open.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class StopTest : public TranslationFixture {
 protected:
    void OpenOnLargeDrawing() {
        Open();
        Type("txtFileIDEX", ToUtf8(LargeDrawing(200000)));
    }
    bool IsShown() const { return Find<wxWindow>("cmdStop").IsShownOnScreen(); }

    // By mouse, while a run goes on.
    void ClickStop() {
        WaitUntil("the button", [this] { return IsShown(); });
        Click("cmdStop");
        WaitUntil("the stop", [this] { return IsStopAsked(form); });
    }
};

TEST_F(StopTest, WithoutARunThereIsNoButton) {
    Open();
    EXPECT_FALSE(IsShown());
    Press("cmdStart");
    EXPECT_FALSE(IsShown());
}

TEST_F(StopTest, AClickEndsTheRunAndTheWindowCanBeUsedAgain) {
    OpenOnLargeDrawing();
    bool wasEnabled = false;
    DuringTheRun([&] {
        wasEnabled = Find<wxWindow>("cmdStop").IsEnabled();
        ClickStop();
    });
    Press("cmdStart");
    EXPECT_TRUE(wasEnabled);
    ASSERT_TRUE(IsOpen());
    EXPECT_THAT(dialogs.messages, ElementsAre());
    EXPECT_FALSE(IsShown());
    EXPECT_TRUE(Find<wxWindow>("cmdStart").IsEnabled());
    EXPECT_EQ(ToUtf8(form.runMark), "");
}

TEST_F(StopTest, TheOutputStaysAsItWasAndTheLogBookTellsOfTheStop) {
    OpenOnLargeDrawing();
    folder.Write("straat.sfn", "vorige week");
    dialogs.buttons = {wxID_YES};
    DuringTheRun([this] { ClickStop(); });
    Press("cmdStart");
    EXPECT_EQ(FileBytes(folder / "straat.sfn"), "vorige week");
    EXPECT_THAT(LogBookText(), HasSubstr("\n==>  Vertaling afgebroken.\n"));
}

TEST_F(StopTest, TheOutcomeLineSaysSoAndStatusAndGaugeAreEmpty) {
    OpenOnLargeDrawing();
    DuringTheRun([this] { ClickStop(); });
    Press("cmdStart");
    EXPECT_EQ(TextOf("lblOutcome"), ToUtf8(folder / "groot.idx") + " is niet vertaald: afgebroken.");
    EXPECT_EQ(window->GetStatusBar()->GetStatusText(0), "");
    EXPECT_EQ(Find<wxGauge>("ProgressBar1").GetValue(), 0);
}

TEST_F(StopTest, EscapePressesItWhateverHadTheFocus) {
    OpenOnLargeDrawing();
    Find<wxWindow>("txtCity").SetFocus();
    DuringTheRun([this] {
        WaitUntil("the button", [this] { return IsShown(); });
        Key(WXK_ESCAPE);
        WaitUntil("the stop", [this] { return IsStopAsked(form); });
    });
    Press("cmdStart");
    EXPECT_THAT(LogBookText(), HasSubstr("\n==>  Vertaling afgebroken.\n"));
    EXPECT_TRUE(Find<wxWindow>("txtCity").HasFocus());
}

TEST_F(StopTest, TheKeysThatPressAButtonDoNotPressItByAccident) {
    OpenOnLargeDrawing();
    DuringTheRun([this] {
        WaitUntil("the button", [this] { return IsShown(); });
        Key(WXK_SPACE);
        Key(WXK_RETURN);
        EXPECT_FALSE(IsStopAsked(form));
    });
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ::testing::Contains("Verwerking gereed"));
}

TEST_F(StopTest, EscapeWithoutARunStopsNothing) {
    Open();
    Key(WXK_ESCAPE);
    Type("txtFileIDEX", ToUtf8(LargeDrawing(3)));
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ::testing::Contains("Verwerking gereed"));
}

TEST_F(StopTest, TheButtonAndTheGaugeStandBesideEachOtherInTheStatusBar) {
    OpenOnLargeDrawing();
    wxRect gauge;
    wxRect button;
    wxRect bar;
    DuringTheRun([&] {
        WaitUntil("the button", [this] { return IsShown(); });
        LetEventsRun();
        gauge = Find<wxWindow>("ProgressBar1").GetScreenRect();
        button = Find<wxWindow>("cmdStop").GetScreenRect();
        bar = window->GetStatusBar()->GetScreenRect();
        StopRun(form);
    });
    Press("cmdStart");
    EXPECT_FALSE(gauge.Intersects(button));
    EXPECT_GT(gauge.width, 50);
    EXPECT_TRUE(bar.Contains(button)) << button.x << " " << button.y << " " << button.width << " " << button.height;
    EXPECT_TRUE(bar.Contains(gauge));
}

}  // namespace

}  // namespace korvande::testing
