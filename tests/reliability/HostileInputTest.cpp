#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "idex/modImportIDEX.h"
#include "project/ControlTableReader.h"
#include "run/TranslateFiles.h"
#include "translation/Translation.h"

// Files whose contents mean harm: texts that look like the structure of the format they go to, and numbers beyond all
// bounds.
namespace korvande::testing {

namespace {

constexpr Mode idexToNen{Direction::FromIdex, Variant::Nen1878};
constexpr Mode idexToSuf{Direction::FromIdex, Variant::Suf2};
constexpr Mode nenToIdex{Direction::ToIdex, Variant::Nen1878};
constexpr Mode sufToIdex{Direction::ToIdex, Variant::Suf2};

std::string Idex(const std::string& database) {
    return "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\n0,\"NAAM\";\r\nEND LAYERS\r\nDATABASE\r\n" + database +
           "END DATABASE\r\n";
}

std::string Record(std::string typeAndPayload, const char* endCode) {
    typeAndPayload.resize(62, ' ');
    return typeAndPayload + endCode + "\r\n";
}

const std::string header = Record("010NEN1878    V202405202405", "01") +
                           "020102150201         0         0         1         0         101\r\n";

class HostileInput : public ::testing::Test {
 protected:
    HostileInput() { LoadEmptyProject(project); }

    void TakeTable(const std::string& points = "") {
        const std::string table = "[Points]\r\nUnknown = ?, Q20, PUNT, ONBEKEND, 0, 0, 0\r\n" + points +
                                  "[Texts]\r\nUnknown = ?, Z19, ONBEKEND, 0, 0, 0\r\n"
                                  "NAAM = Z04, NAAM, 0, 0, 0\r\n[End]\r\n";
        LineReader file;
        file.OpenBytes(table);
        ReadControlTable(screen, file, project);
        project.options.chkExportUnknowns = project.options.chkImportUnknowns = true;
    }

    // A translation of the test's own, from these bytes into memory, that has not been run.
    Translation& Begin(Mode mode, std::string drawing) {
        errors.clear();
        input = std::move(drawing);
        translation.emplace(screen, project);
        translation->mode = mode;
        translation->modeText = NamesOf(mode).text;
        translation->inputBytes = input;
        translation->outputTo = OutputTo::Memory;
        translation->withDiagnosticFiles = false;
        translation->problems.onProblem = [this](const Problem& problem) {
            const bool isError = ListOf(problem.kind) == ProblemList::Errors;
            if (isError) errors.push_back(ToUtf8(Sentence(problem)));
        };
        return *translation;
    }

    // A whole run, after which the account must balance.
    const Translation& Translate(Mode mode, std::string drawing) {
        Translation& run = Begin(mode, std::move(drawing));
        EXPECT_TRUE(TranslateFiles(run));
        EXPECT_TRUE(run.account.Balances()) << ToUtf8(NamesOf(mode).text) << "\n" << ToUtf8(run.account.Summary());
        EXPECT_EQ(run.problems.errors, static_cast<std::int64_t>(errors.size()));
        return run;
    }

    // What the IDEX reader makes of what a translation to IDEX wrote.
    const Drawing& ReadBack() {
        Translation& run = Begin(idexToNen, translation->outputBytes);
        ReadIdexFile(run);
        EXPECT_EQ(errors, std::vector<std::string>());
        return run.drawing;
    }

    // The texts of the drawing at the other end of a translation there and back, in UTF-8 and without blanks around.
    std::vector<std::string> TextsAfter(Mode there, Mode back, const std::string& drawing) {
        for (const Mode mode : {there, back}) {
            const Translation& run = Translate(mode, mode == there ? drawing : translation->outputBytes);
            EXPECT_FALSE(run.outcome.Failed());
            EXPECT_EQ(errors, std::vector<std::string>());
        }
        return TextsOf(translation->drawing);
    }

    static std::vector<std::string> TextsOf(const Drawing& drawing) {
        std::vector<std::string> texts;
        for (int i = 1; i <= drawing.Texts.UpperBound(); ++i) {
            texts.push_back(ToUtf8(drawing.Texts[i].Characters().Trimmed()));
        }
        return texts;
    }

    // What becomes of a number that stands as a coordinate in a drawing: its value as read, and the error, if any.
    std::pair<double, std::string> AsCoordinate(const std::string& number) {
        project.options.chkExportUnknowns = true;
        const Translation& run = Translate(
            idexToNen, Idex("POINTS (PointNo,East,North,Code)\r\n1," + number + ",2,\"MV\";\r\n" + "END POINTS\r\n"));
        const auto& points = run.drawing.Points;
        return {points.UpperBound() == 1 ? points[1].East : 0, errors.empty() ? "" : errors.front()};
    }

    // Whether the last translation wrote this.
    bool Wrote(std::string_view bytes) const { return translation->outputBytes.find(bytes) != std::string::npos; }

    SilentScreen screen;
    Project project;
    std::string input;
    std::optional<Translation> translation;
    std::vector<std::string> errors;  // of the last translation, in UTF-8
};

using Texts = std::vector<std::string>;

TEST_F(HostileInput, TextsThatLookLikeRecordsStayTextsInExchangeFiles) {
    TakeTable();
    const Texts texts = {
        "99", "03MQ22      G0101", "06A20TABC 05F111      X  1000000Y", "00", "01", "1,2,3", "\x1B[2J", "'s-Gravenhage",
        "T"};
    std::string boxes;
    std::string items;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        boxes += number + ",1,1,0,0;\r\n";
        items += number + ",1,\"" + texts[i] + "\";\r\n";
    }
    const std::string drawing = Idex(
        "POINTS (PointNo,East,North,Code)\r\n1,1,2,\"MV\";\r\nEND POINTS\r\nTEXT\r\n"
        "BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\r\n" +
        boxes + "END\r\nITEMS (TextBoxNo,LineNo,TextItem)\r\n" + items + "END\r\nEND TEXT\r\n");
    EXPECT_EQ(TextsAfter(idexToNen, nenToIdex, drawing), texts);
    EXPECT_EQ(TextsAfter(idexToSuf, sufToIdex, drawing), texts);
}

TEST_F(HostileInput, TextsThatLookLikeRowsStayTextsInIdex) {
    TakeTable();
    // As they stand in records, and as IDEX can hold them.
    const std::vector<std::pair<std::string, std::string>> texts = {{"END ITEMS", "END ITEMS"},
                                                                    {"END DATABASE", "END DATABASE"},
                                                                    {"\";", "',"},
                                                                    {"a\",1,1,\"b", "a',1,1,'b"},
                                                                    {"1;2;3", "1,2,3"},
                                                                    {"\\\"", "\\'"},
                                                                    {"POINTS (PointNo)", "POINTS (PointNo)"},
                                                                    {"EXTRAINFO", "EXTRAINFO"}};
    std::string groups;
    Texts expected;
    for (const auto& [asRecord, asIdex] : texts) {
        groups += Record("03MZ04", "00") + Record("05F111      X     1000Y     2000X     2000Y     2000KZ04", "00") +
                  Record("06A" + std::to_string(10 + asRecord.size()) + "T" + asRecord, "01");
        expected.push_back(asIdex);
    }
    Translate(nenToIdex, header + groups);
    EXPECT_EQ(errors, Texts());
    EXPECT_EQ(TextsOf(ReadBack()), expected);
}

TEST_F(HostileInput, NamesAndCodesThatLookLikeRowsStayNamesAndCodesInIdex) {
    TakeTable("\";\",X = Q22, PUNT, X; END, 0, 0, 0\r\n");
    const std::string point =
        Record("03MQ22      G0101", "00") + Record("04I1        N\",1;\";ENDX     1000Y     2000", "01");
    Translate(nenToIdex, header + point + point);
    const Drawing& read = ReadBack();
    const auto& points = read.Points;
    ASSERT_EQ(points.UpperBound(), 2);
    EXPECT_EQ(ToUtf8(points[1].PointID().Trimmed()), "',1,',END");
    EXPECT_EQ(ToUtf8(read.Code(points[1]).Trimmed()), "',',X");
    EXPECT_EQ(points[2].East, 1);
}

TEST_F(HostileInput, WhatIsNoNumberCountsAsNought) {
    for (const char* const word :
         {"NaN", "INF", "-INF", "nan(1)", "0x10", "--1", "1E", "E5", "\x1B[1m5", "-0", "+-0"}) {
        const auto [value, error] = AsCoordinate(word);
        EXPECT_EQ(error, "") << word;
        EXPECT_EQ(std::string(word) == "-0", !translation->problems.HasDamage()) << word;
        EXPECT_EQ(value, std::string(word) == "1E" ? 1 : 0) << word;
        EXPECT_FALSE(Wrote("X-")) << word;
    }
}

TEST_F(HostileInput, ANumberTooLargeForItsColumnsKeepsItsLastDigits) {
    EXPECT_EQ(AsCoordinate("99999999999999999999"), std::pair(1e20, std::string()));
    EXPECT_TRUE(Wrote("X000000000Y     2000"));
    EXPECT_EQ(AsCoordinate("-99999999999999999999").second, "");
    EXPECT_EQ(AsCoordinate("1E300").second, "");
}

TEST_F(HostileInput, ANumberBeyondAllBoundsIsAnOverflow) {
    EXPECT_EQ(AsCoordinate("1E309").second, "Overloop (regel 8)");
    EXPECT_EQ(AsCoordinate("1D400").second, "Overloop (regel 8)");
    EXPECT_EQ(AsCoordinate(std::string(400, '9')).second, "Overloop (regel 8)");
    // As many metres can be read, but not as many millimetres written.
    EXPECT_EQ(AsCoordinate("1E308").second, "Overloop");
    EXPECT_TRUE(translation->outcome.outputFailed);
}

TEST_F(HostileInput, ANumberThatFillsItsFieldIsReadFromARecord) {
    for (const auto& [field, value] :
         {std::pair("    1E308", 1e305), std::pair("99999999 ", 99999.999), std::pair("      NaN", 0.0),
          std::pair("     -INF", 0.0), std::pair("       -0", 0.0), std::pair("-99999999", -99999.999)}) {
        const std::string point =
            Record("03MQ22      G0101", "00") + Record("04I1        X" + std::string(field) + "Y     2000", "01");
        const Translation& run = Translate(nenToIdex, header + point);
        ASSERT_EQ(run.drawing.Points.UpperBound(), 1) << field;
        const double east = run.drawing.Points[1].East;
        EXPECT_LE(std::abs(east - value), 1e-9 * std::abs(east)) << field;
        EXPECT_EQ(ReadBack().Points.UpperBound(), 1) << field;
    }
}

TEST_F(HostileInput, HeadersThatPromiseTooMuchTakeNoMemory) {
    for (const char* const table : {"LINES (LineNo)\r\n1000000001;\r\n", "LINES (LineNo)\r\n99999999999999999999;\r\n",
                                    "TEXT\r\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,LayerNo)\r\n1000000001,1,0;\r\n"}) {
        const Translation& run = Translate(idexToNen, Idex(table));
        EXPECT_EQ(run.problems.errors, 1) << table;
        EXPECT_EQ(run.drawing.Lines.UpperBound(), 0) << table;
        EXPECT_EQ(run.drawing.Texts.UpperBound(), 0) << table;
    }
    const Translation& run =
        Translate(idexToNen, "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\n1000000001,\"A\";\r\n");
    EXPECT_EQ(std::count(errors.begin(), errors.end(), "Index buiten bereik (regel 4)"), 1);
    EXPECT_LE(run.drawing.LayerNames.size(), 1U);
}

// What a reader could take the square of a file's length for: each is read in a moment.
TEST_F(HostileInput, NoFileTakesLongerThanItsLengthAccountsFor) {
    TakeTable();
    const auto times = [](std::size_t bytes, const std::string& part) {
        std::string many;
        while (many.size() < bytes) many += part;
        return many;
    };
    constexpr std::size_t size = 500'000;
    const std::string points = "POINTS (PointNo,PointID,East,North,Code)\r\n";
    const std::string group = Record("03MB05      G1301", "00");
    const std::vector<std::pair<Mode, std::string>> files = {
        {idexToNen, Idex(points + "1,\"" + times(size, "\"") + "\";\r\n")},
        {idexToNen, Idex(points + "1,\"" + times(size, "\\\"") + "\";\r\n")},
        {idexToNen, Idex(points + times(size, "1,2,3\r\n"))},
        {idexToNen, Idex("POINTS " + times(size, "(\r\n"))},
        {idexToNen, Idex(points + "1,\"A\";\r\n" + times(size, "EXTRAINFO (x,x,x,x,x,x,PointNo)\r\n"))},
        {idexToNen,
         Idex(points + times(size / 2, "0,\"A\";\r\n") + "EXTRAINFO (PointNo,East)\r\n" + times(size / 2, ",1;\r\n"))},
        {idexToNen, Idex("LINES (LineNo,Code)\r\n" + times(size, "1,\"M\";\r\nEDGES (LineNo)\r\nEND\r\n"))},
        {idexToNen, times(size, "\r")},
        {nenToIdex, header + times(size, "x\r\n")},
        {nenToIdex, header + times(size, Record("05F111      Q22", "00"))},
        {nenToIdex, header + group + times(size, Record("04X     1000Y     2000X     5000Y     7000", "00"))},
        {sufToIdex, header + times(size, Record("07", "01"))}};
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto& [mode, bytes] = files[i];
        const auto begin = std::chrono::steady_clock::now();
        Translate(mode, bytes);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10)) << "file " << i;
    }
}

TEST_F(HostileInput, AMillionColumnsAreReadOver) {
    std::string columns;
    std::string values;
    for (int i = 0; i < 1'000'000; ++i) {
        columns += "Kolom,";
        values += "1,";
    }
    const auto begin = std::chrono::steady_clock::now();
    const Translation& run = Translate(idexToNen, Idex("POINTS (" + columns + "PointNo,East,Code)\r\n" + values +
                                                       "7,5,\"MV\";\r\n" + "END POINTS\r\n"));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
    ASSERT_EQ(run.drawing.Points.UpperBound(), 1);
    EXPECT_EQ(run.drawing.Points[1].PointNo, 7);
    EXPECT_EQ(run.drawing.Points[1].East, 5);
}

}  // namespace

}  // namespace korvande::testing
