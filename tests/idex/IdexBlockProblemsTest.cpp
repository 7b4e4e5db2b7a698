#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexBlockProblems : public IdexTest {
 protected:
    // Reads tables of which the first row is line 9.
    std::string ReadPoints(std::string_view rows, std::string_view behind = {}) {
        return ReadTables("POINTS (PointNo,East,North,Code)\n" + std::string(rows) + "END POINTS\n" +
                          std::string(behind));
    }
};

constexpr std::string_view points = "1,5,5,\"\";\n2,6,6,\"\";\n";

TEST_F(IdexBlockProblems, ABlockInsideThePointsIsReadOverAndTold) {
    ASSERT_EQ(ReadPoints("1,5,5,\"\";\nTHEMINFO (PointNo, Attribute)\n  1,\"Hout\";\n\n  1,\"Staal\";\nEND THEMINFO\n"
                         "2,6,6,\"\";\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(2).East, 6);
    EXPECT_EQ(Lost(), Told{"2 regels van blok THEMINFO overgeslagen (de eerste op regel 10)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexBlockProblems, ABlockMayBeginDirectlyBeforeItsParenthesisAndEndByENDOnly) {
    ASSERT_EQ(ReadPoints("notes(PointNo,Note)\n1,\"x\";\nEND\n2,6,6,\"\";\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 2);
    EXPECT_EQ(Lost(), Told{"1 regel van blok NOTES overgeslagen (op regel 9)"});
}

TEST_F(IdexBlockProblems, TheNameOfABlockMayHoldDigitsAndUnderscores) {
    ASSERT_EQ(ReadPoints("THEME_2 (PointNo)\n1;\nEND THEME_2\n1,5,5,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"1 regel van blok THEME_2 overgeslagen (op regel 9)"});
}

TEST_F(IdexBlockProblems, AnEmptyBlockIsNoLoss) {
    ASSERT_EQ(ReadPoints("THEMINFO (PointNo)\n\nEND THEMINFO\n1,5,5,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(Wanted(), Told{"1 leeg blok THEMINFO overgeslagen (op regel 9)"});
}

TEST_F(IdexBlockProblems, ABlockInsideABlockBelongsToIt) {
    ASSERT_EQ(ReadPoints("OUTER (A)\nINNER (B)\n1;\nEND INNER\n2;\nEND OUTER\n1,5,5,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"4 regels van blok OUTER overgeslagen (de eerste op regel 9)"});
}

TEST_F(IdexBlockProblems, ABlockWithoutItsEndEndsWithItsTable) {
    ASSERT_EQ(ReadPoints("1,5,5,\"\";\nTHEMINFO (PointNo)\n1;\n", "LINES (LineNo,Code)\n1,\"A\";\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"1 regel van blok THEMINFO overgeslagen (op regel 10)"});
}

TEST_F(IdexBlockProblems, AnotherTableInsideATableTellsThatItsEndIsMissing) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Code)\n1,5,5,\"\";\nLINES (LineNo,Code)\n1,\"A\";\nEND LINES\n"
                         "END POINTS\n"),
              "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 0);
    EXPECT_EQ(Lost(), (Told{"het bestand is afgebroken: END POINTS ontbreekt (op regel 10)",
                            "1 regel van blok LINES overgeslagen (op regel 10)"}));
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexBlockProblems, ABlockBehindAPointWithoutItsTerminatorIsNoPartOfIt) {
    ASSERT_EQ(ReadPoints("1,5,5,\"\"\nTHEMINFO (PointNo)\n1;\nEND THEMINFO\n2,6,6,\"\";\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(1).InputLine, 9);
    EXPECT_EQ(Lost(),
              (Told{"1 rij zonder afsluitteken (op regel 9)", "1 regel van blok THEMINFO overgeslagen (op regel 10)"}));
}

TEST_F(IdexBlockProblems, AnExtraInfoBehindAPointWithoutItsTerminatorIsTakenForItsRest) {
    ASSERT_EQ(ReadPoints("1,5,5,\"\"\nEXTRAINFO (PointNo,Code)\n1,\"X\";\nEND EXTRAINFO\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Lost().front(), "1 rij zonder afsluitteken (op regel 9)");
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexBlockProblems, ALineWithATerminatorOrOtherSignsOpensNoBlock) {
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\nA (1);\nB (\"x\")\n1,\"C\";\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Lost(),
              (Told{"1 rij met een ander aantal velden dan de tabel kolommen heeft (op regel 9)",
                    "1 waarde die geen getal is (op regel 9)", "1 regel in een tabel die geen rij is (op regel 10)"}));
}

TEST_F(IdexBlockProblems, ARowThatEndsInAParenthesisOpensNoBlock) {
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\n1,\"A\"; (old)\nB (1;2)\nC:D (x)\n2,\"E\";\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 2);
    EXPECT_EQ(Lost(),
              (Told{"2 rijen met tekens achter het afsluitteken, die niet zijn gelezen (de eerste op regel 9)",
                    "1 waarde die geen getal is (op regel 10)", "1 regel in een tabel die geen rij is (op regel 11)"}));
}

TEST_F(IdexBlockProblems, BlocksInsideLinesAndEdgesAreReadOverAndTold) {
    ASSERT_EQ(ReadPoints(points,
                         "LINES (LineNo,Code)\n1,\"A\";\nTHEMINFO (LineNo)\n1;\nEND THEMINFO\n"
                         "EDGES (LineNo,StartPt,EndPt,LineType)\n1,1,2,STRAIGHT;\nTHEMINFO (LineNo)\n1;\nEND THEMINFO\n"
                         "1,2,1,STRAIGHT;\nEND EDGES\n2,\"B\";\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 2);
    EXPECT_EQ(drawing.Edges.UpperBound(), 2);
    EXPECT_EQ(Lost(), Told{"2 regels van blok THEMINFO overgeslagen (de eerste op regel 14)"});
}

TEST_F(IdexBlockProblems, TheExtraInfoOfEdgesIsTold) {
    ASSERT_EQ(ReadPoints(points,
                         "LINES (LineNo,Code)\n1,\"A\";\nEDGES (LineNo,StartPt,EndPt,LineType)\n"
                         "EXTRAINFO (LineNo,Radius)\n1,5.0;\nEND EXTRAINFO\n1,1,2,STRAIGHT;\nEND EDGES\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Edges.UpperBound(), 1);
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(Wanted(), Told{"1 regel van EXTRAINFO in EDGES overgeslagen (op regel 15)"});
}

TEST_F(IdexBlockProblems, ATableThatIsNotReadIsToldAsABlock) {
    ASSERT_EQ(ReadTables("IMAGES (No,Name)\n1,\"x\";\n2,\"y\";\nEND IMAGES\nGROUPS(No)\nEND\nLINES (LineNo,Code)\n"
                         "1,\"A\";\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"2 regels van blok IMAGES overgeslagen (de eerste op regel 8)"});
    EXPECT_EQ(Wanted(), Told{"1 leeg blok GROUPS overgeslagen (op regel 12)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexBlockProblems, ATableOfOursInsideABlockIsReadAsEver) {
    ASSERT_EQ(ReadTables("IMAGES (No,Name)\n1,\"x\";\nLINES (LineNo,Code)\n1,\"A\";\nEND LINES\n2,\"y\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Lost(), (Told{"1 regel overgeslagen: 2,\"Y\"; (op regel 13)",
                            "1 regel van blok IMAGES overgeslagen (op regel 8)"}));
}

TEST_F(IdexBlockProblems, OtherLinesBetweenTablesAreToldByTheirFirstWord) {
    ASSERT_EQ(ReadTables("Remark one\nremark two\n\nEND POINTS\n"), "");
    EXPECT_EQ(Lost(), Told{"2 regels overgeslagen: REMARK (de eerste op regel 8)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexBlockProblems, AParenthesisBetweenTablesOpensNoBlock) {
    ASSERT_EQ(ReadTables("(1)\n(2)\n"), "");
    EXPECT_EQ(Lost(), (Told{"1 regel overgeslagen: (1) (op regel 8)", "1 regel overgeslagen: (2) (op regel 9)"}));
}

TEST_F(IdexBlockProblems, TheRowsBehindTheEndOfATableAreTold) {
    ASSERT_EQ(ReadPoints("1,5,5,\"\";\nEND\n2,6,6,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"1 regel overgeslagen: 2,6,6,\"\"; (op regel 11)"});
}

TEST_F(IdexBlockProblems, PolygonsAreToldByLineAlsoBehindTheirEdges) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo,Code)\n1,\"A\";\nEDGES (LineNo,StartPt)\n1,1;\nEND EDGES\n2,\"B\";\n"
                         "EDGES (LineNo,StartPt)\n2,1;\nEND EDGES\n3,\"C\";\nEND POLYGONS\nLINES (LineNo,Code)\n"
                         "1,\"A\";\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 3);
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(Wanted(), Told{"3 veelhoeken, die niet worden vertaald (de eerste op regel 9)"});
}

TEST_F(IdexBlockProblems, RowsBehindTheEndOfThePolygonsAreNone) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo,Code)\nEDGES (LineNo)\nEND EDGES\nEND POLYGONS\n2,\"B\";\n"), "");
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 0);
    EXPECT_EQ(Lost(), Told{"1 regel overgeslagen: 2,\"B\"; (op regel 12)"});
}

TEST_F(IdexBlockProblems, AnEmptyLineBehindTheEdgesOfPolygonsIsNone) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo)\nEDGES (LineNo)\nEND EDGES\n\n1;\n\nEND POLYGONS\n"), "");
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 1);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexBlockProblems, RowsBehindTheEndOfTheDatabaseAreNoPolygons) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo)\nEDGES (LineNo)\nEND EDGES\n1;\nEDGES (LineNo)\nEND DATABASE\n2;\n"), "");
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 1);
    EXPECT_EQ(Lost(), Told{"1 regel overgeslagen: 2; (op regel 14)"});
}

}  // namespace

}  // namespace korvande::testing
