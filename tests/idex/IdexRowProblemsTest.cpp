#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexRowProblems : public IdexTest {
 protected:
    // Reads a POINTS table of these rows, the first of which is line 9.
    std::string ReadPoints(std::string_view rows) {
        return ReadTables("POINTS (PointNo,PointID,East,North,Code)\n" + std::string(rows) + "END POINTS\n");
    }
    std::string ReadLines(std::string_view rows) {
        return ReadTables("LINES (LineNo,Code)\n" + std::string(rows) + "END LINES\n");
    }
};

TEST_F(IdexRowProblems, GoodRowsTellNothing) {
    ASSERT_EQ(ReadPoints("1,\"A\",-10.5,+20,\"BOOM\";\n  2 , \"B\", .5, 1E2, \"\" ;\n-3,\"C\",1,2,\"\";\n"),
              "error 9 in line 11");
    EXPECT_EQ(Lost(), Told{"de rest van het bestand is niet gelezen, vanaf regel 11"});
    EXPECT_TRUE(Wanted().empty());
}

TEST_F(IdexRowProblems, AnEmptyFieldBehindTheLastColumnIsNotTold) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"BOOM\",;\n2,\"B\",10,20,\"BOOM\", , ;\n"), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexRowProblems, APointDividedOverTwoLinesIsNotTold) {
    ASSERT_EQ(ReadPoints("1,\"A\",\n10,20,\"BOOM\";\n2,\"B\",30,40,\"BOOM\"\n;\n3\n,\"C\",50,60,\"\";\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 3);
    EXPECT_EQ(Point(1).North, 20);
    EXPECT_EQ(Point(1).InputLine, 9);
    EXPECT_EQ(Point(3).East, 50);
    EXPECT_EQ(Point(3).InputLine, 13);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexRowProblems, APointDividedBeforeAnEscapedQuoteIsNotTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Code,Description)\n1,10,20,\"BOOM\",\n"
                         "\"Kast \\\"EK 1\\\", noord, \\\"2\\\"\";\nEND POINTS\n"),
              "");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "KAST 'EK 1', NOORD, '2'");
    EXPECT_EQ(Lost(), Told{"1 waarde waarin een aanhalingsteken of puntkomma is vervangen (op regel 9)"});
}

TEST_F(IdexRowProblems, APointWithoutItsTerminatorThatTakesTheNextOneIsTold) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"\"\n2,\"B\",30,40,\"\";\n3,\"C\",50,60,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Lost(), Told{"1 rij zonder afsluitteken (op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexRowProblems, AShortPointWithoutItsTerminatorThatTakesTheNextOneIsTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Elevation,Code,Description,SymDir)\n"
                         "1,10,20\n2,30,40;\nEND POINTS\n"),
              "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"1 rij zonder afsluitteken (op regel 9)"});
}

TEST_F(IdexRowProblems, TwoPointsWithoutTheirTerminatorsAreBothTold) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"\"\n2,\"B\",30,40,\"\"\n3,\"C\",50,60,\"\";\n"), "");
    EXPECT_EQ(Lost(), Told{"2 rijen zonder afsluitteken (de eerste op regel 9)"});
}

TEST_F(IdexRowProblems, TheLastPointWithoutItsTerminatorIsToldAndRead) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"BOOM\"\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Point(1))), "BOOM");
    EXPECT_EQ(Lost(), Told{"1 rij zonder afsluitteken (op regel 9)"});
}

TEST_F(IdexRowProblems, RowsOfOtherTablesWithoutATerminatorAreTold) {
    ASSERT_EQ(ReadLines("1,\"A\"\n2,\"B\";\n3,\"C\"\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Lost(), Told{"2 rijen zonder afsluitteken (de eerste op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexRowProblems, WhatStandsBehindATerminatorIsTold) {
    ASSERT_EQ(ReadLines("1,\"A\"; 2,\"B\";\n3,\"C\"; \n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 3);
    EXPECT_EQ(Lost(), Told{"1 rij met tekens achter het afsluitteken, die niet zijn gelezen (op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexRowProblems, WhatStandsBehindATerminatorIsToldOfAnEmptyLastFieldToo) {
    ASSERT_EQ(ReadLines("1, ; \"B\"\n"), "");
    EXPECT_EQ(Lost(), Told{"1 rij met tekens achter het afsluitteken, die niet zijn gelezen (op regel 9)"});
}

TEST_F(IdexRowProblems, ATerminatorInsideQuotesIsToldAsAValueCut) {
    ASSERT_EQ(ReadLines("1,\"A;B\";\n2,\"say \"\"x;y\"\"\";\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Lost().front(), "2 waarden afgekapt bij een afsluitteken (de eerste op regel 9)");
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexRowProblems, ATerminatorInsideTheQuotesAtTheEndOfALineIsNoOther) {
    ASSERT_EQ(ReadLines("1,\"A;B\"\n"), "");
    EXPECT_EQ(Lost(), Told{"1 waarde afgekapt bij een afsluitteken (op regel 9)"});
}

TEST_F(IdexRowProblems, ATerminatorBehindAnUnclosedQuoteEndsTheRow) {
    ASSERT_EQ(ReadLines("1,\"A;\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexRowProblems, ARowOfFewerOrMoreFieldsIsTold) {
    ASSERT_EQ(ReadLines("1;\n2,\"B\",3;\n3,\"C\",,4;\n4;\n5,\"E\";\n"), "");
    EXPECT_EQ(Lost(), Told{"4 rijen met een ander aantal velden dan de tabel kolommen heeft (de eerste op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexRowProblems, FieldsOfColumnsThatAreNotWantedMayBeMissingAtTheEnd) {
    ASSERT_EQ(ReadTables("LINES "
                         "(LineNo,Code,Description,Flags1,Flags2,Colour,Width)\n1,\"A\",\"\",1,1;\n2,\"B\",\"\",1,1,"
                         "\"RED\";\nEND LINES\n"),
              "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexRowProblems, AShortPointIsNotToldAgainAsOneWithoutCoordinates) {
    ASSERT_EQ(ReadPoints("1,\"A\";\n"), "");
    EXPECT_EQ(Lost(), Told{"1 rij met een ander aantal velden dan de tabel kolommen heeft (op regel 9)"});
}

TEST_F(IdexRowProblems, CommentsInATableAreToldByLine) {
    ASSERT_EQ(ReadLines("! one\n-- two\n# three\n/* four */\n// five, 5;\nsix\n1,\"A\";\n"), "");
    EXPECT_EQ(Lost(), Told{"6 regels in een tabel die geen rij zijn (de eerste op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexRowProblems, ACommentedRowIsNoRow) {
    ASSERT_EQ(ReadPoints("! 1,\"A\",10,20,\"\";\n2,\"B\",10,20,\"\";\n"), "");
    EXPECT_EQ(Lost(), Told{"1 regel in een tabel die geen rij is (op regel 9)"});
}

TEST_F(IdexRowProblems, ACommentThatTakesTheNextPointIsTold) {
    ASSERT_EQ(ReadPoints("! comment\n1,\"A\",10,20,\"\";\n2,\"B\",30,40,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Lost(), Told{"1 regel in een tabel die geen rij is (op regel 9)"});
}

TEST_F(IdexRowProblems, AWordThatTakesTheNextPointIsTold) {
    ASSERT_EQ(ReadPoints("comment\n1,\"A\",10,20,\"\";\n"), "");
    EXPECT_EQ(Lost(), Told{"1 regel in een tabel die geen rij is (op regel 9)"});
}

TEST_F(IdexRowProblems, AWordBeforeACommentedPointIsToldWithIt) {
    ASSERT_EQ(ReadPoints("comment\n! 1,\"A\",10,20,\"\";\n2,\"B\",30,40,\"\";\n"), "");
    EXPECT_EQ(Lost(), Told{"2 regels in een tabel die geen rij zijn (de eerste op regel 9)"});
}

TEST_F(IdexRowProblems, ACommentedPointBehindOneWithoutItsTerminatorIsToldToo) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"\"\n! 2,\"B\",30,40,\"\";\n"), "");
    EXPECT_EQ(Point(1).North, 20);
    EXPECT_EQ(Lost(),
              (Told{"1 rij zonder afsluitteken (op regel 9)", "1 regel in een tabel die geen rij is (op regel 10)"}));
}

TEST_F(IdexRowProblems, ACommentBehindAPointWithoutItsTerminatorIsToldToo) {
    ASSERT_EQ(ReadPoints("1,\"A\",10,20,\"\"\n-- comment\n# one\n/* two */\n"), "");
    EXPECT_EQ(Lost(), (Told{"1 rij zonder afsluitteken (op regel 9)",
                            "3 regels in een tabel die geen rij zijn (de eerste op regel 10)"}));
}

TEST_F(IdexRowProblems, ASignThatSeparatesOrEndsBeginsNoComment) {
    ASSERT_EQ(Read("HEADER\nSEPARATOR '#'\nTERMINATOR '!'\nEND HEADER\nLAYERS (LayerNo#Name)\nEND\nDATABASE\n"
                   "LINES (Code#LineNo#Flags1)\n#1#1!\n!2\nEND\nEND DATABASE\n"),
              "");
    EXPECT_EQ(Lost(), (Told{"1 rij met tekens achter het afsluitteken, die niet zijn gelezen (op regel 10)",
                            "1 lijnstring met nummer 0, dat geen nummer is (op regel 10)"}));
}

TEST_F(IdexRowProblems, ATextBoxOfATerminatorOnlyIsToldAndIsBoxZero) {
    EXPECT_EQ(ReadTables("TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n;\nEND\n"
                         "ITEMS (TextItemNo,TextBoxNo,TextPropertyNo,LineNo,TextItem)\nEND\nEND TEXT\n"),
              "");
    EXPECT_EQ(Lost().front(), "1 rij met een ander aantal velden dan de tabel kolommen heeft (op regel 10)");
}

TEST_F(IdexRowProblems, RowsOfLayersAreToldToo) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\"\nEND\nDATABASE\nEND DATABASE\n"), "");
    EXPECT_EQ(Lost(), Told{"1 rij zonder afsluitteken (op regel 4)"});
}

}  // namespace

}  // namespace korvande::testing
