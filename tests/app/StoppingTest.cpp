#include "core/RuntimeError.h"
#include "tests/app/AppTest.h"

// A run that its user stops leaves the window open and everything as it was.
namespace korvande::testing {

namespace {

class Stopping : public AppRunTest {
 protected:
    Stopping() {
        form.CurrentProject = u"TEST.NST";
        form.unload = [this] { ++unloads; };
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    }

    // What a window's screen does when it lets events run, and one of the events is a click on the button.
    void StopAtFirstEvent() {
        screen.onPump = [this] {
            StopRun(form);
            EndRunIfAsked(form);
        };
    }

    int unloads = 0;
};

TEST_F(Stopping, AStopEndsTheRunAtItsNextEventAndKeepsTheWindowOpen) {
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(unloads, 0);
    EXPECT_FALSE(IsRunning(form));
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(screen.viewed.empty());
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("==>  Vertaling afgebroken.\r\n"), std::string::npos);
}

TEST_F(Stopping, TheOutputStaysAsItWas) {
    folder.Write("uit.sfn", "vorige week");
    screen.answers = {Answer::Yes};
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), "vorige week");
    EXPECT_EQ(ListingWithoutSettings(), "in.idx projecten uit.LOG uit.sfn");
}

TEST_F(Stopping, WithoutAnEarlierOutputThereIsNone) {
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_FALSE(FileIsThere(folder / "uit.sfn"));
    EXPECT_EQ(form.outputs.size(), 0U);
}

TEST_F(Stopping, TheOutcomeSaysThatItWasStopped) {
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(ToUtf8(form.lastRun.outcome), ToUtf8(folder / "in.idx") + " is niet vertaald: afgebroken.");
    EXPECT_FALSE(form.lastRun.wentWell);
}

TEST_F(Stopping, MarkStatusAndGaugeAreEmptyAfterwards) {
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(form.runMark, u"");
    EXPECT_EQ(screen.statuses.back(), "");
    EXPECT_EQ(screen.maxima.back(), 1);
}

TEST_F(Stopping, ARunAfterAStoppedOneRunsToItsEnd) {
    StopAtFirstEvent();
    RunTranslation(form);
    screen.onPump = [this] { EndRunIfAsked(form); };
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
}

TEST_F(Stopping, AStopWithoutARunIsForgotten) {
    StopRun(form);
    EXPECT_FALSE(IsStopAsked(form));
    EXPECT_NO_THROW(EndRunIfAsked(form));
}

TEST_F(Stopping, ARunOfACommandLineThatIsStoppedLeavesTheWindowOpenToo) {
    options.StartedInteractively = false;
    form.conversion.direction = Direction::FromIdex;
    form.conversion.IdexFileName = folder / "in.idx";
    form.conversion.SufNenFileName = folder / "uit.sfn";
    form.conversion.LogFileName = folder / "uit.LOG";
    StopAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(unloads, 0);
    screen.onPump = {};
    RunTranslation(form);
    EXPECT_EQ(unloads, 1);
}

TEST_F(Stopping, AClosingWindowStillClosesAfterAStop) {
    screen.onPump = [this] {
        StopRun(form);
        AskEndOfRun(form);
        EndRunIfAsked(form);
    };
    RunTranslation(form);
    EXPECT_EQ(unloads, 1);
}

TEST_F(Stopping, AProjectThatIsBeingLoadedIsLoadedToItsEnd) {
    const Running running(form.activity);
    form.activity.isLoading = true;
    StopRun(form);
    EXPECT_NO_THROW(EndRunIfAsked(form));
    form.activity.isLoading = false;
    EXPECT_THROW(EndRunIfAsked(form), TranslationAborted);
}

}  // namespace

}  // namespace korvande::testing
