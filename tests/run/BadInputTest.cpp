#include <algorithm>
#include <filesystem>

#include "tests/run/FileRun.h"
#include "tests/run/RandomDrawing.h"

// Runs over files that no program wrote on purpose: none may crash or hang, every account balances, and what could be
// read is written.
namespace korvande::testing {

namespace {

class BadInput : public FileRunTest {
 protected:
    // Every box gets this answer.
    void AnswerAlways(Answer answer) {
        screen.onMessage = [this, answer] { screen.answers = {answer}; };
    }

    void TranslateToItsEnd(Mode mode, std::string_view bytes) {
        TranslateBytes(mode, bytes);
        EXPECT_TRUE(LogText().find("     Gereed:     ") != std::string::npos);
    }

    // Counts of what the drawing holds, to compare.
    std::int64_t Objects() const {
        const Drawing& drawing = last->drawing;
        return std::int64_t{drawing.Points.UpperBound()} + drawing.Lines.UpperBound() + drawing.Edges.UpperBound() +
               drawing.Texts.UpperBound();
    }

    const std::string& Output() const { return last->outputBytes; }

    // A run that the reader's error ended: its log book line, and so many points all the same.
    void ExpectError(Mode mode, std::string_view bytes, const std::string& line, std::int32_t points) {
        TranslateToItsEnd(mode, bytes);
        EXPECT_TRUE(LogText().find("\nFOUT:  " + line + "\n") != std::string::npos) << LogText();
        EXPECT_EQ(last->drawing.Points.UpperBound(), points);
        EXPECT_FALSE(last->outcome.Failed());
    }
};

std::string Idex(const std::string& database) {
    return WithCrLf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n" + database +
                    "END DATABASE\n");
}

constexpr const char* points =
    "POINTS (PointNo,PointID,East,North,Elevation,Code)\n"
    "1,\"A\",1,2,3,\"MV\";\n"
    "2,\"B\",4,5,6,\"MV\";\n";

std::string Record(std::string typeAndPayload, const char* endCode = "01") {
    typeAndPayload.resize(62, ' ');
    return typeAndPayload + endCode + "\r\n";
}

std::string Nen(const std::string& groups) {
    return Record("010NEN1878    V202405202405") +
           "020102150201         0         0         1         0         101\r\n" + groups;
}

std::string NenPoint() { return Record("03MQ22      G0101", "00") + Record("04I1        X     1000Y     2000"); }

// A drawing with something of everything.
const RandomDrawing& SomeDrawing() {
    static const RandomDrawing drawing = [] {
        for (unsigned seed = 1;; ++seed) {
            RandomDrawing candidate(seed);
            const bool isSmall = candidate.points.size() < 5 && candidate.edges.size() < 5;
            if (isSmall && candidate.edges.size() > 1 && candidate.labels.size() == 1) return candidate;
        }
    }();
    return drawing;
}

TEST_F(BadInput, EveryGoldenFileBalancesInEveryModeWithEveryAnswer) {
    const std::filesystem::path source(KORVANDE_SOURCE_DIR);
    std::vector<std::string> drawings;
    for (const char* const place : {"tests/golden", "samples"}) {
        for (const auto& entry : std::filesystem::directory_iterator(source / place)) {
            if (entry.is_regular_file() && entry.path().extension() != ".nst") {
                drawings.push_back(FileBytes(FromUtf8(entry.path().string())));
            }
        }
    }
    ASSERT_GT(drawings.size(), 20U);
    for (const char* const table : {"tests/golden/klein.nst", "tests/golden/puntteksten.nst"}) {
        LoadTable(FileBytes(FromUtf8((source / table).string())));
        for (const bool withUnknowns : {false, true}) {
            options.chkExportUnknowns = options.chkImportUnknowns = withUnknowns;
            options.chkSelectXY = withUnknowns;
            for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel}) {
                AnswerAlways(answer);
                for (const std::string& drawing : drawings) {
                    for (const Mode mode : allModes) TranslateBytes(mode, drawing);
                }
            }
        }
    }
}

TEST_F(BadInput, RandomDrawingsBalanceWithRandomDamage) {
    LoadTable(RandomTable());
    AnswerAlways(Answer::Yes);
    Chance chance(1878);
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        const std::string idex = RandomDrawing(seed).AsIdex();
        options.chkExportUnknowns = seed % 2 == 0;
        options.chkExport3D = seed % 3 == 0;
        options.chkExportPointnoAsText = seed % 5 == 0;
        options.txtPnoTxtLKI = u"Z30";
        TranslateToItsEnd(seed % 2 == 0 ? idexToNen : idexToSuf, idex);
        const std::string exchange = Output();
        for (int damage = 0; damage < 12; ++damage) {
            const bool isIdex = damage % 2 == 0;
            std::string bytes = isIdex ? idex : exchange;
            for (std::size_t hits = 1 + chance.Below(6); hits > 0 && !bytes.empty(); --hits) {
                const std::size_t at = chance.Below(bytes.size());
                switch (chance.Below(5)) {
                    case 0:
                        bytes.erase(at, 1 + chance.Below(80));
                        break;
                    case 1:
                        bytes.insert(at, bytes.substr(chance.Below(bytes.size()), chance.Below(200)));
                        break;
                    case 2:
                        bytes[at] = static_cast<char>(chance.Below(256));
                        break;
                    case 3:
                        bytes[at] = "0129-,;\"()END\r\n "[chance.Below(16)];
                        break;
                    default:
                        bytes.resize(at);
                        break;
                }
            }
            for (const Mode mode : isIdex ? std::vector{idexToNen, idexToSuf} : std::vector{nenToIdex, sufToIdex}) {
                TranslateToItsEnd(mode, bytes);
            }
        }
    }
}

TEST_F(BadInput, ADrawingCutOffAnywhereKeepsWhatStoodBefore) {
    LoadTable(RandomTable());
    const std::string idex = SomeDrawing().AsIdex();
    std::int64_t before = 0;
    for (std::size_t length = 0; length <= idex.size(); ++length) {
        SCOPED_TRACE(length);
        TranslateToItsEnd(idexToNen, std::string_view(idex).substr(0, length));
        EXPECT_GE(Objects(), before);
        before = Objects();
        const std::string output = Output();
        EXPECT_TRUE(output.starts_with("010NEN1878"));
        EXPECT_TRUE(output.ends_with("\r\n99" + std::string(62, ' ') + "\r\n"));
        EXPECT_EQ(last->outcome.wrongFormat, length < std::string_view("HEADER").size());
    }
    EXPECT_GT(before, 5);
}

TEST_F(BadInput, AnExchangeFileCutOffAnywhereKeepsWhatStoodBefore) {
    LoadTable(RandomTable());
    AnswerAlways(Answer::Yes);
    for (const auto& [there, back] : {std::pair(idexToNen, nenToIdex), std::pair(idexToSuf, sufToIdex)}) {
        TranslateToItsEnd(there, SomeDrawing().AsIdex());
        const std::string exchange = Output();
        std::int64_t before = 0;
        for (std::size_t length = 0; length <= exchange.size(); ++length) {
            SCOPED_TRACE(length);
            TranslateToItsEnd(back, std::string_view(exchange).substr(0, length));
            EXPECT_GE(Objects(), before);
            before = Objects();
            EXPECT_TRUE(Output().ends_with("END DATABASE\r\n"));
        }
        EXPECT_GT(before, 5);
    }
}

TEST_F(BadInput, BinaryNoiseIsNoDrawing) {
    AnswerAlways(Answer::Yes);
    Chance chance(1);
    for (int round = 0; round < 20; ++round) {
        std::string noise(1 + chance.Below(20'000), '\0');
        for (char& byte : noise) byte = static_cast<char>(chance.Below(256));
        for (const Mode mode : allModes) TranslateToItsEnd(mode, noise);
        for (const Mode mode : {idexToNen, idexToSuf}) {
            TranslateToItsEnd(mode, Idex("POINTS (PointNo,East,Code)\n" + noise));
            TranslateToItsEnd(mode, Idex(points + noise));
        }
        for (const Mode mode : {nenToIdex, sufToIdex}) TranslateToItsEnd(mode, Nen(NenPoint() + noise));
    }
}

TEST_F(BadInput, WhatStoodBeforeAnErrorOfTheReaderIsWritten) {
    const std::string ended = std::string(points) + "END POINTS\n";
    const std::string edges = "LINES (LineNo,Code)\n1,\"MUUR\";\nEDGES (LineNo,StartPt,EndPt,LINETYPE)\n";
    ExpectError(idexToNen, Idex(ended + edges + "1,1,2,STRAIGHT;\n1,een,2,STRAIGHT;\nEND EDGES\n"),
                "Typen komen niet overeen (regel 15)", 2);
    EXPECT_EQ(last->drawing.Edges.UpperBound(), 1);
    ExpectError(idexToNen, Idex(ended + edges + "1,1,3,STRAIGHT;\nEND EDGES\n"), "Index buiten bereik (regel 14)", 2);
    ExpectError(idexToNen, Idex(ended + edges + "1,1,-1,STRAIGHT;\nEND EDGES\n"), "Index buiten bereik (regel 14)", 2);
    ExpectError(idexToNen, Idex(std::string(points) + "-1,\"C\",1,2,3,\"MV\";\n"), "Index buiten bereik (regel 10)", 2);
    ExpectError(idexToNen, Idex(ended + "LINES (LineNo,Code)\n2000000000,\"MUUR\";\nEND LINES\n"),
                "Index buiten bereik (regel 12)", 2);
    ExpectError(idexToNen, Idex(std::string(points) + "3,\"C\",1e400,2,3,\"MV\";\n"), "Overloop (regel 10)", 2);
    const std::string boxes = "TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,LayerNo)\n";
    ExpectError(idexToNen, Idex(ended + boxes + "2000000000,1,0;\n"), "Index buiten bereik (regel 13)", 2);
    ExpectError(idexToNen, Idex(ended + boxes + "1,1,7;\n"), "Index buiten bereik (regel 13)", 2);
    ExpectError(idexToNen, Idex(ended + boxes + "1,1,0;\nEND\nITEMS (TextBoxNo,LineNo,TextItem)\n5,1,\"x\";\n"),
                "Index buiten bereik (regel 16)", 2);
    ExpectError(idexToNen, Idex(ended + "TEXT\nBOX_OP_PUNT (TextBoxNo)\n"),
                "Invoer voorbij het einde van het bestand (regel 13)", 2);
}

TEST_F(BadInput, APointNumberOfTwoThousandMillionCostsNoMoreThanOne) {
    TranslateToItsEnd(idexToNen, Idex("POINTS (PointNo,East,Code)\n2000000000,1,\"MV\";\n1,2,\"MV\";\nEND POINTS\n"
                                      "LINES (LineNo,Code)\n1,\"MUUR\";\nEDGES (LineNo,StartPt,EndPt,LINETYPE)\n"
                                      "1,2000000000,1,STRAIGHT;\nEND EDGES\nEND LINES\n"));
    EXPECT_EQ(last->problems.errors, 0);
    EXPECT_EQ(last->drawing.Edges[1].StartPt, 1);
    EXPECT_EQ(last->account[ObjectKind::Point].read, 2);
}

TEST_F(BadInput, PointNumbersThatAreNoNumbersCountAsNought) {
    TranslateToItsEnd(idexToNen,
                      Idex("POINTS (PointNo,East,Code)\nacht,1,\"MV\";\n,2,\"MV\";\n7x,3,\"MV\";\nEND POINTS\n"));
    EXPECT_EQ(last->problems.errors, 0);
    EXPECT_EQ(last->drawing.Points[1].PointNo, 0);
    EXPECT_EQ(last->drawing.Points[2].PointNo, 2);
    EXPECT_EQ(last->drawing.Points[3].PointNo, 7);
}

TEST_F(BadInput, ARowOfTenMegabytesIsARowLikeAnyOther) {
    std::string longName;
    longName.resize(10'000'000, 'a');
    TranslateToItsEnd(idexToNen, Idex(std::string(points) + "3,\"" + longName + "\",1,2,3,\"MV\";\nEND POINTS\n"));
    EXPECT_EQ(last->drawing.Points.UpperBound(), 3);
    EXPECT_EQ(last->drawing.Points[3].PointID().View(), u"AAAAAAAAA");
    TranslateToItsEnd(nenToIdex, longName);
    EXPECT_TRUE(last->outcome.wrongFormat);
}

TEST_F(BadInput, RecordsOfTheWrongLengthAreReadAsFarAsTheyGo) {
    const auto pointsAfter = [this](const std::string& line) {
        TranslateToItsEnd(nenToIdex, Nen(NenPoint() + line + "\r\n" + NenPoint()));
        EXPECT_EQ(last->problems.errors, 0) << line.substr(0, 100);
        return last->drawing.Points.UpperBound();
    };
    const std::string geometry = "04I1        X     3000Y     4000";
    const std::string head = Record("03MQ22      G0101", "00");
    EXPECT_EQ(pointsAfter(std::string(10, 'x')), 2);
    EXPECT_EQ(pointsAfter(std::string(62, 'x')), 2);
    EXPECT_EQ(pointsAfter(std::string(63, 'x')), 2);
    EXPECT_EQ(pointsAfter(std::string(65, 'x')), 2);
    EXPECT_EQ(pointsAfter(std::string(1'000'000, 'x')), 2);
    std::string record = Record(geometry);
    record.resize(64);
    EXPECT_EQ(pointsAfter(head + record.substr(1)), 3);                    // 63: without its leading nought
    EXPECT_EQ(pointsAfter(head + "x" + record), 3);                        // 65
    EXPECT_EQ(pointsAfter(head + "123456" + record), 3);                   // 70
    EXPECT_EQ(pointsAfter(head + std::string(999'936, 'x') + record), 3);  // 1,000,000
}

TEST_F(BadInput, CoordinatesWithLettersCountAsTheirLeadingNumber) {
    TranslateToItsEnd(nenToIdex, Nen(Record("03MQ22      G0101", "00") + Record("04I1        X  12x3456Yonbekend")));
    EXPECT_EQ(last->drawing.Points[1].East, 0.012);
    EXPECT_EQ(last->drawing.Points[1].North, 0);
}

TEST_F(BadInput, AnOutputThatFailsBalancesToo) {
    const Text idex = folder.Write("a.idx", Idex(std::string(points) + "END POINTS\n"));
    const Text nen = folder.Write("a.nen", Nen(NenPoint()));
    AnswerAlways(Answer::No);
    for (const Text& output : {folder / "nergens/uit", Text(u"/dev/full"), folder / ""}) {
        for (const Mode mode : {idexToNen, idexToSuf}) {
            Translate(mode, idex, output);
            EXPECT_TRUE(last->outcome.outputFailed);
            EXPECT_EQ(last->account[ObjectKind::Point].read, 2);
        }
        for (const Mode mode : {nenToIdex, sufToIdex}) {
            Translate(mode, nen, output);
            EXPECT_TRUE(last->outcome.outputFailed);
            EXPECT_EQ(last->account[ObjectKind::Point].read, 1);
        }
    }
}

TEST_F(BadInput, ARunThatIsEndedBalancesToo) {
    LoadTable(RandomTable());
    const Text idex = folder.Write("a.idx", SomeDrawing().AsIdex());
    Translate(idexToNen, idex, folder / "a.sfn");
    AnswerAlways(Answer::No);
    for (std::int64_t after = 1; after < 12; ++after) {
        screen.onPump = [this, last = screen.pumps + after] {
            if (screen.pumps >= last) throw TranslationAborted();
        };
        Translate(idexToSuf, idex, folder / "uit");
        Translate(nenToIdex, folder / "a.sfn", folder / "uit");
    }
}

}  // namespace

}  // namespace korvande::testing
