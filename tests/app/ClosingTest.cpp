#include <chrono>
#include <thread>

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

constexpr char abortedMessage[] = "Vertaling afgebroken.";

class Closing : public AppTest {
 protected:
    Closing() {
        frmKORVANDE().unload = [this] {
            ++unloads;
            if (QueryClose()) UnloadForm();
        };
        frmKORVANDE().cboXlateMode.index = 0;
        frmKORVANDE().txtFileIDEX = folder.Write("in.idx", Drawing());
        frmKORVANDE().txtFileSUFNEN = folder / "uit.sfn";
    }

    // What a window's screen does when it lets events run, and one of the events asks for the window's end.
    void CloseAtFirstEvent() {
        screen.onPump = [this] {
            if (!isAsked) {
                isAsked = true;
                mayClose = QueryClose();
            }
            EndRunIfAsked();
        };
    }

    int unloads = 0;
    bool isAsked = false;
    bool mayClose = true;
};

TEST_F(Closing, AWindowWithoutARunMayCloseWithoutAWord) {
    EXPECT_TRUE(QueryClose());
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Closing, ARunIsBrokenOffAtItsNextEventsAndThenTheWindowCloses) {
    CloseAtFirstEvent();
    RunTranslation();
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_TRUE(TheRun().outcome.cancelled);
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("==>  Vertaling afgebroken.\r\n"), std::string::npos);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(frmKORVANDE().runMark, u"");
}

TEST_F(Closing, ASecondRequestDuringTheSameRunIsNotToldAgain) {
    screen.onPump = [] {
        EXPECT_FALSE(QueryClose());
        EXPECT_FALSE(QueryClose());
        EndRunIfAsked();
    };
    RunTranslation();
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
}

TEST_F(Closing, ARunOfACommandLineThatIsBrokenOffClosesTheWindowOnce) {
    StartedInteractively() = false;
    TheRun().XlateDirection = fromIdex;
    TheRun().IdexFileName = frmKORVANDE().txtFileIDEX;
    TheRun().SufNenFileName = folder / "uit.sfn";
    TheRun().LogFileName = folder / "uit.LOG";
    CloseAtFirstEvent();
    RunTranslation();
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_EQ(unloads, 1);
}

TEST_F(Closing, ARunAfterOneThatWasBrokenOffRunsToItsEnd) {
    CloseAtFirstEvent();
    RunTranslation();
    screen.messages.clear();
    unloads = 0;
    screen.onPump = EndRunIfAsked;
    RunTranslation();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_EQ(unloads, 0);
}

TEST_F(Closing, AMarkThatAMissingInputLeftIsToldButDoesNotKeepTheWindowOpen) {
    frmKORVANDE().txtFileIDEX = folder / "weg.idx";
    RunTranslation();
    ASSERT_EQ(ToUtf8(frmKORVANDE().runMark), "XLATE RUNNING");
    EXPECT_FALSE(IsTranslating());
    screen.messages.clear();
    EXPECT_TRUE(QueryClose());
    EXPECT_EQ(screen.messages, std::vector<std::string>{abortedMessage});
    EXPECT_NO_THROW(EndRunIfAsked());
}

TEST_F(Closing, WhileARunIsInProgressNoOtherStarts) {
    int runs = 0;
    screen.onPump = [&] {
        ++runs;
        EXPECT_TRUE(IsBusy());
        RunTranslation();
    };
    RunTranslation();
    EXPECT_GE(runs, 1);
    EXPECT_FALSE(IsBusy());
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
}

TEST_F(Closing, TheWindowHearsWhenARunBeginsAndWhenItHasEnded) {
    std::vector<bool> busy;
    frmKORVANDE().changed = [&] { busy.push_back(IsBusy()); };
    RunTranslation();
    ASSERT_GE(busy.size(), 2U);
    EXPECT_TRUE(busy.front());
    EXPECT_FALSE(busy.back());
}

TEST_F(Closing, UnloadingSavesTheProjectAndTheSettings) {
    WriteProject("A.nst", "STAD A");
    RefreshProjects();
    LoadProject(u"A.nst");
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    frmKORVANDE().txtMinX = u"42";
    StartEdit(EditedPoints(), u'X', {}, {});
    UnloadForm();
    EXPECT_NE(ProjectBytes("A.nst").find("Town = NIEUWSTAD\r\n"), std::string::npos);
    EXPECT_NE(ProjectBytes("A.nst").find("Unknown = X,"), std::string::npos);
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CurrProject"), "A.nst");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "42");
}

TEST_F(Closing, UnloadingWithoutAProjectSavesTheSettingsOnly) {
    UnloadForm();
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CurrProject"), "");
}

TEST_F(Closing, ARunWithoutAProjectSavesNoneAndUsesTheGrids) {
    Grid& grid = frmKORVANDE().gridPoints;
    grid.SetRowCount(3);
    grid[2] = {u"BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    RunTranslation();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("03MS01 "), std::string::npos);
}

TEST_F(Closing, WhileAProjectIsLoadedTheWindowWaitsAndNothingHalfReadIsSaved) {
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "C" + std::to_string(i) + " = S01, PUNT, RIJ\n";
    WriteProject("A.nst", "STAD A", "[Points]\n" + rows);
    RefreshProjects();
    CloseAtFirstEvent();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    LoadProject(u"A.nst");
    ASSERT_TRUE(isAsked);
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_NE(ProjectBytes("A.nst").find("C199 = S01"), std::string::npos);
    LoadProject(u"A.nst");
    EXPECT_EQ(unloads, 1);
}

}  // namespace

}  // namespace korvande::testing
