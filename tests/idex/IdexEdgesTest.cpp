#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexEdges : public IdexTest {
 protected:
    // Reads three points, numbered 10, 20 and 40, and these rows of edges; the first row is line 9 of the tables.
    std::string ReadEdges(std::string_view rows) {
        return ReadTables(
            "POINTS (PointNo)\n10;\n20;\n40;\nEND\nLINES (LineNo,Code)\n1,\"A\";\n"
            "EDGES (LineNo,StartPt,EndPt,LineType)\n" +
            std::string(rows) + "END EDGES\nEND LINES\n");
    }
    static constexpr int firstRow = 9;
};

TEST_F(IdexEdges, ARowGivesEveryFieldOfAnEdge) {
    ASSERT_EQ(ReadEdges("1,40,10,straight;\n1,10,20,\"curve\";\n"), "");
    ASSERT_EQ(drawing.Edges.UpperBound(), 2);
    EXPECT_EQ(Edge(1).LineNo, 1);
    EXPECT_EQ(Edge(1).StartPt, 3);
    EXPECT_EQ(Edge(1).EndPt, 1);
    EXPECT_EQ(Shown(drawing.LineType(Edge(1))), "STRAIGHT");
    EXPECT_EQ(Edge(2).StartPt, 1);
    EXPECT_EQ(Edge(2).EndPt, 2);
}

TEST_F(IdexEdges, TheLineTypeKeepsItsQuotesAndIsCutToTwelveCharacters) {
    ASSERT_EQ(ReadEdges("1,10,20,\"curve\";\n1,10,20,abcdefghijklmn;\n1,10,20;\n"), "");
    EXPECT_EQ(Shown(drawing.LineType(Edge(1))), "\"CURVE\"");
    EXPECT_EQ(Shown(drawing.LineType(Edge(2))), "ABCDEFGHIJKL");
    EXPECT_EQ(drawing.LineType(Edge(3)), MakeFixedText<12>(u""));
}

TEST_F(IdexEdges, AnyLineNumberIsKept) {
    ASSERT_EQ(ReadEdges("0,10,20;\n-3,10,20;\n2000000000,10,20;\n,10,20;\nX,10,20;\n"), "");
    EXPECT_EQ(Edge(1).LineNo, 0);
    EXPECT_EQ(Edge(2).LineNo, -3);
    EXPECT_EQ(Edge(3).LineNo, 2'000'000'000);
    EXPECT_EQ(Edge(4).LineNo, 0);
    EXPECT_EQ(Edge(5).LineNo, 0);
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
}

TEST_F(IdexEdges, APointNumberInAGapIsNoPoint) {
    ASSERT_EQ(ReadEdges("1,30,0;\n"), "");
    EXPECT_EQ(Edge(1).StartPt, 0);
    EXPECT_EQ(Edge(1).EndPt, 0);
}

TEST_F(IdexEdges, APointNumberMayHaveDecimals) {
    ASSERT_EQ(ReadEdges("1, 10.5 ,1.95E1;\n"), "");
    EXPECT_EQ(Edge(1).StartPt, 1);
    EXPECT_EQ(Edge(1).EndPt, 2);
}

TEST_F(IdexEdges, APointNumberThatIsNoNumberIsAnError) {
    for (const std::string_view row :
         {"1,10A,20;\n", "1,10,A;\n", "1,,20;\n", "1,10;\n", "1,\"10\",20;\n", "1,10 20,20;\n", "1,1E,20;\n"}) {
        EXPECT_EQ(ReadEdges("1,10,20;\n" + std::string(row) + "1,20,40;\n"),
                  ErrorAt(errors::typeMismatch, firstRow + 1))
            << row;
        EXPECT_EQ(drawing.Edges.UpperBound(), 1) << row;
        EXPECT_EQ(drawing.Points.UpperBound(), 3) << row;
        EXPECT_EQ(drawing.Lines.UpperBound(), 1) << row;
    }
}

TEST_F(IdexEdges, APointNumberAboveEveryPointIsAnError) {
    EXPECT_EQ(ReadEdges("1,10,20;\n1,10,41;\n"), ErrorAt(errors::subscriptOutOfRange, firstRow + 1));
    EXPECT_EQ(drawing.Edges.UpperBound(), 1);
    EXPECT_EQ(ReadEdges("1,2000000000,10;\n"), ErrorAt(errors::subscriptOutOfRange, firstRow));
}

TEST_F(IdexEdges, ANegativePointNumberIsAnError) {
    EXPECT_EQ(ReadEdges("1,-1,20;\n"), ErrorAt(errors::subscriptOutOfRange, firstRow));
    EXPECT_EQ(drawing.Edges.UpperBound(), 0);
}

TEST_F(IdexEdges, ANumberBeyond32BitsOverflows) {
    EXPECT_EQ(ReadEdges("1,3000000000,20;\n"), ErrorAt(errors::overflow, firstRow));
    EXPECT_EQ(ReadEdges("3000000000,10,20;\n"), ErrorAt(errors::overflow, firstRow));
    EXPECT_EQ(drawing.Edges.UpperBound(), 0);
}

TEST_F(IdexEdges, ABlockOfExtraInformationIsSkipped) {
    ASSERT_EQ(ReadEdges("1,10,20;\n"
                        "  extrainfo(LineNo,Remark\n"
                        "1,X,Y;\n"
                        "\n"
                        "END EXTRAINFO\n"
                        "1,20,40;\n"),
              "");
    ASSERT_EQ(drawing.Edges.UpperBound(), 2);
    EXPECT_EQ(Edge(2).StartPt, 2);
    EXPECT_EQ(Edge(2).EndPt, 3);
}

TEST_F(IdexEdges, ABlockOfExtraInformationWithoutItsEndTakesTheRestOfTheFile) {
    EXPECT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOINTS (PointNo)\n1;\nEND\n"
                   "LINES (LineNo)\nEDGES (LineNo,StartPt,EndPt)\n1,1,1;\nEXTRAINFO (A)\n1,2,3;\n"),
              "error 62 in line 13");
    EXPECT_EQ(drawing.Edges.UpperBound(), 1);
}

TEST_F(IdexEdges, BehindThemTheirLinesGoOn) {
    ASSERT_EQ(ReadTables("POINTS (PointNo)\n10;\n20;\nEND\n"
                         "LINES (LineNo,Code)\n"
                         "1,\"A\";\n"
                         "EDGES (LineNo,StartPt,\nEndPt)\n1,10,20;\nEND EDGES\n"
                         "2,\"B\";\n"
                         "EDGES (EndPt,StartPt,LineNo)\n10,20,2;\nEND EDGES\n"
                         "END LINES\n"),
              "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Shown(drawing.Code(Line(2))), "B");
    ASSERT_EQ(drawing.Edges.UpperBound(), 2);
    EXPECT_EQ(Edge(2).LineNo, 2);
    EXPECT_EQ(Edge(2).StartPt, 2);
    EXPECT_EQ(Edge(2).EndPt, 1);
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen IDEX", "Inlezen Punten", "Inlezen Lijnstrings",
                                                         "Inlezen Lijnsegmenten", "Inlezen Lijnstrings",
                                                         "Inlezen Lijnsegmenten", "Inlezen Lijnstrings"}));
}

TEST_F(IdexEdges, ReferToThePointReadLastUnderItsNumber) {
    ASSERT_EQ(
        ReadTables(
            "POINTS (PointNo)\n10;\n10;\nEND\nLINES (LineNo)\nEDGES (LineNo,StartPt,EndPt)\n1,10,10;\nEND\nEND\n"),
        "");
    EXPECT_EQ(Edge(1).StartPt, 2);
}

TEST_F(IdexEdges, OnAPointOfTwoThousandMillionAreRead) {
    ASSERT_EQ(ReadTables("POINTS (PointNo)\n2000000000;\nEND\n"
                         "LINES (LineNo)\nEDGES (LineNo,StartPt,EndPt)\n1,2000000000,1999999999;\nEND\nEND\n"),
              "");
    EXPECT_EQ(Edge(1).StartPt, 1);
    EXPECT_EQ(Edge(1).EndPt, 0);
}

}  // namespace

}  // namespace korvande::testing
