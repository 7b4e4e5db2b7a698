#include <chrono>
#include <thread>

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

constexpr char abortedMessage[] = "Vertaling afgebroken.";

class Closing : public AppRunTest {
 protected:
    Closing() {
        form.unload = [this] {
            ++unloads;
            if (QueryClose(form)) UnloadForm(form);
        };
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    }

    // What a window's screen does when it lets events run, and one of the events asks for the window's end.
    void CloseAtFirstEvent() {
        screen.onPump = [this] {
            if (!isAsked) {
                isAsked = true;
                mayClose = QueryClose(form);
            }
            EndRunIfAsked(form);
        };
    }

    int unloads = 0;
    bool isAsked = false;
    bool mayClose = true;
};

TEST_F(Closing, AWindowWithoutARunMayCloseWithoutAWord) {
    EXPECT_TRUE(QueryClose(form));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Closing, ARunIsBrokenOffAtItsNextEventsAndThenTheWindowCloses) {
    CloseAtFirstEvent();
    RunTranslation(form);
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("==>  Vertaling afgebroken.\r\n"), std::string::npos);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(form.runMark, u"");
}

TEST_F(Closing, ASecondRequestDuringTheSameRunIsNotToldAgain) {
    screen.onPump = [this] {
        EXPECT_FALSE(QueryClose(form));
        EXPECT_FALSE(QueryClose(form));
        EndRunIfAsked(form);
    };
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
}

TEST_F(Closing, ARunOfACommandLineThatIsBrokenOffClosesTheWindowOnce) {
    options.StartedInteractively = false;
    form.conversion.direction = Direction::FromIdex;
    form.conversion.IdexFileName = options.txtFileIDEX;
    form.conversion.SufNenFileName = folder / "uit.sfn";
    form.conversion.LogFileName = folder / "uit.LOG";
    CloseAtFirstEvent();
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_EQ(unloads, 1);
}

TEST_F(Closing, ARunAfterOneThatWasBrokenOffRunsToItsEnd) {
    CloseAtFirstEvent();
    RunTranslation(form);
    screen.messages.clear();
    unloads = 0;
    screen.onPump = [this] { EndRunIfAsked(form); };
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_EQ(unloads, 0);
}

TEST_F(Closing, AMarkThatAMissingInputLeftIsToldButDoesNotKeepTheWindowOpen) {
    options.txtFileIDEX = folder / "weg.idx";
    RunTranslation(form);
    ASSERT_EQ(ToUtf8(form.runMark), "XLATE RUNNING");
    EXPECT_FALSE(IsRunning(form));
    screen.messages.clear();
    EXPECT_TRUE(QueryClose(form));
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_NO_THROW(EndRunIfAsked(form));
}

TEST_F(Closing, WhileARunIsInProgressNoOtherStarts) {
    int runs = 0;
    screen.onPump = [&] {
        ++runs;
        EXPECT_TRUE(IsBusy(form));
        RunTranslation(form);
    };
    RunTranslation(form);
    EXPECT_GE(runs, 1);
    EXPECT_FALSE(IsBusy(form));
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
}

TEST_F(Closing, TheWindowHearsWhenARunBeginsAndWhenItHasEnded) {
    std::vector<bool> busy;
    form.changed = [&] { busy.push_back(IsBusy(form)); };
    RunTranslation(form);
    ASSERT_GE(busy.size(), 2U);
    EXPECT_TRUE(busy.front());
    EXPECT_FALSE(busy.back());
}

TEST_F(Closing, UnloadingSavesTheProjectAndTheSettings) {
    WriteProject("A.nst", "STAD A");
    RefreshProjects(form);
    LoadProject(form, u"A.nst");
    options.txtCity = u"NIEUWSTAD";
    options.txtMinX = u"42";
    StartEdit(form, form.editedPoints, u'X');
    UnloadForm(form);
    EXPECT_NE(ProjectBytes("A.nst").find("Town = NIEUWSTAD\r\n"), std::string::npos);
    EXPECT_NE(ProjectBytes("A.nst").find("Unknown = X,"), std::string::npos);
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CurrProject"), "A.nst");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "42");
}

TEST_F(Closing, UnloadingWithoutAProjectSavesTheSettingsOnly) {
    UnloadForm(form);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CurrProject"), "");
}

TEST_F(Closing, ARunWithoutAProjectSavesNoneAndUsesTheGrids) {
    Grid& grid = form.gridPoints;
    grid.SetRowCount(3);
    grid[2] = {u"BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("03MS01 "), std::string::npos);
}

TEST_F(Closing, WhileAProjectIsLoadedTheWindowWaitsAndNothingHalfReadIsSaved) {
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "C" + std::to_string(i) + " = S01, PUNT, RIJ\n";
    WriteProject("A.nst", "STAD A", "[Points]\n" + rows);
    RefreshProjects(form);
    CloseAtFirstEvent();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    LoadProject(form, u"A.nst");
    ASSERT_TRUE(isAsked);
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_NE(ProjectBytes("A.nst").find("C199 = S01"), std::string::npos);
    LoadProject(form, u"A.nst");
    EXPECT_EQ(unloads, 1);
}

}  // namespace

}  // namespace korvande::testing
