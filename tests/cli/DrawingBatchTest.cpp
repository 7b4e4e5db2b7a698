#include "tests/cli/BatchTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// Many drawings that are read and not translated.
class DrawingBatches : public BatchTest {
 protected:
    DrawingBatches() {
        Write("t.nst", smallTable);
        Write("in/a.idx", smallIdex);
        Write("in/b.sfn", smallNen1878);
        Write("in/brief.txt", "Geachte heer,\r\n");
        Write("in/diep/c.sf2", smallSuf2);
    }

    ProgramResult Check(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"controleer", "--project", "t.nst"});
        return WithSlashes(Run(arguments));
    }

    ProgramResult MakeGeoPackage(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"geopackage", "--project", "t.nst"});
        return WithSlashes(Run(arguments, {.environment = {{"SOURCE_DATE_EPOCH", "0"}}}));
    }
};

TEST_F(DrawingBatches, ACheckTakesEveryDrawingOfAFolderAndAddsThemUp) {
    const ProgramResult result = Check({"in/"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.starts_with("Bestand: in/a.idx (IDEX)\n")) << result.output;
    EXPECT_TRUE(Has(result.output, "Bestand: in/b.sfn (NEN1878)\n")) << result.output;
    EXPECT_FALSE(Has(result.output, "c.sf2")) << result.output;
    EXPECT_EQ(result.error,
              "Alles samen: 2 bestanden, waarvan 0 zonder problemen\n"
              "1 ander bestand is geen tekening en deed niet mee\n"
              "7 punten, 2 lijnstrings, 2 lijnsegmenten, 1 teksten, 2 onbekende objecten; 0 fouten\n"
              "Volgens de controletabel en de instellingen:\n"
              "  het bestand is gelezen als UTF-8\n");
    const ProgramResult deep = Check({"--stil", "--recursief", "in/"});
    EXPECT_TRUE(Has(deep.output, "Bestand: in/diep/c.sf2 (SUF2)\n")) << deep.output;
    EXPECT_EQ(deep.error, "");
}

TEST_F(DrawingBatches, ACheckOfOneFileAddsNothingUp) { EXPECT_EQ(Check({"in/a.idx"}).error, ""); }

TEST_F(DrawingBatches, ACheckTellsTheSameHoweverManyAreCheckedAtATime) {
    Write("in/0.idx", IdexPoints(20000));
    for (int i = 1; i < 9; ++i) Write("in/" + std::to_string(i) + ".idx", IdexWithCode("C" + std::to_string(i)));
    Write("in/9.idx", BrokenIdex());
    const auto check = [this](const char* workers) {
        return Check({"--taken", workers, "--verslag", "v.json", "--recursief", "in/", "weg.idx"});
    };
    const ProgramResult one = check("1");
    const std::string report = Bytes("v.json");
    EXPECT_EQ(one.status, 3);
    EXPECT_TRUE(Has(one.error, "Alles samen: 14 bestanden, waarvan 2 zonder problemen, 1 niet te lezen\n"))
        << one.error;
    for (const char* const workers : {"2", "4"}) {
        const ProgramResult many = check(workers);
        EXPECT_EQ(many.status, 3);
        EXPECT_EQ(many.output, one.output);
        EXPECT_EQ(many.error, one.error);
        EXPECT_EQ(Bytes("v.json"), report);
    }
}

TEST_F(DrawingBatches, ACheckHasARowForEachFile) {
    Write("in/stuk.idx", BrokenIdex());
    EXPECT_EQ(Check({"--stil", "--verslag", "v.csv", "in/", "in/brief.txt"}).status, 3);
    EXPECT_EQ(Bytes("v.csv"),
              "\xEF\xBB\xBFinvoer;formaat;status;punten;lijnstrings;lijnsegmenten;teksten;onbekend;problemen;fouten;"
              "meldingen\r\n"
              "in/a.idx;IDEX;1;3;1;1;1;1;1;0;\r\n"
              "in/b.sfn;NEN1878;1;4;1;1;0;1;1;0;\r\n"
              "in/stuk.idx;IDEX;1;3;1;0;0;1;2;1;het bestand is afgebroken: END DATABASE ontbreekt (op regel 21)\r\n"
              "in/brief.txt;;3;0;0;0;0;0;0;0;niet te lezen, of geen IDEX, NEN1878 of SUF2 bestand\r\n");
}

TEST_F(DrawingBatches, AFolderWithoutDrawingsIsAFailure) {
    Write("leeg/brief.txt", "Geachte heer,\r\n");
    const ProgramResult checked = Check({"leeg"});
    EXPECT_EQ(checked.status, 3);
    EXPECT_EQ(checked.error, "Er is geen tekening gevonden.\n");
    const ProgramResult made = MakeGeoPackage({"--lokaal", "leeg", "uit.gpkg"});
    EXPECT_EQ(made.status, 3);
    EXPECT_EQ(made.error, "Er is geen tekening gevonden.\n");
    EXPECT_FALSE(IsThere("uit.gpkg"));
}

TEST_F(DrawingBatches, AFolderGoesIntoOneGeoPackage) {
    const ProgramResult result =
        MakeGeoPackage({"--lokaal", "--recursief", "--verslag", "v.csv", "in/", "archief.gpkg"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(result.output,
              "in/a.idx: 3 punten, 1 lijnstrings, 1 teksten, 1 onbekende objecten\n"
              "in/b.sfn: 2 punten, 1 lijnstrings, 0 teksten, 1 onbekende objecten\n"
              "in/diep/c.sf2: 1 punten, 0 lijnstrings, 0 teksten, 0 onbekende objecten\n"
              "archief.gpkg: 6 punten, 2 lijnstrings, 1 teksten, 2 onbekende objecten\n");
    EXPECT_TRUE(Has(result.error,
                    "Alles samen: 3 bestanden, waarvan 3 overgenomen\n"
                    "1 ander bestand is geen tekening en deed niet mee\n"))
        << result.error;
    EXPECT_EQ(Bytes("archief.gpkg").substr(68, 4), "GPKG");
    EXPECT_EQ(WithSlashes({0, Bytes("v.csv"), ""}).output,
              "\xEF\xBB\xBFinvoer;status;punten;lijnstrings;teksten;onbekend;weggelaten;fouten;meldingen\r\n"
              "in/a.idx;0;3;1;1;1;0;0;\r\n"
              "in/b.sfn;0;2;1;0;1;0;0;\r\n"
              "in/diep/c.sf2;0;1;0;0;0;0;0;\r\n");
    // What is written is not taken in again.
    EXPECT_EQ(MakeGeoPackage({"--stil", "--lokaal", "--overschrijf", ".", "archief.gpkg"}).error,
              "Er is geen tekening gevonden.\n");
}

TEST_F(DrawingBatches, AGeoPackageHasTheSameBytesHoweverManyDrawingsAreReadAtATime) {
    Write("in/0.idx", IdexPoints(20000));
    for (int i = 1; i < 9; ++i) Write("in/" + std::to_string(i) + ".idx", IdexWithCode("C" + std::to_string(i)));
    Write("in/9.idx", BrokenIdex());
    const auto make = [this](const std::string& workers) {
        return MakeGeoPackage(
            {"--lokaal", "--overschrijf", "--taken", workers, "--verslag", "v.csv", "in/", "in/brief.txt", "uit.gpkg"});
    };
    const ProgramResult one = make("1");
    EXPECT_EQ(one.status, 1);
    const std::string file = Bytes("uit.gpkg");
    const std::string report = Bytes("v.csv");
    for (const char* const workers : {"2", "4"}) {
        const ProgramResult many = make(workers);
        EXPECT_EQ(many.status, 1);
        EXPECT_EQ(many.output, one.output);
        EXPECT_EQ(many.error, one.error);
        EXPECT_EQ(Bytes("v.csv"), report);
        EXPECT_TRUE(Bytes("uit.gpkg") == file) << workers;
    }
}

TEST_F(DrawingBatches, WhatLiesOutsideRdIsLeftOutAndToldInItsRow) {
    std::string inRd = smallIdex;
    for (const char* const east : {"1000.0000,2000", "1010.0000,2000", "1020.0000,2000"}) {
        inRd.replace(inRd.find(east), 14, "121000.0,487000");
    }
    Write("in/rd.idx", inRd);
    const ProgramResult result = MakeGeoPackage({"--taken", "3", "--verslag", "v.csv", "in/", "uit.gpkg"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "Alles samen: 3 bestanden, waarvan 1 overgenomen, 2 niet overgenomen\n"))
        << result.error;
    EXPECT_TRUE(Has(Bytes("v.csv"), "in/rd.idx;0;3;1;1;1;0;0;\r\n")) << Bytes("v.csv");
    EXPECT_TRUE(Has(Bytes("v.csv"), "niet overgenomen (zie --lokaal)")) << Bytes("v.csv");
}

}  // namespace

}  // namespace korvande::testing
