#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexValueProblems : public IdexTest {
 protected:
    // Reads a POINTS table of these rows, the first of which is line 9.
    std::string ReadPoints(std::string_view rows) {
        return ReadTables("POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n" +
                          std::string(rows) + "END POINTS\n");
    }
    std::string ReadLines(std::string_view rows) {
        return ReadTables("LINES (LineNo,Code,Description,Flags1,Flags2)\n" + std::string(rows) + "END LINES\n");
    }
};

TEST_F(IdexValueProblems, ACoordinateThatIsNoNumberIsTold) {
    ASSERT_EQ(ReadPoints("1,\"\",12l023,5,0,\"\",\"\",0;\n2,\"\",5,O,0,\"\",\"\",0;\n3,\"\",5,5,\"7\",\"\",\"\",0;\n"),
              "");
    EXPECT_EQ(Point(1).East, 12);
    EXPECT_EQ(Lost(), Told{"3 coördinaten die geen getal zijn (de eerste op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexValueProblems, AnotherValueThatIsNoNumberIsTold) {
    ASSERT_EQ(ReadPoints("7.4X,\"\",5,5,0,\"\",\"\",0;\n8,\"\",5,5,0,\"\",\"\",N;\n"), "");
    EXPECT_EQ(Lost(), Told{"2 waarden die geen getal zijn (de eerste op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexValueProblems, ADecimalCommaIsToldAndIsNoDamage) {
    ASSERT_EQ(Read("HEADER\nSEPARATOR ';'\nTERMINATOR '#'\nEND HEADER\nLAYERS (LayerNo;Name)\nEND\nDATABASE\n"
                   "POINTS (PointNo;East;North;SymDir;Code)\n1;121500,50;487500;0,5;\"\"#\nEND\nEND DATABASE\n"),
              "");
    EXPECT_EQ(Point(1).East, 121500);
    EXPECT_EQ(Lost(), Told{"2 getallen met een decimale komma, gelezen tot de komma (de eerste op regel 9)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexValueProblems, ACommaThatIsNotBetweenDigitsMakesNoNumber) {
    ASSERT_EQ(Read("HEADER\nSEPARATOR '|'\nEND HEADER\nLAYERS (LayerNo|Name)\nEND\nDATABASE\n"
                   "POINTS (PointNo|East|North|Code)\n1|1,|2,5X|\"\";\n2|5.,5|,5|\"\";\nEND\nEND DATABASE\n"),
              "");
    EXPECT_EQ(Lost(), Told{"4 coördinaten die geen getal zijn (de eerste op regel 8)"});
}

TEST_F(IdexValueProblems, NumbersOfLineStringsAreTold) {
    ASSERT_EQ(ReadLines("1X,\"\",\"\",00000001,1;\n2,\"\",\"\",00000021,1;\n"), "");
    EXPECT_EQ(Lost(), Told{"2 waarden die geen getal zijn (de eerste op regel 9)"});
}

TEST_F(IdexValueProblems, ALineNumberOfAnEdgeThatIsNoNumberIsTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Code)\n1,5,5,\"\";\nEND\nLINES (LineNo,Code)\n"
                         "EDGES (LineNo,StartPt,EndPt,LineType)\nA,1,1,STRAIGHT;\nEND EDGES\nEND LINES\n"),
              "");
    EXPECT_EQ(Lost(), Told{"1 waarde die geen getal is (op regel 13)"});
    EXPECT_EQ(Edge(1).InputLine, 13);
}

TEST_F(IdexValueProblems, NamesCodesAndDescriptionsThatAreCutAreTold) {
    const std::string description(81, 'x');
    ASSERT_EQ(ReadPoints("1,\"1234567890\",5,5,0,\"12345678\",\"" + description + "\",0;\n"), "");
    EXPECT_EQ(Lost(), (Told{"1 puntnummer afgekapt op 9 tekens (op regel 9)",
                            "1 code afgekapt op 7 tekens (op regel 9)", "1 omschrijving afgekapt (op regel 9)"}));
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexValueProblems, BlanksBehindAValueAreNotCut) {
    const std::string description(80, 'x');
    ASSERT_EQ(ReadPoints("1,\"123456789   \",5,5,0,\"1234567 \",\"" + description + "  \",0;\n"), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexValueProblems, BlanksAloneAreNotCutEither) {
    ASSERT_EQ(ReadPoints("1,\"          \",5,5,0,\"        \",\"\",0;\n"), "");
    EXPECT_TRUE(Point(1).PointID().IsBlank());
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexValueProblems, CodesAndDescriptionsOfLineStringsThatAreCutAreTold) {
    ASSERT_EQ(ReadLines("1,\"12345678\",\"" + std::string(54, 'x') + "\",0,0;\n2,\"1234567\",\"" +
                        std::string(53, 'x') + "\",0,0;\n"),
              "");
    EXPECT_EQ(Lost(), (Told{"1 code afgekapt op 7 tekens (op regel 9)", "1 omschrijving afgekapt (op regel 9)"}));
    EXPECT_EQ(Line(2).InputLine, 10);
}

TEST_F(IdexValueProblems, ALineTypeThatBecomesAnotherByItsWidthIsTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Code)\n1,5,5,\"\";\nEND\nLINES (LineNo,Code)\n1,\"A\";\n"
                         "EDGES (LineNo,StartPt,EndPt,LineType)\n1,1,1,STRAIGHT;\n1,1,1,STRAIGHT      X;\n"
                         "END EDGES\nEND LINES\n"),
              "");
    EXPECT_EQ(Lost(), Told{"1 lijntype afgekapt op 12 tekens (op regel 15)"});
}

TEST_F(IdexValueProblems, AQuoteThatBecomesASingleOneIsTold) {
    ASSERT_EQ(ReadPoints("1,\"A\"\"B\",5,5,0,\"\",\"5\\\" pipe\",0;\n"), "");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "5' PIPE");
    EXPECT_EQ(Lost(), Told{"2 waarden waarin een aanhalingsteken of puntkomma is vervangen (de eerste op regel 9)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexValueProblems, AnEscapedQuoteInANameIsTold) {
    ASSERT_EQ(ReadPoints("1,\"A\\\"\",5,5,0,\"C\\\"\",\"\",0;\n"), "");
    EXPECT_EQ(Shown(Point(1).PointID()), "A\\@\\");
    EXPECT_EQ(Lost(), Told{"2 waarden waarin een aanhalingsteken of puntkomma is vervangen (de eerste op regel 9)"});
}

TEST_F(IdexValueProblems, NeededColumnsThatATableLacksAreTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo)\nEND\nLINES (Flags1)\nEDGES\n(LineNo)\nEND\nEND\n"
                         "TEXT\nBOX_ON_POINT (TextBoxNo)\nEND\nITEMS (TextItemNo)\nEND\nEND TEXT\n"),
              "");
    EXPECT_EQ(Lost(),
              (Told{"kolom CODE in POINTS ontbreekt (op regel 8)", "kolom EAST in POINTS ontbreekt (op regel 8)",
                    "kolom NORTH in POINTS ontbreekt (op regel 8)", "kolom LINENO in LINES ontbreekt (op regel 10)",
                    "kolom CODE in LINES ontbreekt (op regel 10)", "kolom STARTPT in EDGES ontbreekt (op regel 11)",
                    "kolom ENDPT in EDGES ontbreekt (op regel 11)", "kolom LINETYPE in EDGES ontbreekt (op regel 11)",
                    "kolom ANCHORPOINTNO in BOX_ON_POINT ontbreekt (op regel 16)",
                    "kolom ANCHORPOSITION in BOX_ON_POINT ontbreekt (op regel 16)",
                    "kolom HZDIRECTION in BOX_ON_POINT ontbreekt (op regel 16)",
                    "kolom LAYERNO in BOX_ON_POINT ontbreekt (op regel 16)",
                    "kolom TEXTBOXNO in ITEMS ontbreekt (op regel 18)", "kolom LINENO in ITEMS ontbreekt (op regel 18)",
                    "kolom TEXTITEM in ITEMS ontbreekt (op regel 18)"}));
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexValueProblems, AColumnThatATableMayLackIsToldWhenOneOfAnUnknownNameMayBeIt) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,PointID,East,North,Hoogte,Code,SymDir)\n1,\"\",5,5,2.5,\"\",0;\nEND\n"), "");
    EXPECT_EQ(Lost(), Told{"kolom ELEVATION in POINTS ontbreekt (op regel 8)"});
}

TEST_F(IdexValueProblems, AColumnOfWhichNothingIsWrittenIsNeverMissed) {
    ASSERT_EQ(ReadTables("LINES (LineNo,Code,Descriptio,Vlaggen)\n1,\"A\",\"B\",1;\nEND\n"), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexValueProblems, ColumnsThatATableMayLackAreNotTold) {
    ASSERT_EQ(ReadTables("POINTS (East,North,Code)\n5,5,\"\";\nEND\nLINES (LineNo,Code)\n1,\"A\";\nEND\n"), "");
    EXPECT_TRUE(Lost().empty());
}

}  // namespace

}  // namespace korvande::testing
