#include "tests/cli/BatchTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class BatchFolders : public BatchTest {};

TEST_F(BatchFolders, AFolderStandsForItsDrawingsOfTheModesFormatWhateverTheirNames) {
    Write("in/b.idx", smallIdex);
    Write("in/A", smallIdex);
    Write("in/klein.sfn", smallNen1878);
    Write("in/brief.txt", "Geachte heer,\r\n");
    Write("in/b.LOG", "FOUT:  Geen HEADER gevonden in het IDEX bestand\r\n");
    Write("in/diep/c.idx", smallIdex);
    const ProgramResult result = TranslateAll({"in/"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(NamesIn("uit"), "A.LOG A.sfn b.LOG b.sfn");
    EXPECT_TRUE(result.output.starts_with("uit/A.sfn: 3 punten")) << result.output;
    EXPECT_TRUE(Has(result.error,
                    "Alles samen: 2 bestanden, waarvan 2 vertaald\n"
                    "3 andere bestanden passen niet bij de modus en deden niet mee\n"))
        << result.error;
}

TEST_F(BatchFolders, TheFoldersInAFolderComeBackInTheOutputFolder) {
    Write("archief/a.idx", smallIdex);
    Write("archief/Wijk één/straat 1.idx", smallIdex);
    Write("archief/Wijk één/blok/b.idx", smallIdex);
    Write("archief/Wijk één/blok/c.sfn", smallNen1878);
    const ProgramResult result = TranslateAll({"--recursief", "--geen-logboek", "archief/"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(NamesIn("uit"), "Wijk één/blok/b.sfn Wijk één/straat 1.sfn a.sfn");
    EXPECT_EQ(Bytes("uit/Wijk één/blok/b.sfn"), Bytes("uit/a.sfn"));
    // The files of a folder come before those of the folders in it.
    EXPECT_LT(result.output.find("uit/a.sfn: "), result.output.find("uit/Wijk één/straat 1.sfn: "));
    EXPECT_LT(result.output.find("uit/Wijk één/straat 1.sfn: "), result.output.find("uit/Wijk één/blok/b.sfn: "));
    EXPECT_TRUE(Has(result.error, "1 ander bestand past niet bij de modus en deed niet mee\n")) << result.error;
}

TEST_F(BatchFolders, FilesAndFoldersGoTogetherInTheOrderGiven) {
    Write("in/b.idx", smallIdex);
    Write("c.idx", smallIdex);
    Write("a.idx", smallIdex);
    const ProgramResult result = TranslateAll({"c.idx", "in/", "a.idx"});
    EXPECT_EQ(result.status, 0);
    EXPECT_LT(result.output.find("uit/c.sfn"), result.output.find("uit/b.sfn"));
    EXPECT_LT(result.output.find("uit/b.sfn"), result.output.find("uit/a.sfn"));
}

TEST_F(BatchFolders, AnOutputFolderInTheInputFolderDoesNotFeedItself) {
    Write("uit/oud/a.idx", smallIdex);
    Write("a.idx", smallIdex);
    EXPECT_EQ(TranslateAll({"--recursief", "."}).status, 0);
    EXPECT_EQ(NamesIn("uit"), "a.LOG a.sfn oud/a.idx");
    EXPECT_EQ(TranslateAll({"--recursief", "."}).status, 0);
    EXPECT_EQ(NamesIn("uit"), "a.LOG a.sfn oud/a.idx");
}

TEST_F(BatchFolders, TheOutputFolderMayBeTheInputFolder) {
    Write("uit/a.idx", smallIdex);
    EXPECT_EQ(TranslateAll({"uit"}).status, 0);
    EXPECT_EQ(NamesIn("uit"), "a.LOG a.idx a.sfn");
}

TEST_F(BatchFolders, TwoDrawingsOfAFolderThatWouldGetTheSameOutputAreRefused) {
    Write("in/a.idx", smallIdex);
    Write("in/a.txt", smallIdex);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "uit/", "in/"},
                  "Meer dan een invoerbestand krijgt deze uitvoer:\nuit/a.sfn");
}

TEST_F(BatchFolders, AFolderWithoutADrawingOfTheModeIsAFailure) {
    Write("in/a.sfn", smallNen1878);
    const ProgramResult result = TranslateAll({"in/"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.starts_with("Er is geen bestand dat bij de modus past.\n")) << result.error;
    EXPECT_FALSE(fs::exists(Path("uit")));
}

TEST_F(BatchFolders, ADrawingThatCannotBeReadToItsEndStopsNoOther) {
    Write("in/a.idx", smallIdex);
    Write("in/b.idx", BrokenIdex());
    Write("in/c.idx", smallIdex);
    const ProgramResult result = TranslateAll({"in/", "weg.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(IsThere("uit/a.sfn"));
    EXPECT_TRUE(IsThere("uit/c.sfn"));
    EXPECT_TRUE(Has(result.error, "Alles samen: 4 bestanden, waarvan 3 vertaald, 1 niet vertaald\n")) << result.error;
}

TEST_F(BatchFolders, TheSummaryAddsUpTheObjectsAndTheProblemsOfEachKind) {
    Write("t.nst", smallTable);
    Write("in/a.idx", smallIdex);
    Write("in/b.idx", IdexWithCode("ANDERS"));
    Write("in/c.idx", smallIdex);
    const ProgramResult result = TranslateAll({"--project", "t.nst", "in/"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(
        result.error.ends_with("Alles samen: 3 bestanden, waarvan 3 vertaald\n"
                               "15 objecten gelezen, 12 geschreven, 3 weggelaten; 0 fouten\n"
                               "Volgens de controletabel en de instellingen:\n"
                               "  het bestand is gelezen als UTF-8 (3 maal)\n"
                               "  3 punten met een onbekende code\n"))
        << result.error;
    EXPECT_EQ(TranslateAll({"--stil", "--project", "t.nst", "in/"}).error, "");
}

TEST_F(BatchFolders, WithoutAnOutputFolderThereIsNothingToGoThrough) {
    Write("in/a.idx", smallIdex);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--recursief", "in/"},
                  "--recursief gaat samen met --uitvoermap.");
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--verslag", "v.csv", "in/a.idx"},
                  "--verslag gaat samen met --uitvoermap.");
}

}  // namespace

}  // namespace korvande::testing
