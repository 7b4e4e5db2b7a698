#include "run/TranslateFiles.h"

#include <filesystem>
#include <utility>

#include "host/modFileHandling.h"
#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

class TranslateFilesTest : public RunTest {
 protected:
    TranslateFilesTest() { options.chkExportUnknowns = true; }
};

TEST_F(TranslateFilesTest, TheLogBookBeginsAndEndsWithNamesModeAndMoments) {
    EXPECT_TRUE(TranslateFiles(Begin(idexToNen, u"  C:\\KA\"ART.IDX ", u"weg.sfn")));
    EXPECT_EQ(LogText(),
              "\n"
              "--- LISCAD  -  NEN1878/SUF2 Vertaler Versie:  8.01.064  -  Logboek ---\n"
              "\n"
              "\n"
              "IDEX bestand:    \"C:\\KA'ART.IDX\"\n"
              "SUF/NEN bestand: \"weg.sfn\"\n"
              "\n"
              "     Bewerking:  IDEX >> NEN1878\n"
              "     Start:      21-11-202603:00:00\n"
              "\n"
              "==>  Bestand:   C:\\KA\"ART.IDX  niet gevonden; verwerking afgebroken.\n"
              "\n"
              "     Bewerking:  IDEX >> NEN1878\n"
              "     Gereed:     21-11-202603:00:00\n");
}

TEST_F(TranslateFilesTest, TheLogBookTellsTheModeInTheWordsOfTheFrontEnd) {
    Translation& translation = BeginInMemory(idexToNen, OnePoint());
    translation.modeText = u"Export NEN1878";
    TranslateFiles(translation);
    EXPECT_NE(LogText().find("     Bewerking:  Export NEN1878\n"), std::string::npos);
    EXPECT_EQ(LogText().find("IDEX >> NEN1878"), std::string::npos);
}

TEST_F(TranslateFilesTest, AnInputThatHasDisappearedIsToldAndNoReaderOrWriterRuns) {
    const Text name = folder / "weg.sfn";
    Translation& translation = Begin(nenToIdex, name, folder / "uit.idx");
    TranslateFiles(translation);
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Bestand: " + ToUtf8(name) +
                                       " niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken."});
    EXPECT_NE(LogText().find("==>  Bestand: " + ToUtf8(name) + " niet gevonden; verwerking afgebroken.\n"),
              std::string::npos);
    EXPECT_FALSE(FileIsThere(folder / "uit.idx"));
    EXPECT_TRUE(translation.outcome.inputUnreadable);
}

TEST_F(TranslateFilesTest, TheModeDecidesWhatIsReadAndWritten) {
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    const std::string nen = last->outputBytes;
    EXPECT_TRUE(nen.starts_with("010NEN1878 ")) << nen;
    TranslateFiles(BeginInMemory(idexToSuf, OnePoint()));
    const std::string suf = last->outputBytes;
    EXPECT_TRUE(suf.starts_with("010           V")) << suf;
    for (const auto& [mode, exchange] : {std::pair(nenToIdex, nen), std::pair(sufToIdex, suf)}) {
        TranslateFiles(BeginInMemory(mode, exchange));
        EXPECT_TRUE(last->outputBytes.starts_with("HEADER\r\n")) << last->outputBytes;
        EXPECT_EQ(last->account[ObjectKind::Point].written, 1);
    }
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(TranslateFilesTest, AnErrorThatEscapesTheReaderIsLoggedAndWhatWasReadIsWritten) {
    const std::string drawing = OnePoint();
    Translation& translation = BeginInMemory(idexToNen, drawing.substr(0, drawing.find("END POINTS")));
    TranslateFiles(translation);
    const std::string log = LogText();
    EXPECT_NE(log.find("FOUT:  Invoer voorbij het einde van het bestand (regel 8)\n"), std::string::npos) << log;
    EXPECT_NE(log.find(" Punten:            1\n"), std::string::npos) << log;
    EXPECT_NE(translation.outputBytes.find("X121000500Y487000250"), std::string::npos);
    EXPECT_EQ(translation.problems.errors, 1);
    EXPECT_EQ(translation.inputLine, 0);
    EXPECT_FALSE(translation.outcome.Failed());
}

TEST_F(TranslateFilesTest, AnErrorThatEscapesTheWriterIsLoggedAndTheFooterFollows) {
    Translation& translation = Begin(idexToNen, folder.Write("in.idx", OnePoint()), u"/dev/full");
    TranslateFiles(translation);
    const std::string log = LogText();
    EXPECT_NE(log.find("FOUT:  Schijf vol\n"), std::string::npos) << log;
    EXPECT_NE(log.find("     Gereed:     "), std::string::npos) << log;
    EXPECT_TRUE(translation.outcome.outputFailed);
}

TEST_F(TranslateFilesTest, ALogBookThatCannotBeWrittenDoesNotEndTheRun) {
    Translation& translation = BeginInMemory(idexToNen, OnePoint());
    translation.LogFileName = u"/dev/full";
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_NE(translation.outputBytes.find("X121000500Y487000250"), std::string::npos);
    EXPECT_TRUE(translation.outcome.logBookFailed);
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Het logboek kon niet volledig worden geschreven:\n/dev/full\nSchijf vol"});
}

TEST_F(TranslateFilesTest, ALogBookThatCannotBeOpenedIsAskedAboutAndAfterCancelNothingIsDone) {
    screen.answers = {Answer::Retry, Answer::Cancel};
    Translation& translation = BeginInMemory(idexToNen, OnePoint());
    translation.LogFileName = folder / "geen map/a.log";
    EXPECT_FALSE(TranslateFiles(translation));
    EXPECT_EQ(screen.messages.size(), 2U);
    EXPECT_TRUE(screen.messages[0].starts_with("Kon bestand: '")) << screen.messages[0];
    EXPECT_TRUE(translation.outcome.logBookFailed);
    EXPECT_EQ(translation.outputBytes, "");
    EXPECT_EQ(translation.account[ObjectKind::Point].read, 0);
}

TEST_F(TranslateFilesTest, WithoutALogBooksNameNoneIsKept) {
    Translation& translation = Begin(idexToNen, folder.Write("in.idx", OnePoint()), folder / "uit.sfn");
    translation.LogFileName.clear();
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_EQ(folder.Listing(), "in.idx uit.sfn");
}

TEST_F(TranslateFilesTest, AnEarlierOutputStaysUntilTheNewOneIsFinished) {
    class WatchingScreen : public RecordingScreen {
     public:
        explicit WatchingScreen(Text file) : output(std::move(file)) {}
        void ShowStatus(TextView) override { seen.push_back(FileBytes(output)); }
        Text output;
        std::vector<std::string> seen;
    };
    WatchingScreen watching(folder.Write("uit.sfn", "van gisteren"));
    Translation translation(watching, project);
    translation.mode = idexToNen;
    translation.IdexFileName = folder.Write("in.idx", OnePoint());
    translation.SufNenFileName = folder / "uit.sfn";
    translation.withDiagnosticFiles = false;
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_GT(watching.seen.size(), 3U);
    for (const std::string& bytes : watching.seen) EXPECT_EQ(bytes, "van gisteren");
    EXPECT_TRUE(FileBytes(folder / "uit.sfn").starts_with("010NEN1878"));
    EXPECT_EQ(folder.Listing(), "in.idx uit.sfn");
}

TEST_F(TranslateFilesTest, AFailedRunLeavesAnEarlierOutputAndMakesNone) {
    const Text none = folder.Write("geen.txt", "geen tekening\r\n");
    for (const Mode mode : {idexToNen, idexToSuf, nenToIdex, sufToIdex}) {
        folder.Write("eerder", "van gisteren");
        for (const char* const output : {"eerder", "nieuw"}) {
            for (const Text& from : {none, folder / "weg.txt"}) {
                Translation& translation = Begin(mode, from, folder / output);
                translation.LogFileName.clear();
                EXPECT_TRUE(TranslateFiles(translation));
                EXPECT_TRUE(translation.outcome.Failed());
                EXPECT_EQ(FileBytes(folder / "eerder"), "van gisteren");
                EXPECT_EQ(folder.Listing(), "eerder geen.txt");
            }
        }
    }
}

// Says that the run is to end as soon as it is asked.
class EndingScreen : public RecordingScreen {
 public:
    void PumpEvents() override { throw TranslationAborted(); }
};

TEST_F(TranslateFilesTest, ARunThatAPersonEndsLeavesAnEarlierOutputAndMakesNone) {
    folder.Write("eerder", "van gisteren");
    const std::string drawing = OnePoint();
    TranslateFiles(BeginInMemory(idexToNen, drawing));
    const std::string exchange = last->outputBytes;
    folder.Write("in", exchange);
    for (const char* const output : {"eerder", "nieuw"}) {
        EndingScreen ending;
        Translation translation(ending, project);
        translation.mode = nenToIdex;
        translation.SufNenFileName = folder / "in";
        translation.IdexFileName = folder / output;
        EXPECT_TRUE(TranslateFiles(translation));
        EXPECT_TRUE(translation.outcome.cancelled);
        EXPECT_EQ(FileBytes(folder / "eerder"), "van gisteren");
        EXPECT_EQ(folder.Listing(), "eerder in test.log");
    }
}

TEST_F(TranslateFilesTest, AnOutputThatCannotTakeItsPlaceIsToldBehindTheEndOfTheLogBook) {
    // Its place is taken while the import is read.
    class TakingScreen : public RecordingScreen {
     public:
        explicit TakingScreen(std::string path) : place(std::move(path)) {}
        void ShowStatus(TextView) override { std::filesystem::create_directory(place); }
        std::string place;
    };
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    folder.Write("in", last->outputBytes);
    TakingScreen taking(folder.Path() + "/uit.idx");
    Translation translation(taking, project);
    translation.mode = nenToIdex;
    translation.modeText = u"x";
    translation.SufNenFileName = folder / "in";
    translation.IdexFileName = folder / "uit.idx";
    translation.LogFileName = logName;
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_TRUE(translation.outcome.outputFailed);
    const std::string message = "Kon bestand: '" + folder.Path() + "/uit.idx' niet opslaan;";
    EXPECT_TRUE(LogText().ends_with("03:00:00\nFOUT:  " + message + " Foutcode: 75\n")) << LogText();
    EXPECT_EQ(taking.messages, std::vector<std::string>{message + "\nFoutcode: 75"});
    EXPECT_EQ(folder.Listing(), "in test.log uit.idx");
}

TEST_F(TranslateFilesTest, AnOutputThatCannotTakeItsPlaceIsToldWithoutALogBookToo) {
    class TakingScreen : public RecordingScreen {
     public:
        explicit TakingScreen(std::string path) : place(std::move(path)) {}
        void ShowStatus(TextView) override { std::filesystem::create_directory(place); }
        std::string place;
    };
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    DeleteFileAt(logName);
    TakingScreen taking(folder.Path() + "/uit.idx");
    Translation translation(taking, project);
    translation.mode = nenToIdex;
    translation.SufNenFileName = folder.Write("in", last->outputBytes);
    translation.IdexFileName = folder / "uit.idx";
    translation.withDiagnosticFiles = false;
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_TRUE(translation.outcome.outputFailed);
    EXPECT_EQ(taking.messages.size(), 1U);
    EXPECT_EQ(folder.Listing(), "in uit.idx");
}

// Ends the run when the points have been written.
class EndingAtLines : public RecordingScreen {
 public:
    void ShowStatus(TextView text) override {
        if (text == u"Schrijven Exportbestand: Lijnen") throw TranslationAborted();
    }
};

TEST_F(TranslateFilesTest, WhatAnEndedRunWroteStandsInTheFileThatAFrontEndNamed) {
    EndingAtLines ending;
    Translation translation(ending, project);
    translation.mode = idexToNen;
    translation.IdexFileName = folder.Write("in", OnePoint());
    translation.SufNenFileName = folder / "uit.sfn";
    translation.temporaryOutput = folder / "tijdelijk";
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_TRUE(translation.outcome.cancelled);
    EXPECT_NE(FileBytes(translation.temporaryOutput).find("X121000500Y487000250"), std::string::npos);
    EXPECT_EQ(folder.Listing(), "in tijdelijk");
}

TEST_F(TranslateFilesTest, AnEndedRunWhoseOutputIsFullTellsThatToo) {
    EndingAtLines ending;
    Translation translation(ending, project);
    translation.mode = idexToNen;
    translation.IdexFileName = folder.Write("in", OnePoint());
    translation.SufNenFileName = folder / "uit.sfn";
    translation.temporaryOutput = u"/dev/full";
    translation.LogFileName = logName;
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_TRUE(translation.outcome.cancelled);
    EXPECT_TRUE(translation.outcome.outputFailed);
    EXPECT_NE(LogText().find("FOUT:  Schijf vol\n"), std::string::npos) << LogText();
}

TEST_F(TranslateFilesTest, FilesAreTranslatedAsTheirBytesAre) {
    const Text name = folder.Write("in.idx", OnePoint());
    TranslateFiles(Begin(idexToNen, name, folder / "uit.sfn"));
    const std::string fromFile = FileBytes(folder / "uit.sfn");
    const std::string log = LogText();
    Translation& translation = BeginInMemory(idexToNen, OnePoint());
    translation.IdexFileName = name;
    translation.SufNenFileName = folder / "uit.sfn";
    ASSERT_TRUE(DeleteFileAt(name));
    ASSERT_TRUE(DeleteFileAt(folder / "uit.sfn"));
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_EQ(translation.outputBytes, fromFile);
    EXPECT_EQ(LogText(), log);
    EXPECT_EQ(folder.Listing(), "test.log");
}

TEST_F(TranslateFilesTest, ASecondTranslationBeginsWithAnEmptyDrawingAndFreshCounts) {
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    const std::string first = last->outputBytes;
    const std::string firstLog = LogText();
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    EXPECT_EQ(last->outputBytes, first);
    EXPECT_EQ(LogText(), firstLog);
    EXPECT_NE(first.find("X121000500Y487000250"), std::string::npos);
}

TEST_F(TranslateFilesTest, TheAccountOfARunBalances) {
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    EXPECT_TRUE(last->account.Balances());
    EXPECT_EQ(last->account[ObjectKind::Point].written, 1);
    TranslateFiles(BeginInMemory(nenToIdex, last->outputBytes));
    EXPECT_TRUE(last->account.Balances());
    EXPECT_EQ(last->account[ObjectKind::Point].written, 1);
}

}  // namespace

}  // namespace korvande::testing
