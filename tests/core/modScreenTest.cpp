#include "core/modScreen.h"

#include <gtest/gtest.h>
#include <algorithm>

#include <chrono>
#include <new>
#include <thread>
#include <vector>

#include "core/RuntimeError.h"
#include "tests/support/RecordingScreen.h"

namespace korvande::testing {

namespace {

using std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

// Counts what it was told.
class CountingScreen : public RecordingScreen {
 public:
    std::vector<std::int64_t> values;

    void ShowProgressValue(std::int64_t newValue) override { values.push_back(newValue); }
};

// Repeats an action, counted from 1, until the condition holds, or gives up after a long time. Returns how long it
// took.
template <class Condition, class Action>
SteadyClock::duration RepeatUntil(Condition holds, Action action) {
    const auto start = SteadyClock::now();
    for (std::int64_t count = 1; !holds() && SteadyClock::now() - start < std::chrono::seconds(10); ++count) {
        action(count);
    }
    return SteadyClock::now() - start;
}

constexpr auto never = [] { return false; };

TEST(SilentScreen, MessagesAreAnsweredAndNothingIsShown) {
    SilentScreen screen;
    screen.ShowStatus(u"nobody");
    BeginProgress(screen, 10);
    ShowMessage(screen, u"nobody");
    EXPECT_EQ(screen.ShowMessage({u"", u"", Icon::None, Buttons::Ok}), Answer::Ok);
    for (const Buttons buttons : {Buttons::OkCancel, Buttons::RetryCancel, Buttons::YesNoCancel}) {
        EXPECT_EQ(screen.ShowMessage({u"", u"", Icon::None, buttons}), Answer::Cancel);
    }
    EXPECT_FALSE(screen.ViewTextFile(u"x.log"));
    EXPECT_FALSE(screen.Print([](int) { return std::vector<std::vector<Text>>(); }));
}

TEST(Screen, AMessageHasAnOkButton) {
    RecordingScreen screen;
    ShowMessage(screen, u"Klaar", Icon::Information, u"Titel");
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.boxes[0].text, u"Klaar");
    EXPECT_EQ(screen.boxes[0].title, u"Titel");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Information);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
}

TEST(Progress, TheBeginningIsAlwaysShown) {
    RecordingScreen screen;
    BeginProgress(screen, 10);
    BeginProgress(screen, 20);
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{10, 20}));
    EXPECT_EQ(screen.pumps, 2);
}

TEST(Progress, TheScreenHearsOfItAtMostEvery50ms) {
    CountingScreen screen;
    const auto time =
        RepeatUntil([&] { return screen.values.size() >= 6; }, [&](std::int64_t i) { StepProgress(screen, i); });
    ASSERT_EQ(screen.values.size(), 6U);
    EXPECT_EQ(screen.pumps, 6);
    EXPECT_GE(time, milliseconds(5 * 50));
    for (std::size_t i = 1; i < screen.values.size(); ++i) EXPECT_GT(screen.values[i], screen.values[i - 1]);
}

TEST(Progress, EventsRunAtMostEvery50ms) {
    CountingScreen screen;
    const auto time = RepeatUntil([&] { return screen.pumps >= 6; }, [&](std::int64_t) { ProcessEvents(screen); });
    EXPECT_EQ(screen.pumps, 6);
    EXPECT_GE(time, milliseconds(5 * 50));
}

// Takes a while to show what has changed.
class SlowScreen : public RecordingScreen {
 public:
    explicit SlowScreen(milliseconds itsTime) : time(itsTime) {}
    void PumpEvents() override {
        RecordingScreen::PumpEvents();
        std::this_thread::sleep_for(time);
    }

 private:
    milliseconds time;
};

TEST(Progress, AScreenThatTakesLongHearsOfItLessOften) {
    SlowScreen screen(milliseconds(5));
    const auto time = RepeatUntil([&] { return screen.pumps >= 3; }, [&](std::int64_t i) { StepProgress(screen, i); });
    EXPECT_EQ(screen.pumps, 3);
    EXPECT_GE(time, milliseconds(2 * 40 * 5));
}

TEST(Progress, AScreenThatTakesVeryLongStillHearsOfItSoon) {
    SlowScreen screen(milliseconds(600));
    RepeatUntil([&] { return screen.pumps >= 2; }, [&](std::int64_t i) { StepProgress(screen, i); });
    EXPECT_EQ(screen.pumps, 2) << "40 times as long would be 24 seconds";
}

TEST(Progress, StepsAreShownAlsoWhenEventsRunBetweenThem) {
    CountingScreen screen;
    const auto time = RepeatUntil([&] { return screen.values.size() >= 3; },
                                  [&](std::int64_t i) {
                                      StepProgress(screen, i);
                                      ProcessEvents(screen);
                                  });
    EXPECT_EQ(screen.values.size(), 3U);
    EXPECT_EQ(screen.pumps, 3);
    EXPECT_GE(time, milliseconds(2 * 50));

    screen.values.clear();
    RepeatUntil([&] { return screen.values.size() >= 3; },
                [&](std::int64_t i) {
                    ProcessEvents(screen);
                    StepProgress(screen, i);
                });
    EXPECT_EQ(screen.values.size(), 3U);
}

TEST(Progress, AStepOfAnEarlierProgressIsNotShownInTheNext) {
    CountingScreen screen;
    RepeatUntil([&] { return screen.values.size() >= 2; }, [&](std::int64_t i) { StepProgress(screen, i); });
    screen.values.clear();
    StepProgress(screen, 1'000'000);  // too soon to be shown
    EXPECT_TRUE(screen.values.empty());
    BeginProgress(screen, 10);
    screen.pumps = 0;
    RepeatUntil([&] { return screen.pumps >= 3; }, [&](std::int64_t) { ProcessEvents(screen); });
    EXPECT_EQ(screen.pumps, 3);
    EXPECT_TRUE(screen.values.empty());
}

TEST(Progress, EachScreenHasItsOwnPace) {
    CountingScreen first;
    CountingScreen second;
    RepeatUntil([&] { return first.values.size() >= 2; }, [&](std::int64_t i) { StepProgress(first, i); });
    // The other one, which has heard nothing yet, does not wait because the first has just been told.
    for (int i = 1; i <= 16; ++i) StepProgress(second, i);
    EXPECT_EQ(second.values, std::vector<std::int64_t>{16});
    EXPECT_EQ(first.values.size(), 2U);
}

TEST(BusyPointer, ItShowsAsLongAsTheObjectLives) {
    class PointerScreen : public RecordingScreen {
     public:
        std::string pointer;
        void ShowBusy(bool busy) override { pointer += busy ? 'B' : 'N'; }
    };
    PointerScreen screen;
    {
        const BusyPointer busy(screen);
        EXPECT_EQ(screen.pointer, "B");
    }
    EXPECT_EQ(screen.pointer, "BN");
}

TEST(Progress, SlowRecordsAreShownSoon) {
    // A machine that has other work while the screen is called makes it one that is called less.
    std::size_t most = 0;
    for (int tries = 0; tries < 5 && most < 3; ++tries) {
        CountingScreen screen;
        for (int i = 1; i <= 64; ++i) {
            StepProgress(screen, i);
            std::this_thread::sleep_for(milliseconds(4));
        }
        most = std::max(most, screen.values.size());
    }
    EXPECT_GE(most, 3U);
}

class AbortingScreen : public RecordingScreen {
 public:
    void PumpEvents() override { throw TranslationAborted(); }
};

TEST(Progress, APersonCanEndTheRun) {
    AbortingScreen screen;
    EXPECT_THROW(BeginProgress(screen, 10), TranslationAborted);
    EXPECT_THROW(RepeatUntil(never, [&](std::int64_t i) { StepProgress(screen, i); }), TranslationAborted);
    EXPECT_THROW(RepeatUntil(never, [&](std::int64_t) { ProcessEvents(screen); }), TranslationAborted);
}

TEST(TryWithRetry, AnActionThatSucceedsShowsNothing) {
    RecordingScreen screen;
    EXPECT_TRUE(TryWithRetry(screen, u"a.idx", u"openen", [] {}));
    EXPECT_TRUE(screen.boxes.empty());
}

TEST(TryWithRetry, RetryRunsTheActionAgainAsOftenAsAsked) {
    RecordingScreen screen;
    screen.answers = {Answer::Retry, Answer::Retry};
    int runs = 0;
    EXPECT_TRUE(TryWithRetry(screen, u"D:\\é.LOG", u"opslaan", [&] {
        if (++runs < 3) throw RuntimeError(errors::accessDenied);
    }));
    EXPECT_EQ(runs, 3);
    ASSERT_EQ(screen.boxes.size(), 2U);
    EXPECT_EQ(screen.messages[0], "Kon bestand: 'D:\\é.LOG' niet opslaan;\nFoutcode: 70\nToegang geweigerd");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::RetryCancel);
    EXPECT_EQ(screen.boxes[0].title, u"KORVANDE");
}

TEST(TryWithRetry, CancelEndsIt) {
    RecordingScreen screen;
    screen.answers = {Answer::Cancel};
    int runs = 0;
    EXPECT_FALSE(TryWithRetry(screen, u"a.nst", u"openen", [&] {
        ++runs;
        throw RuntimeError(errors::fileNotFound, u"weg");
    }));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Kon bestand: 'a.nst' niet openen;\nFoutcode: 53\nweg"});
}

TEST(TryWithRetry, MemoryThatRunsOutIsAnErrorLikeAnyOther) {
    RecordingScreen screen;
    EXPECT_FALSE(TryWithRetry(screen, u"a", u"openen", [] { throw std::bad_alloc(); }));
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Kon bestand: 'a' niet openen;\nFoutcode: 7\nOnvoldoende geheugen"});
}

TEST(TryWithRetry, TheEndOfTheRunIsNoError) {
    RecordingScreen screen;
    EXPECT_THROW(TryWithRetry(screen, u"a", u"openen", [] { throw TranslationAborted(); }), TranslationAborted);
    EXPECT_TRUE(screen.boxes.empty());
}

}  // namespace

}  // namespace korvande::testing
