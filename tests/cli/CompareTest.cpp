#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class CompareCommand : public CliTest {
 protected:
    CompareCommand() {
        folder.Write("klein.idx", smallIdex);
        folder.Write("klein.sfn", smallNen1878);
        folder.Write("klein.nst", smallTable);
    }

    static std::string Replaced(std::string text, const std::string& part, const std::string& by) {
        const std::size_t place = text.find(part);
        EXPECT_NE(place, std::string::npos);
        return place == std::string::npos ? text : text.replace(place, part.size(), by);
    }
};

TEST_F(CompareCommand, EqualDrawingsAreCountedAndGiveStatusZero) {
    folder.Write("zelfde.idx", smallIdex);
    const ProgramResult result = Run({"vergelijk", "--project", "klein.nst", "klein.idx", "zelfde.idx"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.output,
              "Eerste: klein.idx (IDEX)\nTweede: zelfde.idx (IDEX)\n"
              "                     gelijk   gewijzigd   ontbreekt  toegevoegd\n"
              "Punten                    3           0           0           0\n"
              "Lijnsegmenten             1           0           0           0\n"
              "Teksten                   1           0           0           0\n"
              "Lijnstrings               1           0           0           0\n"
              "Geen verschillen.\n");
}

TEST_F(CompareCommand, DifferencesAreListedWithTheirLinesAndGiveStatusOne) {
    folder.Write("ander.idx", Replaced(Replaced(smallIdex, "\"A2\",1010.0000", "\"B2\",1010.0000"), "Café", "Kerk"));
    const ProgramResult result = Run({"vergelijk", "klein.idx", "ander.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(Has(result.output,
                    "\nVerschillen:\n"
                    "gewijzigd   punt 'MV' op 1010.000 2000.000 (regel 17 en 17): puntnummer A2 > B2\n"
                    "gewijzigd   tekst 'NAAM' op 1000.000 2000.000 (regel 33 en 33): tekst \"Café\" > "
                    "\"Kerk\"\n"))
        << result.output;
}

TEST_F(CompareCommand, FormatsAreComparedByTheControlTable) {
    const ProgramResult result = Run({"vergelijk", "--project", "klein.nst", "klein.idx", "klein.sfn"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.output, "Tweede: klein.sfn (NEN1878)\n")) << result.output;
    EXPECT_TRUE(Has(result.output, "Lijnsegmenten             1           0           0           0\n"))
        << result.output;
    EXPECT_TRUE(Has(result.output, "gewijzigd   punt 'MV' op 1000.000 2000.000 (regel 16 en 4): hoogte 1.500 > geen\n"))
        << result.output;
    EXPECT_TRUE(Has(result.output, "toegevoegd  punt 'Q77' op 9000.000 9000.000 (regel 6)\n")) << result.output;
    EXPECT_TRUE(Has(result.output, "ontbreekt   tekst 'NAAM' op 1000.000 2000.000 (regel 33): \"Café\"\n"))
        << result.output;
    EXPECT_FALSE(Has(Run({"vergelijk", "klein.idx", "klein.sfn"}).output,
                     "Lijnsegmenten             1           0           0           0\n"));
}

TEST_F(CompareCommand, WhatIsNoDrawingGivesStatusThree) {
    folder.Write("brief.txt", "Geachte heer,\r\n");
    for (const auto& [first, second] : {std::pair("klein.idx", "brief.txt"), std::pair("brief.txt", "klein.idx")}) {
        const ProgramResult result = Run({"vergelijk", first, second});
        EXPECT_EQ(result.status, 3);
        EXPECT_EQ(result.error, "brief.txt: geen IDEX, NEN1878 of SUF2 bestand.\n");
    }
    EXPECT_EQ(Run({"vergelijk", "klein.idx", "weg.idx"}).status, 3);
    EXPECT_EQ(Run({"vergelijk", "--project", "weg.nst", "klein.idx", "klein.idx"}).status, 3);
}

TEST_F(CompareCommand, AControlTableThatIsNotThereIsTold) {
    const ProgramResult result = Run({"vergelijk", "--project", "weg.nst", "klein.idx", "klein.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, "Kon bestand: 'weg.nst' niet openen;\nFoutcode: 53\nBestand niet gevonden\n");
}

TEST_F(CompareCommand, TwoDrawingsAreNeeded) {
    ExpectRefused({"vergelijk"}, "Er ontbreekt een argument: eerste");
    ExpectRefused({"vergelijk", "klein.idx"}, "Er ontbreekt een argument: tweede");
    ExpectRefused({"vergelijk", "klein.idx", "klein.sfn", "nog.idx"}, "Onbekend argument: nog.idx");
    ExpectRefused({"vergelijk", "klein.idx", ""}, "Er ontbreekt een waarde bij tweede");
}

TEST_F(CompareCommand, WhatADrawingLosesWhenItIsReadIsTold) {
    folder.Write("half.idx", smallIdex.substr(0, smallIdex.find("  END LINES")));
    const ProgramResult result = Run({"vergelijk", "klein.idx", "half.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "half.idx: ")) << result.error;
    EXPECT_TRUE(Has(result.output, "ontbreekt   tekst")) << result.output;
}

TEST_F(CompareCommand, OfDamagedDrawingsOnlyWhatCanBeReadIsSaidToBeEqual) {
    folder.Write("half.idx", smallIdex.substr(0, smallIdex.find("  END LINES")));
    const ProgramResult result = Run({"vergelijk", "half.idx", "half.idx"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Has(result.output, "\nGeen verschillen in wat er te lezen is.\n")) << result.output;
}

TEST_F(CompareCommand, TwoDrawingsWithoutObjectsAreEqual) {
    const std::string empty =
        "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\nEND LAYERS\r\nDATABASE\r\nEND DATABASE\r\n";
    folder.Write("leeg.idx", empty);
    folder.Write("ookleeg.idx", empty);
    const ProgramResult equal = Run({"vergelijk", "leeg.idx", "ookleeg.idx"});
    EXPECT_EQ(equal.status, 0);
    EXPECT_TRUE(Has(equal.output, "toegevoegd\nGeen verschillen.\n")) << equal.output;
    const ProgramResult added = Run({"vergelijk", "leeg.idx", "klein.idx"});
    EXPECT_EQ(added.status, 1);
    EXPECT_TRUE(Has(added.output, "Punten                    0           0           0           3\n")) << added.output;
}

}  // namespace

}  // namespace korvande::testing
