#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

using IdexTable = IdexTest;

TEST_F(IdexTable, ColumnsComeInAnyOrderAndExtraOnesArePassedOver) {
    ASSERT_EQ(ReadTables("POINTS (North,Colour,East,PointNo,Remark)\n"
                         "2.5,\"RED, BLUE\",1.5,7,\"x\";\n"
                         "END POINTS\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 7);
    EXPECT_EQ(Point(1).East, 1.5);
    EXPECT_EQ(Point(1).North, 2.5);
}

TEST_F(IdexTable, AMissingColumnReadsAsAnEmptyField) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East)\n7,1.5;\nEND POINTS\n"), "");
    EXPECT_TRUE(Point(1).PointID().IsBlank());
    EXPECT_TRUE(drawing.Code(Point(1)).IsBlank());
    EXPECT_TRUE(drawing.Description(Point(1)).IsBlank());
    EXPECT_EQ(Point(1).North, 0);
    EXPECT_EQ(Point(1).Elevation, 0);
}

TEST_F(IdexTable, ARowMayHaveFewerFieldsThanColumns) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,North,Code)\n7,1.5;\nEND POINTS\n"), "");
    EXPECT_EQ(Point(1).East, 1.5);
    EXPECT_EQ(Point(1).North, 0);
    EXPECT_TRUE(drawing.Code(Point(1)).IsBlank());
}

TEST_F(IdexTable, ARowMayHaveMoreFieldsThanColumns) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East)\n7,1.5,8,9,10;\nEND POINTS\n"), "");
    EXPECT_EQ(Point(1).East, 1.5);
}

TEST_F(IdexTable, OfAColumnNamedTwiceTheFirstCounts) {
    ASSERT_EQ(ReadTables("POINTS (East,PointNo,East)\n1,7,2;\nEND POINTS\n"), "");
    EXPECT_EQ(Point(1).East, 1);
}

TEST_F(IdexTable, AColumnNameMustBeEqualNotJustBegin) {
    ASSERT_EQ(ReadTables("POINTS (PointNoX,EastX,PointNo,Eas,East)\n1,2,3,4,5;\nEND POINTS\n"), "");
    EXPECT_EQ(Point(1).PointNo, 3);
    EXPECT_EQ(Point(1).East, 5);
}

TEST_F(IdexTable, ColumnNamesAreTakenInAnyCaseWithoutTheBlanksAndTabsAroundThem) {
    ASSERT_EQ(ReadTables("points ( pointno ,\teast\t, NORTH )\n7,1,2;\nend points\n"), "");
    EXPECT_EQ(Point(1).PointNo, 7);
    EXPECT_EQ(Point(1).East, 1);
    EXPECT_EQ(Point(1).North, 2);
}

TEST_F(IdexTable, AHeaderMayGoOnOverSeveralLines) {
    ASSERT_EQ(ReadTables("POINTS\n"
                         "  (PointNo,\n"
                         "\n"
                         "   East, Nor\n"
                         "th)\n"
                         "7,1,2;\n"
                         "END POINTS\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 7);
    EXPECT_EQ(Point(1).East, 1);
    EXPECT_EQ(Point(1).North, 2);
}

TEST_F(IdexTable, AHeaderThatNeverClosesItsListRunsPastTheEndOfTheFile) {
    EXPECT_EQ(ReadTables("POINTS (PointNo,East\n7,1;\nEND POINTS\n"), ErrorAt(errors::inputPastEnd, 4));
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
}

TEST_F(IdexTable, AListThatNeverOpensHasNoColumns) {
    ASSERT_EQ(ReadTables("POINTS PointNo,East)\n7,1;\nEND POINTS\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 1);
    EXPECT_EQ(Point(1).East, 0);
}

TEST_F(IdexTable, AListThatClosesBeforeItOpensHasNoColumns) {
    ASSERT_EQ(ReadTables("POINTS )(PointNo,East\n7,1;\nEND POINTS\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 1);
    EXPECT_EQ(Point(1).East, 0);
}

TEST_F(IdexTable, TheKeywordMayStandDirectlyBeforeTheList) {
    ASSERT_EQ(ReadTables("\tPOINTS(PointNo,East)\n\t7,1;\n\tEND POINTS\n"
                         "\tLINES(LineNo,Code)\n\t1,\"A\";\n\tEDGES(LineNo,StartPt,EndPt)\n\t1,7,7;\n\tEND\n\tEND\n"
                         "\tPOLYGONS(LineNo)\n\t1;\n\tEND\n"
                         "\tTEXT(X)\n\tBOX_ON_POINT(TextBoxNo,AnchorPointNo)\n\t1,7;\n\tEND\n"
                         "\tITEMS(TextBoxNo,LineNo,TextItem)\n\t1,1,\"T\";\n\tEND\n"),
              "");
    EXPECT_EQ(Point(1).PointNo, 7);
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(drawing.Edges.UpperBound(), 1);
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 1);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "T");
}

TEST_F(IdexTable, ATabCountsAsABlank) {
    ASSERT_EQ(ReadTables("POINTS\t(PointNo,PointID,East)\n\t 7\t,\t\"A B\"\t,\t1.5\t;\t\n \tEND\tPOINTS\n"), "");
    EXPECT_EQ(Point(1).PointNo, 7);
    EXPECT_EQ(Shown(Point(1).PointID()), "A B");
    EXPECT_EQ(Point(1).East, 1.5);
}

TEST_F(IdexTable, ItsKeywordMustBeTheWholeFirstWord) {
    ASSERT_EQ(ReadTables("POINTSET (PointNo)\n7;\nEND\nPOINTS (PointNo)\n8;\nEND\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 8);
}

TEST_F(IdexTable, OtherLinesBetweenTablesAreSkipped) {
    ASSERT_EQ(ReadTables("REMARK (A,B)\n1,2;\nEND REMARK\n\nPOINTS (PointNo)\n7;\nEND POINTS\nEND POINTS\n"
                         "LINES (LineNo,Code)\n1,\"A\";\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
}

TEST_F(IdexTable, EveryLineThatStartsWithEndEndsIt) {
    for (const std::string_view end : {"END", "END POINTS", "end points", "\tEnd;", "ENDING"}) {
        ASSERT_EQ(ReadTables("POINTS (PointNo)\n7;\n" + std::string(end) + "\nEOF\n8;\n"), "") << end;
        EXPECT_EQ(drawing.Points.UpperBound(), 1) << end;
    }
}

TEST_F(IdexTable, BehindTheWordEofNoneIsRead) {
    ASSERT_EQ(ReadTables("POINTS (PointNo)\n7;\nEND POINTS\nEOF\nPOINTS (PointNo)\n8;\n9;\nEND POINTS\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
}

TEST_F(IdexTable, EmptyLinesInsideItAreNoRows) {
    ASSERT_EQ(ReadTables("POINTS (PointNo)\n\n7;\n   \n\t\n8;\n\nEND POINTS\n"
                         "LINES (LineNo,Code)\n\n1,\"A\";\n\nEDGES (LineNo,StartPt,EndPt)\n\n1,7,8;\n\nEND\n\nEND\n"),
              "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(drawing.Edges.UpperBound(), 1);
    EXPECT_TRUE(drawing.Code(drawing.Lines[0]).NeverFilled());
}

}  // namespace

}  // namespace korvande::testing
