#include <filesystem>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class Commands : public CliTest {};

TEST_F(Commands, TheVersionIsToldWithItsName) {
    const ProgramResult result = Run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "KORVANDE 8.01.064\n");
    EXPECT_EQ(result.error, "");
}

TEST_F(Commands, EveryCommandHasHelpInDutch) {
    struct Case {
        std::vector<std::string> command;
        std::vector<std::string> words;
    };
    const std::vector<Case> cases = {
        {{},
         {"Gebruik: korvande-cli", "vertaal", "controleer", "vergelijk", "teken", "geopackage", "project",
          "--version"}},
        {{"vertaal"},
         {"Gebruik: korvande-cli vertaal", "--modus", "--project", "--logboek", "--geen-logboek", "--antwoord",
          "--selectie", "--bronvermelding", "--onbekend", "--driepuntsbogen", "--uitvoermap", "--stil",
          "Afsluitstatus"}},
        {{"controleer"}, {"Gebruik: korvande-cli controleer", "--project"}},
        {{"vergelijk"}, {"Gebruik: korvande-cli vergelijk", "--project", "--tekenset", "Afsluitstatus"}},
        {{"teken"}, {"Gebruik: korvande-cli teken", "--project", "--kader", "--breedte", "Afsluitstatus"}},
        {{"geopackage"},
         {"Gebruik: korvande-cli geopackage", "--project", "--lokaal", "--rechte-lijnen", "--overschrijf",
          "1 millimeter", "Afsluitstatus"}},
        {{"project"}, {"Gebruik: korvande-cli project", "maak", "toon"}},
        {{"project", "maak"}, {"Gebruik: korvande-cli project maak", "P.nst"}},
        {{"project", "toon"}, {"Gebruik: korvande-cli project toon", "P.nst"}}};
    for (const Case& item : cases) {
        for (const char* const flag : {"--help", "-h"}) {
            std::vector<std::string> arguments = item.command;
            arguments.emplace_back(flag);
            const ProgramResult result = Run(arguments);
            EXPECT_EQ(result.status, 0);
            EXPECT_EQ(result.error, "");
            for (const std::string& word : item.words) EXPECT_TRUE(Has(result.output, word)) << word << result.output;
            for (const char* const english : {"Usage", "Options", "OPTIONS", "Positionals", "SUBCOMMAND", "Print "}) {
                EXPECT_FALSE(Has(result.output, english)) << english << ":\n" << result.output;
            }
            EXPECT_FALSE(result.output.ends_with("\n\n"));
        }
    }
}

TEST_F(Commands, WithoutACommandTheHelpIsNamed) {
    const std::string missing = "Er ontbreekt een opdracht; zie korvande-cli --help";
    ExpectRefused({}, missing);
    ExpectRefused({"project"}, missing);
    ExpectRefused({"project", "wis", "t.nst"}, missing);
    ExpectRefused({"vertalen"}, "Onbekend argument: vertalen");
    ExpectRefused({"--versie"}, "Onbekend argument: --versie");
    ExpectRefused({"project", "maak"}, "Er ontbreekt een argument: bestand");
    ExpectRefused({"project", "toon"}, "Er ontbreekt een argument: bestand");
    ExpectRefused({"project", "toon", ""}, "Er ontbreekt een waarde bij bestand");
    ExpectRefused({"project", "maak", "a.nst", "b.nst"}, "Onbekend argument: b.nst");
}

TEST_F(Commands, NoFileOfTheRunTakesThePlaceOfAStreamThatIsNotThere) {
    folder.Write("a.idx", smallIdex);
    Start start;
    start.environment["SOURCE_DATE_EPOCH"] = "0";
    EXPECT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}, start).status, 0);
    const std::string output = Bytes("uit.sfn");
    const std::string log = Log("uit.LOG");
    for (const std::vector<int>& closed : {std::vector<int>{1}, {2}, {0}, {0, 1, 2}}) {
        std::filesystem::remove(folder.Path() + "/uit.sfn");
        start.closedStreams = closed;
        EXPECT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}, start).status, 0) << closed.front();
        EXPECT_EQ(Bytes("uit.sfn"), output) << closed.front();
        EXPECT_EQ(Log("uit.LOG"), log) << closed.front();
    }
}

// Control tables

TEST_F(Commands, ANewControlTableHoldsTheDefaults) {
    const ProgramResult made = Run({"project", "maak", "Mijn één.nst"});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.error, "");
    const std::string table = Log("Mijn één.nst");
    EXPECT_TRUE(table.starts_with("[NEN1878]\nSUFNENFile = voorbeeld.sfn\n")) << table;
    EXPECT_TRUE(Has(table, "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\n"));
    EXPECT_TRUE(table.ends_with("\n[End]\n"));
    const ProgramResult shown = Run({"project", "toon", "Mijn één.nst"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_TRUE(Has(shown.output, "STANDRD  Q20      PUNT     ONBEKEND PUNTOBJECT"));
    EXPECT_EQ(folder.Listing(), "Mijn één.nst");
}

TEST_F(Commands, AnExistingControlTableIsNotOverwritten) {
    folder.Write("t.nst", "van mij");
    std::filesystem::create_directory(folder.Path() + "/map");
    for (const std::string name : {"t.nst", "T.NST", "./t.nst", "map"}) {
        ExpectRefused({"project", "maak", name}, "Er bestaat al een bestand met deze naam:\n" + name);
    }
    EXPECT_EQ(Bytes("t.nst"), "van mij");
}

TEST_F(Commands, AControlTableThatCannotBeWrittenIsAFailure) {
    const ProgramResult noFolder = Run({"project", "maak", "nergens/t.nst"});
    EXPECT_EQ(noFolder.status, 3);
    EXPECT_EQ(noFolder.error, "Kon bestand: 'nergens/t.nst' niet opslaan;\nFoutcode: 76\nPad niet gevonden\n");
}

TEST_F(Commands, ShowingAControlTableChangesNothing) {
    folder.Write("t.nst", smallTable);
    const ProgramResult shown = Run({"project", "toon", "t.nst"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_TRUE(Has(shown.output, "Bron                            ZAND\n"));
    EXPECT_TRUE(Has(shown.output, "[Puntobjecten] 2 regels\n"));
    EXPECT_TRUE(Has(shown.output, "MV       Q22      PUNT     MAAIVELD"));
    EXPECT_EQ(Bytes("t.nst"), smallTable);
    EXPECT_EQ(folder.Listing(), "t.nst");
    const ProgramResult missing = Run({"project", "toon", "nergens.nst"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.output, "");
}

// Checking

TEST_F(Commands, CheckingRecognisesTheFormatFromTheContent) {
    folder.Write("a", smallIdex);
    folder.Write("b", smallNen1878);
    folder.Write("c", smallSuf2);
    folder.Write("t.nst", smallTable);
    const ProgramResult result = Run({"controleer", "--project", "t.nst", "a", "b", "c"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.output, "Bestand: a (IDEX)\n"));
    EXPECT_TRUE(Has(result.output, "Bestand: b (NEN1878)\n"));
    EXPECT_TRUE(Has(result.output, "Bestand: c (SUF2)\n"));
    EXPECT_TRUE(Has(result.output, "Puntcode 'VREEMD' staat niet in de controletabel: 1 maal\n"));
    EXPECT_TRUE(Has(result.output, "Omvang: X 1000.000 tot 1020.000, Y 2000.000 tot 2000.000\nLet op: buiten RD\n"));
    EXPECT_TRUE(Has(result.output, "  MV      = Q22     MAAIVELD"));
    // The table's own wish to leave unknown objects out does not hide them from a check.
    EXPECT_TRUE(Has(result.output, "Aantallen: 4 punten, 1 lijnstrings, 1 lijnsegmenten, 0 teksten\n"));
    EXPECT_EQ(folder.Listing(), "a b c t.nst");
}

TEST_F(Commands, CheckingAGoodFileFindsNoProblem) {
    folder.Write("c", smallSuf2);
    folder.Write("t.nst", smallTable);
    const ProgramResult result = Run({"controleer", "--project", "t.nst", "c"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Has(result.output, "Problemen:\n  geen\n"));
}

TEST_F(Commands, CheckingTellsOfADrawingWhoseCoordinatesWereSwapped) {
    const auto pointAt = [](const std::string& place) {
        return WithCrLf(
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Code)\n1,\"A\"," +
            place + ",\"MV\";\nEND POINTS\nEND DATABASE\n");
    };
    folder.Write("om.idx", pointAt("487000,121000"));
    folder.Write("recht.idx", pointAt("121000,487000"));
    folder.Write("t.nst", smallTable);
    const ProgramResult swapped = Run({"controleer", "--project", "t.nst", "om.idx"});
    EXPECT_EQ(swapped.status, 0);
    EXPECT_TRUE(Has(swapped.output, "Y 121000.000 tot 121000.000\nLet op: buiten RD; X en Y verwisseld?\n"));
    EXPECT_FALSE(Has(Run({"controleer", "--project", "t.nst", "recht.idx"}).output, "Let op"));
}

TEST_F(Commands, CheckingWritesNothingAtAll) {
    folder.Write("a", smallIdex);
    folder.Write("b", smallNen1878);
    std::filesystem::create_directory(folder.Path() + "/d");
    Start start;
    start.environment["KORVANDE_DRIVE_D"] = folder.Path() + "/d";
    EXPECT_EQ(Run({"controleer", "a", "b"}, start).status, 1);
    EXPECT_EQ(folder.Listing(), "a b d");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path() + "/d"));
}

TEST_F(Commands, CheckingTellsProblemsWithTheirLines) {
    std::string broken = smallIdex;
    broken.replace(broken.find("1,1, \"A1\",2,"), 12, "1,1, \"A1\",x,");
    folder.Write("a", broken);
    const ProgramResult result = Run({"controleer", "a"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.output, "  Typen komen niet overeen (regel 23)\n")) << result.output;
    // What stood before the problem was read and looked up all the same.
    EXPECT_TRUE(Has(result.output, "Aantallen: 3 punten, 1 lijnstrings, 0 lijnsegmenten, 0 teksten\n"));
    EXPECT_TRUE(Has(result.output, "Puntcode 'VREEMD'"));

    const std::string withoutGeometry = smallNen1878.substr(0, 3 * recordBytes) + smallNen1878.substr(8 * recordBytes);
    folder.Write("b", withoutGeometry);
    EXPECT_TRUE(Has(Run({"controleer", "b"}).output, "  Punt, 04 record ontbreekt (regel "));
}

TEST_F(Commands, CheckingWhatIsNoDrawingIsAFailure) {
    folder.Write("leeg", "");
    folder.Write("brief", "Geachte heer,\r\n");
    folder.Write("c", smallSuf2);
    EXPECT_EQ(Run({"controleer", "leeg"}).error, "leeg: geen IDEX, NEN1878 of SUF2 bestand.\n");
    EXPECT_EQ(Run({"controleer", "brief"}).status, 3);
    EXPECT_EQ(Run({"controleer", "nergens"}).error,
              "Kon bestand: 'nergens' niet openen;\nFoutcode: 53\n"
              "Bestand niet gevonden\n");
    const ProgramResult several = Run({"controleer", "leeg", "c"});
    EXPECT_EQ(several.status, 3);
    EXPECT_TRUE(Has(several.output, "Bestand: c (SUF2)\n"));
    EXPECT_EQ(Run({"controleer", "--project", "nergens", "c"}).status, 3);
    ExpectRefused({"controleer"}, "Er ontbreekt een argument: bestanden");
    ExpectRefused({"controleer", "--modus", "x", "c"}, "Onbekend argument: --modus");
}

}  // namespace

}  // namespace korvande::testing
