#include "app/RunTranslation.h"
#include "tests/app/AppTest.h"

// What a person is told at the end of a run, and what becomes of the log book then.
namespace korvande::testing {

namespace {

class RunOutcome : public AppRunTest {
 protected:
    RunOutcome() { form.CurrentProject = u"TEST.NST"; }

    std::string LastMessage() const { return screen.messages.empty() ? "" : screen.messages.back(); }
};

// The drawing without its end.
std::string CutOff(std::string drawing) { return drawing.substr(0, drawing.find("END DATABASE")); }

TEST_F(RunOutcome, ARunWithLossSaysSoInsteadOfThatItIsDone) {
    Choose(0, folder.Write("in.idx", CutOff(Drawing())), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{ToUtf8(folder / "in.idx") +
                                       " is vertaald, met gegevens die niet of anders zijn overgekomen."});
    EXPECT_FALSE(form.lastRun.wentWell);
    ASSERT_EQ(form.lastRun.lists.size(), 2U);
    EXPECT_NE(form.lastRun.lists[1].find(u"END DATABASE ontbreekt"), Text::npos);
    ASSERT_EQ(form.lastRun.account.size(), 1U);
    EXPECT_EQ(form.lastRun.account[0], u"Punten: 1 gelezen, 1 geschreven, 0 weggelaten");
}

TEST_F(RunOutcome, ARunWithLossKeepsItsLogBookWhenNoneIsWantedAndNamesIt) {
    SelectReport(options, &Options::optReportNone);
    Choose(0, folder.Write("in.idx", CutOff(Drawing())), folder / "uit.sfn");
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_TRUE(
        screen.messages[0].ends_with("overgekomen.\n\nLOGBOEK is opgeslagen in:\n\n" + ToUtf8(folder / "uit.LOG")))
        << screen.messages[0];
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("Niet of anders overgekomen:"), std::string::npos);
}

// The drawing as an instrument writes it, without LAYERS.
std::string WithoutLayers(const std::string& drawing) {
    const std::size_t begin = drawing.find("LAYERS");
    return drawing.substr(0, begin) + drawing.substr(drawing.find("DATABASE"));
}

TEST_F(RunOutcome, AFileOfAnInstrumentIsReadWhenAPersonSaysYes) {
    Choose(0, folder.Write("in.idx", WithoutLayers(Drawing())), folder / "uit.sfn");
    screen.answers = {Answer::Yes};
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNo);
    EXPECT_EQ(screen.boxes[0].icon, Icon::Question);
    EXPECT_EQ(screen.messages[1], "Verwerking gereed");
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("03M"), std::string::npos);
}

TEST_F(RunOutcome, AFileOfAnInstrumentStaysUnreadWhenAPersonSaysNo) {
    Choose(0, folder.Write("in.idx", WithoutLayers(Drawing())), folder / "uit.sfn");
    screen.answers = {Answer::No};
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_TRUE(screen.messages[1].starts_with(ToUtf8(folder / "in.idx") + " is vertaald, met 1 fout"))
        << LastMessage();
    EXPECT_EQ(FileBytes(folder / "uit.sfn").find("03M"), std::string::npos);
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("Geen LAYERS gevonden"), std::string::npos);
}

TEST_F(RunOutcome, WhatTheSettingsLeaveOutIsNoLoss) {
    options.chkExportUnknowns = false;
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
    EXPECT_TRUE(form.lastRun.wentWell);
    ASSERT_EQ(form.lastRun.lists.size(), 2U);
    EXPECT_EQ(form.lastRun.lists[0], u"Volgens de controletabel en de instellingen:");
    EXPECT_EQ(ToUtf8(form.lastRun.lists[1]), "  1 punt met een onbekende code (op regel 8)");
}

TEST_F(RunOutcome, ARunStartedByACommandLineTellsWhatDidNotGoWell) {
    options.StartedInteractively = false;
    form.unload = [&] { EXPECT_EQ(screen.messages.size(), 1U); };
    form.cboXlateMode = {{u"Export SUF2"}, 0};
    form.conversion.direction = Direction::FromIdex;
    form.conversion.IdexFileName = folder.Write("in.idx", CutOff(Drawing()));
    form.conversion.SufNenFileName = folder / "uit.sf2";
    form.conversion.LogFileName = folder / "uit.LOG";
    RunTranslation(form);
    EXPECT_TRUE(LastMessage().starts_with(ToUtf8(folder / "in.idx") + " is vertaald, met ")) << LastMessage();
}

}  // namespace

}  // namespace korvande::testing
