#include "cli/BatchReport.h"

#include "cli/Arguments.h"
#include "tests/cli/BatchTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class BatchReports : public BatchTest {
 protected:
    static BatchReport Empty() { return {.command = u"proef", .columns = {"naam", "aantal", "goed"}, .rows = {}}; }

    static BatchReport Difficult() {
        BatchReport report = Empty();
        report.rows = {{Text(u"a;b \"c\".idx"), std::int64_t{-5}, true},
                       {Text(u"twee\r\nregels"), std::int64_t{12345678901}, false},
                       {Text(u" blank, één"), std::int64_t{0}, true}};
        return report;
    }

    static const ReportRow& Sample() {
        static const ReportRow sample = {Text(), std::int64_t{}, bool{}};
        return sample;
    }

    // What the program says of a file that it is to take for a report.
    static std::string RefusalOf(const Text& name) {
        try {
            BatchReport report = Empty();
            ReadReport(name, Sample(), report);
        } catch (const UsageError& error) {
            return ToUtf8(error.message);
        }
        return "(none)";
    }
};

TEST_F(BatchReports, ATableIsOneThatSpreadsheetsInDutchTake) {
    ASSERT_TRUE(WriteReport(folder / "v.csv", Difficult()));
    EXPECT_EQ(Bytes("v.csv"),
              "\xEF\xBB\xBFnaam;aantal;goed\r\n"
              "\"a;b \"\"c\"\".idx\";-5;ja\r\n"
              "\"twee\r\nregels\";12345678901;nee\r\n"
              "\" blank, één\";0;ja\r\n");
}

TEST_F(BatchReports, AnObjectARowStandsInJson) {
    ASSERT_TRUE(WriteReport(folder / "v.JSON", Difficult()));
    EXPECT_EQ(Bytes("v.JSON"),
              "{\n \"opdracht\": \"proef\",\n \"versie\": 1,\n \"bestanden\": [\n"
              "  {\n   \"naam\": \"a;b \\\"c\\\".idx\",\n   \"aantal\": -5,\n   \"goed\": true\n  },\n"
              "  {\n   \"naam\": \"twee\\r\\nregels\",\n   \"aantal\": 12345678901,\n   \"goed\": false\n  },\n"
              "  {\n   \"naam\": \" blank, één\",\n   \"aantal\": 0,\n   \"goed\": true\n  }\n ]\n}\n");
}

TEST_F(BatchReports, WhatWasWrittenIsReadBack) {
    for (const char* const name : {"v.csv", "v.json"}) {
        ASSERT_TRUE(WriteReport(folder / name, Difficult()));
        BatchReport read = Empty();
        ReadReport(folder / name, Sample(), read);
        EXPECT_EQ(read.rows, Difficult().rows) << name;
    }
    BatchReport none = Empty();
    ReadReport(folder / "weg.csv", Sample(), none);
    EXPECT_TRUE(none.rows.empty());
}

TEST_F(BatchReports, AFileThatIsSomethingElseIsNotTakenForOne) {
    for (const char* const bytes :
         {"", "Geachte heer,\r\n", "naam;aantal;goed\r\na;1\r\n", "naam;aantal;goed\r\na;een;ja\r\n",
          "naam;aantal;goed\r\n\"a;1;ja\r\n", "naam;stuks;goed\r\na;1;ja\r\n"}) {
        const Text name = folder.Write("v.csv", bytes);
        EXPECT_EQ(RefusalOf(name), "Dit bestand is geen verslag van proef: " + ToUtf8(name)) << bytes;
    }
    for (const char* const bytes : {"", "{", "[]", "{\"bestanden\": [{\"naam\": \"a\", \"aantal\": 1}]}",
                                    R"({"bestanden": [{"naam": "a", "aantal": "1", "goed": true}]})"}) {
        const Text name = folder.Write("v.json", bytes);
        EXPECT_EQ(RefusalOf(name), "Dit bestand is geen verslag van proef: " + ToUtf8(name)) << bytes;
    }
}

TEST_F(BatchReports, EachInputHasItsRow) {
    Write("t.nst", smallTable);
    Write("in/a.idx", smallIdex);
    Write("in/b;c.idx", BrokenIdex());
    EXPECT_EQ(TranslateAll({"--project", "t.nst", "--verslag", "v.csv", "in/", "weg.idx"}).status, 1);
    std::string report = Bytes("v.csv");
    const std::size_t mark = report.find("\r\n", report.find("in/a.idx")) - 16;
    const std::string options = ";" + report.substr(mark, 16) + "\r\n";
    EXPECT_EQ(report,
              "\xEF\xBB\xBFinvoer;uitvoer;logboek;status;hervat;gelezen;geschreven;weggelaten;onbekend;fouten;"
              "meldingen;opties\r\n"
              "in/a.idx;uit/a.sfn;uit/a.LOG;0;nee;5;4;1;1;0;" +
                  options +
                  "\"in/b;c.idx\";\"uit/b;c.sfn\";\"uit/b;c.LOG\";1;nee;3;2;1;1;1;"
                  "het bestand is afgebroken: END DATABASE ontbreekt (op regel 21)" +
                  options +
                  "weg.idx;uit/weg.sfn;uit/weg.LOG;3;nee;0;0;0;0;0;"
                  "weg.idx is niet vertaald: het bestand kan niet worden gelezen." +
                  options);
}

TEST_F(BatchReports, ANameThatNoReportCanHaveIsRefusedBeforeAnythingIsDone) {
    Write("a.idx", smallIdex);
    fs::create_directory(Path("map.csv"));
    const auto arguments = [](const std::string& report) {
        return std::vector<std::string>{"vertaal", "--modus",      "idex-nen1878", "--verslag",
                                        report,    "--uitvoermap", "uit/",         "a.idx"};
    };
    ExpectRefused(arguments("v.txt"), "Het verslag moet op .csv of .json eindigen: v.txt");
    ExpectRefused(arguments("weg/v.csv"), "De map van het verslag bestaat niet: weg/v.csv");
    ExpectRefused(arguments("map.csv"), "Het verslag is een map: map.csv");
}

TEST_F(BatchReports, AReportOverAnInputOrTheControlTableIsRefused) {
    Write("a.csv", smallIdex);
    Write("t.json", smallTable);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--verslag", "a.csv", "--uitvoermap", "uit/", "a.csv"},
                  "Invoer en verslag zijn hetzelfde bestand:\na.csv");
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--verslag", "t.json", "--project", "t.json", "--uitvoermap",
                   "uit/", "a.csv"},
                  "Controletabel en verslag zijn hetzelfde bestand:\nt.json");
}

TEST_F(BatchReports, NoBatchGoesOnWithoutOne) {
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "uit/", "--hervat", "in/"},
                  "--hervat gaat samen met --verslag, waarin staat wat er al vertaald is.");
}

}  // namespace

}  // namespace korvande::testing
