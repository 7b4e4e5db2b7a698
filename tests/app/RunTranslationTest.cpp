#include "app/RunTranslation.h"

#include <filesystem>

#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class RunTranslationTest : public AppRunTest {
 protected:
    RunTranslationTest() { form.CurrentProject = u"TEST.NST"; }

    std::string LastMessage() const { return screen.messages.empty() ? "" : screen.messages.back(); }
};

TEST_F(RunTranslationTest, AnEmptyOutputNameIsTheInputsLessThreeCharactersAndSfn) {
    std::filesystem::create_directory(folder.Path() + "/DATA");
    folder.Write("DATA/KAART.IDX", Drawing());
    const Text name = folder / "DATA\\KAART.";
    Choose(0, Concat(name, u"IDX"), u"  ");
    RunTranslation(form);
    EXPECT_EQ(form.conversion.SufNenFileName, Concat(name, u"SFN"));
    EXPECT_EQ(form.conversion.LogFileName, Concat(name, u"LOG"));
    EXPECT_EQ(options.txtFileSUFNEN, Concat(name, u"SFN"));
    EXPECT_TRUE(FileIsThere(folder / "DATA/KAART.SFN"));
    EXPECT_TRUE(FileIsThere(folder / "DATA/KAART.LOG"));
}

TEST_F(RunTranslationTest, ADerivedNameReplacesTheLastThreeCharactersWhateverTheyAre) {
    Choose(0, folder.Write("KAART.IDEX", Drawing()), u"");
    RunTranslation(form);
    EXPECT_EQ(form.conversion.SufNenFileName, folder / "KAART.ISFN");
    EXPECT_TRUE(FileIsThere(folder / "KAART.ISFN"));
}

TEST_F(RunTranslationTest, TowardsIdexTheNamesAreDerivedFromTheIdexName) {
    Choose(2, u"", folder.Write("X.NEN", Nen1878()));
    RunTranslation(form);
    EXPECT_EQ(form.conversion.IdexFileName, folder / "X.IDX");
    EXPECT_EQ(form.conversion.LogFileName, folder / "X.LOG");
    EXPECT_EQ(options.txtFileIDEX, folder / "X.IDX");
    EXPECT_TRUE(FileIsThere(folder / "X.IDX"));
    EXPECT_EQ(form.conversion.direction, Direction::ToIdex);
}

TEST_F(RunTranslationTest, TheRunIsMarkedWhileItLastsAndSaysWhenItIsDone) {
    std::string markDuringRun;
    screen.onPump = [&] { markDuringRun = ToUtf8(form.runMark); };
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(markDuringRun, "XLATE RUNNING");
    EXPECT_EQ(ToUtf8(form.runMark), "");
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
}

TEST_F(RunTranslationTest, ARunThatIsDoneShowsNoStepAnyMore) {
    screen.onMessage = [&] {
        EXPECT_EQ(screen.statuses.back(), "");
        EXPECT_EQ(screen.maxima.back(), 1);
    };
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
    EXPECT_GT(screen.statuses.size(), 5U);
}

TEST_F(RunTranslationTest, WhatTheRunDidNotShowYetIsNotShownAfterIt) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    screen.onMessage = [&] {
        screen.value = 0;
        screen.pace.lastShown = {};
        TellProgress(screen);
        EXPECT_EQ(screen.value, 0);
    };
    // As the last record may do, between two moments at which the screen is told.
    form.changed = [&] { screen.pace.hasValue = screen.pace.hasValue || form.activity.isRunning; };
    screen.pace.value = 1000;
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
}

TEST_F(RunTranslationTest, AMissingInputStopsTheRunBeforeAnythingIsWrittenAndKeepsTheRunMark) {
    Choose(0, folder / "weg.idx", folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'");
    EXPECT_EQ(folder.Listing(), "projecten");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(ToUtf8(form.runMark), "XLATE RUNNING");
}

TEST_F(RunTranslationTest, AMissingNen1878FileIsNamedInTheMessageToo) {
    Choose(3, u"", folder / "weg.sf2");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.sf2") + "'");
}

TEST_F(RunTranslationTest, ARunAfterAStoppedOneIsAWholeRun) {
    Choose(0, folder / "weg.idx", folder / "uit.sfn");
    RunTranslation(form);
    folder.Write("weg.idx", Drawing());
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
    EXPECT_EQ(ToUtf8(form.runMark), "");
}

TEST_F(RunTranslationTest, InputAndOutputThatAreTheSameFileAreRefused) {
    const Text file = folder.Write("in.idx", Drawing());
    Choose(0, file, folder / "./in.idx");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Invoer en uitvoer zijn hetzelfde bestand:\n" + ToUtf8(file));
    EXPECT_EQ(FileBytes(file), Drawing());
    EXPECT_EQ(folder.Listing(), "in.idx projecten");
    EXPECT_EQ(ProjectNames(), "");
}

TEST_F(RunTranslationTest, ALogBookThatWouldReplaceTheInputIsRefused) {
    const Text file = folder.Write("in.LOG", Drawing());
    Choose(0, file, folder / "in.sfn");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Invoer en logboek zijn hetzelfde bestand:\n" + ToUtf8(file));
    EXPECT_EQ(FileBytes(file), Drawing());
}

TEST_F(RunTranslationTest, ALogBookThatWouldReplaceTheOutputIsRefused) {
    const Text input = folder.Write("in.idx", Drawing());
    const Text output = folder.Write("uit.LOG", "vorige");
    Choose(0, input, output);
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Uitvoer en logboek zijn hetzelfde bestand:\n" + ToUtf8(output));
    EXPECT_EQ(FileBytes(output), "vorige");
    EXPECT_EQ(folder.Listing(), "in.idx projecten uit.LOG");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(ToUtf8(form.runMark), "");
}

TEST_F(RunTranslationTest, AnOutputThatIsTheControlTableIsRefused) {
    const Text input = folder.Write("in.idx", Drawing());
    WriteProject("TEST.NST", "ELDERS");
    const std::string before = ProjectBytes("TEST.NST");
    const Text output = folder / "projecten/./TEST.NST";
    Choose(0, input, output);
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Controletabel en uitvoer zijn hetzelfde bestand:\n" + ToUtf8(output));
    EXPECT_EQ(ProjectBytes("TEST.NST"), before);
    EXPECT_EQ(ProjectNames(), "TEST.NST");
}

TEST_F(RunTranslationTest, ALogBookThatIsTheControlTableIsRefused) {
    form.CurrentProject = u"TEST.LOG";
    WriteProject("TEST.LOG", "ELDERS");
    const std::string before = ProjectBytes("TEST.LOG");
    Choose(0, folder.Write("in.idx", Drawing()), folder / "projecten/TEST.SFN");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(),
              "Controletabel en logboek zijn hetzelfde bestand:\n" + ToUtf8(folder / "projecten/TEST.LOG"));
    EXPECT_EQ(ProjectBytes("TEST.LOG"), before);
    EXPECT_EQ(ProjectNames(), "TEST.LOG");
}

// A NEN1878 file about which its import asks a question, as its 02 record has no precision.
std::string DoubtfulNen1878(const std::string& nen1878) {
    std::string bytes = nen1878;
    bytes[bytes.find("\r\n02") + 2 + 6] = '0';
    return bytes;
}

TEST_F(RunTranslationTest, AnImportThatWasCancelledAtAQuestionStillDisposesOfItsLogBookAndSaysSo) {
    Choose(2, folder / "uit.idx", folder.Write("in.nen", DoubtfulNen1878(Nen1878())));
    screen.answers = {Answer::Cancel};
    RunTranslation(form);
    EXPECT_EQ(screen.viewed, std::vector<std::string>{ToUtf8(folder / "uit.LOG")});
    ASSERT_EQ(screen.messages.size(), 3U);
    EXPECT_EQ(screen.messages[1], "NEN1878 import afgebroken door gebruiker.");
    EXPECT_EQ(screen.messages[2], ToUtf8(folder / "in.nen") + " is niet vertaald: afgebroken.");
}

TEST_F(RunTranslationTest, ACancelledImportThatACommandLineStartedKeepsItsLogBookNamesItAndClosesTheWindow) {
    options.StartedInteractively = false;
    SelectReport(options, &Options::optReportNone);
    bool isUnloaded = false;
    form.unload = [&] { isUnloaded = true; };
    form.cboXlateMode = {{u"Import NEN1878"}, 0};
    form.conversion.direction = Direction::ToIdex;
    form.conversion.SufNenFileName = folder.Write("in.nen", DoubtfulNen1878(Nen1878()));
    form.conversion.IdexFileName = folder / "uit.idx";
    form.conversion.LogFileName = folder / "uit.LOG";
    screen.answers = {Answer::Cancel};
    RunTranslation(form);
    EXPECT_TRUE(isUnloaded);
    ASSERT_EQ(screen.messages.size(), 3U);
    EXPECT_EQ(screen.messages[2], ToUtf8(folder / "in.nen") +
                                      " is niet vertaald: afgebroken.\n\nLOGBOEK is opgeslagen in:\n\n" +
                                      ToUtf8(folder / "uit.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "uit.LOG"));
}

TEST_F(RunTranslationTest, SettingsAndProjectAreSavedBeforeTheRun) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    options.txtMinX = u"42";
    RunTranslation(form);
    EXPECT_NE(ProjectBytes("TEST.NST").find("SUFNENFile = "), std::string::npos);
    Text value;
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"Software\\TERAMUND\\KORVANDE", u"MinX", value));
    EXPECT_EQ(ToUtf8(value), "42");
}

TEST_F(RunTranslationTest, TheGridsAreWhatIsTranslatedWith) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    Grid& grid = form.gridPoints;
    grid.SetRowCount(3);
    grid[2] = {u"BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    RunTranslation(form);
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("03MS01 "), std::string::npos);
}

TEST_F(RunTranslationTest, ACodeWithABlankBeforeItInItsCellIsAnotherCode) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    form.gridPoints.SetRowCount(3);
    form.gridPoints[2] = {u" BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    RunTranslation(form);
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("03MQ20 "), std::string::npos);
}

TEST_F(RunTranslationTest, AListingToDiskIsToldWithItsName) {
    SelectReport(options, &Options::optReportDisk);
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_EQ(screen.messages[0], "LOGBOEK is opgeslagen in:\n\n" + ToUtf8(folder / "uit.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "uit.LOG"));
}

TEST_F(RunTranslationTest, AListingToTheScreenStartsTheViewer) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(screen.viewed, std::vector<std::string>{ToUtf8(folder / "uit.LOG")});
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
}

TEST_F(RunTranslationTest, AMissingViewerIsToldWithTheLogBooksName) {
    screen.viewerStarts = false;
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_EQ(screen.messages[0], "Verwerking gereed");
    EXPECT_NE(screen.messages[1].find(ToUtf8(folder / "uit.LOG")), std::string::npos);
}

TEST_F(RunTranslationTest, TheEndIsToldBeforeTheViewerComesToTheFront) {
    screen.onMessage = [this] { EXPECT_TRUE(screen.viewed.empty()); };
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(LastMessage(), "Verwerking gereed");
    EXPECT_EQ(screen.viewed.size(), 1U);
}

TEST_F(RunTranslationTest, WithoutAListingNoLogBookRemains) {
    SelectReport(options, &Options::optReportNone);
    Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_FALSE(FileIsThere(folder / "uit.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "uit.sfn"));
}

TEST_F(RunTranslationTest, ARunStartedByACommandLineUsesItsNamesAndClosesTheWindowWithoutAWord) {
    options.StartedInteractively = false;
    bool isUnloaded = false;
    form.unload = [&] { isUnloaded = true; };
    form.cboXlateMode = {{u"Export SUF2"}, 0};
    form.conversion.direction = Direction::FromIdex;
    form.conversion.IdexFileName = folder.Write("in.idx", Drawing());
    form.conversion.SufNenFileName = folder / "uit.sf2";
    form.conversion.LogFileName = folder / "uit.LOG";
    RunTranslation(form);
    EXPECT_TRUE(isUnloaded);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_NE(FileBytes(folder / "uit.sf2").find("VAIKLI, LisCAD"), std::string::npos);
}

TEST_F(RunTranslationTest, AnUnknownDirectionIsToldAndNothingRuns) {
    options.StartedInteractively = false;
    form.conversion.direction = Direction::None;
    form.conversion.IdexFileName = folder.Write("in.idx", Drawing());
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Onbekende vertaalrichting."});
    EXPECT_EQ(folder.Listing(), "in.idx projecten");
    EXPECT_EQ(ProjectNames(), "");
}

TEST_F(RunTranslationTest, ACancelledLogBookEndsTheRunAtOnce) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "geen/uit.sfn");
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + ToUtf8(folder / "geen/uit.LOG") + "' niet opslaan;\nFoutcode: 76\nPad niet gevonden");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::RetryCancel);
}

TEST_F(RunTranslationTest, RetryOpensTheLogBookAgain) {
    Choose(0, folder.Write("in.idx", Drawing()), folder / "geen/uit.sfn");
    screen.answers = {Answer::Retry, Answer::Retry};
    screen.onMessage = [&] {
        if (screen.messages.size() == 2) std::filesystem::create_directory(folder.Path() + "/geen");
    };
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 3U);
    EXPECT_EQ(screen.messages[0], screen.messages[1]);
    EXPECT_EQ(screen.messages[2], "Verwerking gereed");
    EXPECT_TRUE(FileIsThere(folder / "geen/uit.sfn"));
}

TEST_F(RunTranslationTest, ARunThatIsBrokenOffSaysSoInTheLogBookOnly) {
    std::string rows;
    for (int i = 1; i <= 20000; ++i) rows += std::to_string(i) + ",\"\",1,2,0,\"\",\"\",0;\n";
    const std::string drawing =
        "HEADER\nEND HEADER\nLAYERS (A)\nEND\nDATABASE\nPOINTS (PointNo,PointID,East)\n" + rows + "END\n";
    screen.onPump = [&] {
        if (ToUtf8(form.runMark) == "XLATE RUNNING") throw TranslationAborted();
    };
    Choose(0, folder.Write("in.idx", drawing), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("==>  Vertaling afgebroken.\r\n"), std::string::npos);
    EXPECT_EQ(ToUtf8(form.runMark), "");
}

}  // namespace

}  // namespace korvande::testing
