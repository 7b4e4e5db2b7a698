#include "run/TranslateFiles.h"

#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

class TranslateFilesTest : public RunTest {
 protected:
    void SetNames(std::int16_t direction, const Text& idex, const Text& sufNen) {
        TheRun().XlateDirection = direction;
        TheRun().IdexFileName = idex;
        TheRun().SufNenFileName = sufNen;
        TheRun().LogFileName = logName;
        SaveGridData();
    }
};

TEST_F(TranslateFilesTest, TheLogBookBeginsAndEndsWithNamesModeAndMoments) {
    TheRun().IdexFileName = u"  C:\\KA\"ART.IDX ";
    SetNames(fromIdex, TheRun().IdexFileName, u"weg.sfn");
    EXPECT_TRUE(TranslateFiles());
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

TEST_F(TranslateFilesTest, AnInputThatHasDisappearedIsToldAndNoReaderOrWriterRuns) {
    const Text input = folder / "weg.sfn";
    SetNames(toIdex, folder / "uit.idx", input);
    TranslateFiles();
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Bestand: " + ToUtf8(input) +
                                       " niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken."});
    EXPECT_NE(LogText().find("==>  Bestand: " + ToUtf8(input) + " niet gevonden; verwerking afgebroken.\n"),
              std::string::npos);
    EXPECT_FALSE(FileIsThere(folder / "uit.idx"));
    EXPECT_TRUE(TheRun().outcome.inputUnreadable);
}

TEST_F(TranslateFilesTest, TheModesTextDecidesWhichVariantIsReadAndWritten) {
    frmKORVANDE().cboXlateMode.index = 0;
    TakeVariantFromMode();
    EXPECT_TRUE(TheRun().NenMode);
    EXPECT_TRUE(TheRun().ExportNen);
    frmKORVANDE().cboXlateMode.index = 3;
    TakeVariantFromMode();
    EXPECT_FALSE(TheRun().NenMode);
    EXPECT_FALSE(TheRun().ExportNen);
    frmKORVANDE().cboXlateMode = {{u"Export NEN1878"}, 0};
    TakeVariantFromMode();
    EXPECT_TRUE(TheRun().ExportNen);
}

TEST_F(TranslateFilesTest, AnErrorThatEscapesTheReaderIsLoggedAndWhatWasReadIsWritten) {
    std::string drawing = Drawing();
    drawing.resize(drawing.find("END POINTS"));
    SetNames(fromIdex, folder.Write("in.idx", drawing), folder / "uit.sfn");
    TranslateFiles();
    const std::string log = LogText();
    EXPECT_NE(log.find("FOUT:  Invoer voorbij het einde van het bestand (regel 8)\n"), std::string::npos) << log;
    EXPECT_NE(log.find(" Punten:            1\n"), std::string::npos) << log;
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("X121000500Y487000250"), std::string::npos);
    EXPECT_EQ(LogFile().ErrorCount(), 1);
    EXPECT_FALSE(TheRun().outcome.Failed());
}

TEST_F(TranslateFilesTest, AnErrorThatEscapesTheWriterIsLoggedAndTheFooterFollows) {
    SetNames(fromIdex, folder.Write("in.idx", Drawing()), u"/dev/full");
    TranslateFiles();
    const std::string log = LogText();
    EXPECT_NE(log.find("FOUT:  Schijf vol\n"), std::string::npos) << log;
    EXPECT_NE(log.find("     Gereed:     "), std::string::npos) << log;
    EXPECT_TRUE(TheRun().outcome.outputFailed);
}

TEST_F(TranslateFilesTest, ALogBookThatCannotBeWrittenDoesNotEndTheRun) {
    SetNames(fromIdex, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    TheRun().LogFileName = u"/dev/full";
    EXPECT_TRUE(TranslateFiles());
    EXPECT_NE(FileBytes(folder / "uit.sfn").find("X121000500Y487000250"), std::string::npos);
    EXPECT_TRUE(TheRun().outcome.logBookFailed);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Het logboek kon niet volledig worden geschreven:\n/dev/full"});
}

TEST_F(TranslateFilesTest, WithoutALogBooksNameNoneIsKept) {
    SetNames(fromIdex, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    TheRun().LogFileName.clear();
    EXPECT_TRUE(TranslateFiles());
    EXPECT_EQ(folder.Listing(), "in.idx uit.sfn");
}

TEST_F(TranslateFilesTest, ASecondRunBeginsWithAnEmptyDrawingAndFreshCounts) {
    SetNames(fromIdex, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    TranslateFiles();
    const std::string first = FileBytes(folder / "uit.sfn");
    const std::string firstLog = LogText();
    SaveGridData();
    TranslateFiles();
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), first);
    EXPECT_EQ(LogText(), firstLog);
}

TEST_F(TranslateFilesTest, TheAccountOfARunBalances) {
    SetNames(fromIdex, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    TranslateFiles();
    EXPECT_TRUE(TheAccount().Balances());
    EXPECT_EQ(TheAccount()[ObjectKind::Point].written, 1);
    frmKORVANDE().cboXlateMode.index = 2;
    SetNames(toIdex, folder / "terug.idx", folder / "uit.sfn");
    TranslateFiles();
    EXPECT_TRUE(TheAccount().Balances());
    EXPECT_EQ(TheAccount()[ObjectKind::Point].written, 1);
}

}  // namespace

}  // namespace korvande::testing
