#include "tests/cli/OutputFilesTest.h"

namespace korvande::testing {

namespace {

// The same file twice

TEST_F(OutputFiles, AnOutputThatIsTheInputIsRefusedUnderEveryName) {
    fs::create_directory(Path("map"));
    fs::create_hard_link(Path("a.idx"), Path("hard"));
    for (const std::string name : {"a.idx", "./a.idx", "A.IDX", ".\\a.idx", "map/../a.idx", "hard"}) {
        ExpectSameFileRefused({"a.idx", name}, "Invoer en uitvoer", name);
    }
    ExpectSameFileRefused({folder.Path() + "/a.idx", "a.idx"}, "Invoer en uitvoer", "a.idx");
}

TEST_F(OutputFiles, ALogBookThatIsTheInputOrTheOutputIsRefused) {
    ExpectSameFileRefused({"--logboek", "./A.idx", "a.idx", "uit.sfn"}, "Invoer en logboek", "./A.idx");
    ExpectSameFileRefused({"--logboek", "./uit.sfn", "a.idx", "uit.sfn"}, "Uitvoer en logboek", "./uit.sfn");
    ExpectSameFileRefused({"--logboek", "UIT.SFN", "a.idx", "uit.sfn"}, "Uitvoer en logboek", "UIT.SFN");
    ExpectSameFileRefused({"a.idx", "uit.LOG"}, "Uitvoer en logboek", "uit.LOG");
    folder.Write("b.LOG", smallIdex);
    ExpectSameFileRefused({"b.LOG", "b.sfn"}, "Invoer en logboek", "b.LOG");
}

TEST_F(OutputFiles, TheControlTableIsNeverWrittenTo) {
    folder.Write("t.nst", smallTable);
    ExpectSameFileRefused({"--project", "t.nst", "a.idx", "./t.nst"}, "Controletabel en uitvoer", "./t.nst");
    ExpectSameFileRefused({"--project", "t.nst", "--logboek", "T.nst", "a.idx", "u.sfn"}, "Controletabel en logboek",
                          "T.nst");
    ASSERT_EQ(Translate("idex-nen1878", {"--project", "t.nst", "--onbekend", "ja", "a.idx", "u.sfn"}).status, 0);
    EXPECT_EQ(Bytes("t.nst"), smallTable);
}

TEST_F(OutputFiles, NeitherTheRegistryNorAnotherFileIsTouched) {
    folder.Write("n.nen", smallNen1878);
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "u.sfn"}).status, 0);
    ASSERT_EQ(Translate("nen1878-idex", {"--selectie", "0,0,1,1", "n.nen", "u.idx"}).status, 0);
    EXPECT_EQ(folder.Listing(), "a.idx n.nen u.LOG u.idx u.sfn");
}

// Inputs that are none

TEST_F(OutputFiles, AMissingInputIsToldInTheLogBookToo) {
    folder.Write("uit.sfn", "van gisteren");
    const ProgramResult result = Translate("idex-nen1878", {"nergens.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(Has(result.error, "Bestand: nergens.idx niet gevonden.\n")) << result.error;
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Bestand: nergens.idx niet gevonden; verwerking afgebroken.\n"));
    EXPECT_EQ(Bytes("uit.sfn"), "van gisteren");
}

TEST_F(OutputFiles, AFolderIsNoInput) {
    fs::create_directory(Path("map"));
    for (const char* const mode : {"idex-nen1878", "suf2-idex"}) {
        const ProgramResult result = Translate(mode, {"map", "uit.xyz"});
        EXPECT_EQ(result.status, 3) << mode;
        EXPECT_TRUE(Has(result.error, "Bestand: map niet gevonden.\n")) << result.error;
        EXPECT_FALSE(IsThere("uit.xyz"));
    }
}

TEST_F(OutputFiles, AnEmptyFileIsNotOfTheFormat) {
    folder.Write("leeg", "");
    folder.Write("uit", "van gisteren");
    const ProgramResult idex = Translate("idex-suf2", {"leeg", "uit"});
    EXPECT_EQ(idex.status, 3);
    EXPECT_EQ(idex.error, "leeg is niet vertaald: het is geen IDEX bestand. Zie het logboek: LOG\n");
    EXPECT_TRUE(Has(Log("LOG"), "FOUT:  Geen HEADER gevonden in het IDEX bestand\n"));
    const ProgramResult nen = Translate("nen1878-idex", {"leeg", "uit"});
    EXPECT_EQ(nen.status, 3);
    EXPECT_EQ(nen.error,
              "NEN1878 bestand bevat geen '01' (KOP) record.\n"
              "leeg is niet vertaald: het is geen NEN1878 of SUF2 bestand. Zie het logboek: LOG\n");
    EXPECT_TRUE(Has(Log("LOG"), "FOUT:  NEN1878 bestand bevat geen '01' (KOP) record.\n"));
    EXPECT_EQ(Bytes("uit"), "van gisteren");
}

// Outputs that cannot be written

TEST_F(OutputFiles, AnOutputThatIsAFolderIsAFailure) {
    fs::create_directory(Path("map"));
    folder.Write("n.nen", smallNen1878);
    const ProgramResult written = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "map"});
    EXPECT_EQ(written.status, 3);
    EXPECT_TRUE(Has(written.error, "Kon bestand: 'map' niet opslaan;\nFoutcode: 75\n")) << written.error;
    const ProgramResult imported = Translate("nen1878-idex", {"--logboek", "l", "n.nen", "map"});
    EXPECT_EQ(imported.status, 3);
    EXPECT_TRUE(Has(imported.error, "Error:75 - Fout bij toegang tot pad of bestand\nmap\n")) << imported.error;
    EXPECT_TRUE(fs::is_empty(Path("map")));
}

TEST_F(OutputFiles, AnEarlierOutputIsReplacedAsAWhole) {
    folder.Write("uit.sfn", std::string(100'000, 'x'));
    folder.Write("uit.LOG", std::string(100'000, 'x'));
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}).status, 0);
    EXPECT_FALSE(Has(Bytes("uit.sfn"), "xx"));
    EXPECT_FALSE(Has(Bytes("uit.LOG"), "xx"));
}

// Names

TEST_F(OutputFiles, NamesMayHoldBlanksAndAccents) {
    fs::create_directory(Path("kaart één"));
    fs::copy_file(Path("a.idx"), Path("kaart één/Straat & café (2).idx"));
    const ProgramResult result =
        Translate("idex-nen1878", {"kaart één/Straat & café (2).idx", "kaart één/uit voer ë.sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(result.output.starts_with("kaart één/uit voer ë.sfn: 3 punten")) << result.output;
    EXPECT_TRUE(Has(Log("kaart één/uit voer ë.LOG"), "IDEX bestand:    \"kaart één/Straat & café (2).idx\"\n"));
}

TEST_F(OutputFiles, NamesThatTheOptionsParserCouldTakeForMoreAreTakenAsTheyAre) {
    for (const std::string name : {"[in.idx,gek.sf2]", "[in.idx]", "++", "++a", "{}", "%%", "[", "+", "%"}) {
        fs::copy_file(Path("a.idx"), Path(name));
        const ProgramResult result = Translate("idex-nen1878", {"--logboek", "[l,m]", name, "[uit,voer]"});
        EXPECT_EQ(result.status, 0) << name << result.error;
        EXPECT_TRUE(result.output.starts_with("[uit,voer]: 3 punten")) << name << result.output;
        EXPECT_TRUE(Has(Log("[l,m]"), "IDEX bestand:    \"" + name + "\"\n")) << name << Log("[l,m]");
        const ProgramResult check = Run({"controleer", name, name});
        EXPECT_TRUE(check.output.starts_with("Bestand: " + name + " (IDEX)\n")) << name << check.output;
        fs::remove(Path(name));
        EXPECT_EQ(folder.Listing(), "[l,m] [uit,voer] a.idx");
    }
    ExpectRefused({"[a,b]"}, "Onbekend argument: [a,b]");
    ExpectRefused({"project", "maak", "{}", "[c]"}, "Onbekend argument: [c]");
}

TEST_F(OutputFiles, NamesInOtherCaseAndWithBackslashesFindTheirFiles) {
    fs::create_directory(Path("Map"));
    fs::copy_file(Path("a.idx"), Path("Map/Kaart.idx"));
    const ProgramResult result = Translate("idex-nen1878", {"MAP\\KAART.IDX", "map\\uit.sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("Map/uit.sfn"));
    EXPECT_TRUE(IsThere("Map/uit.LOG"));
}

}  // namespace

}  // namespace korvande::testing
