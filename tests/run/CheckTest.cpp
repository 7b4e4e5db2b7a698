#include "run/Check.h"

#include "run/Steps.h"

#include <algorithm>

#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

class CheckTest : public RunTest {
 protected:
    // Checks a drawing and returns its errors, one sentence a line.
    std::string ProblemsOf(Mode mode, std::string_view bytes) {
        input = std::string(bytes);
        Translation& translation = Begin(mode);
        translation.inputBytes = input;
        std::string problems;
        translation.problems.onProblem = [&problems](const Problem& problem) {
            if (ListOf(problem.kind) != ProblemList::Errors) return;
            problems += ToUtf8(SentenceWithLine(problem)) + "\n";
        };
        CheckDrawing(translation);
        EXPECT_TRUE(translation.account.Balances());
        EXPECT_EQ(std::count(problems.begin(), problems.end(), '\n'), translation.problems.errors);
        return problems;
    }

    std::string UnknownCodes() const {
        std::string codes;
        for (const UnknownCodeRec& unknown : last->unknowns.Entries()) {
            codes += ToUtf8(Concat(unknown.Code.TrimmedRight(), u"=", unknown.Count, u" "));
        }
        return codes;
    }
};

std::string WithLines(const std::string& edges) {
    return WithCrLf(
        "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n"
        "POINTS (PointNo,PointID,East,North,Elevation,Code)\n1,\"A\",1,2,3,\"BOOM\";\n2,\"B\",4,5,6,\"BOOM\";\n"
        "END POINTS\nLINES (LineNo,Code)\n1,\"MUUR\";\nEDGES (LineNo,StartPt,EndPt,LINETYPE)\n" +
        edges + "END EDGES\nEND LINES\nEND DATABASE\n");
}

TEST_F(CheckTest, ASoundDrawingHasNoProblems) {
    EXPECT_EQ(ProblemsOf(idexToNen, WithLines("1,1,2,STRAIGHT;\n")), "");
    EXPECT_FALSE(last->outcome.Failed());
    EXPECT_EQ(last->drawing.Points.UpperBound(), 2);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(CheckTest, UnknownCodesAreTalliedAndUsesCountedWhateverTheOptionsSay) {
    options.chkExportUnknowns = options.chkImportUnknowns = false;
    LoadProjectBytes(screen, project,
                     "[Export]\nIncludeUnknown = 0\n[Import]\nAcceptUnknown = 0\n[Points]\n"
                     "BOOM = S01, PUNT, BOOM\n[End]\n");
    ProblemsOf(idexToNen, WithLines("1,1,2,STRAIGHT;\n"));
    EXPECT_EQ(UnknownCodes(), "LMUUR=1 ");
    EXPECT_EQ(last->codes.points.rows[1].Count, 2);
}

TEST_F(CheckTest, UnknownCodesOfAnExchangeFileAreTalliedToo) {
    options.chkExportUnknowns = true;
    TranslateFiles(BeginInMemory(idexToNen, WithLines("1,1,2,STRAIGHT;\n")));
    const std::string exchange = last->outputBytes;
    options.chkExportUnknowns = options.chkImportUnknowns = false;
    LoadProjectBytes(screen, project,
                     "[Import]\nAcceptUnknown = 0\n[Points]\nUnknown = X, Q99, PUNT, X\n[Lines]\n"
                     "Unknown = X, Q98, LIJN, X\n[End]\n");
    EXPECT_EQ(ProblemsOf(nenToIdex, exchange), "");
    EXPECT_EQ(last->drawing.Points.UpperBound(), 4);
    EXPECT_EQ(UnknownCodes(), "LQ00=1 PQ20=2 ");
}

TEST_F(CheckTest, WhatTheReaderFindsIsToldWithItsLine) {
    EXPECT_EQ(ProblemsOf(idexToNen, WithLines("1,1,2,STRAIGHT;\n1,1,3,STRAIGHT;\n")),
              "Index buiten bereik (regel 15)\n");
    EXPECT_EQ(last->drawing.Edges.UpperBound(), 1);
    EXPECT_EQ(last->problems.Lines(ProblemList::Loss),
              std::vector<Text>{u"de rest van het bestand is niet gelezen, vanaf regel 15"});
    EXPECT_EQ(ProblemsOf(idexToNen, "HEADE\n"), "Geen HEADER gevonden in het IDEX bestand (regel 1)\n");
    EXPECT_TRUE(last->outcome.wrongFormat);
}

TEST_F(CheckTest, NothingIsLeftBehind) {
    Translation& translation = Begin(idexToNen, folder / "in.idx", folder / "uit.sfn");
    const std::string drawing = OnePoint();
    translation.inputBytes = drawing;
    translation.withDiagnosticFiles = true;
    const EnvironmentValue drive("KORVANDE_DRIVE_D", folder.Path());
    CheckDrawing(translation);
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 1);
    EXPECT_EQ(folder.Listing(), "");
    EXPECT_EQ(translation.outputBytes, "");
    EXPECT_FALSE(translation.log.IsOpen());
}

TEST_F(CheckTest, AnInputThatIsNotThereIsMarked) {
    CheckDrawing(Begin(nenToIdex, folder / "weg.sfn", folder / "uit.idx"));
    EXPECT_TRUE(last->outcome.inputUnreadable);
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(CheckTest, ADrawingIsReadOnlyAndKeepsItsCodes) {
    ReadDrawing(BeginInMemory(idexToNen, OnePoint()));
    EXPECT_EQ(last->drawing.Points.UpperBound(), 1);
    options.chkExportUnknowns = true;
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    ReadDrawing(BeginInMemory(nenToIdex, std::string(last->outputBytes)));
    ASSERT_EQ(last->drawing.Points.UpperBound(), 1);
    EXPECT_EQ(ToUtf8(last->drawing.Code(last->drawing.Points[1]).TrimmedRight()), "Q20");
    EXPECT_EQ(last->outputBytes, "");
    ReadDrawing(Begin(idexToNen, folder / "weg.idx"));
    EXPECT_TRUE(last->outcome.inputUnreadable);
    screen.onPump = [] { throw TranslationAborted(); };
    ReadDrawing(BeginInMemory(idexToNen, OnePoint()));
    EXPECT_TRUE(last->outcome.cancelled);
}

TEST_F(CheckTest, APersonCanEndIt) {
    screen.onPump = [] { throw TranslationAborted(); };
    ProblemsOf(idexToNen, OnePoint());
    EXPECT_TRUE(last->outcome.cancelled);
}

}  // namespace

}  // namespace korvande::testing
