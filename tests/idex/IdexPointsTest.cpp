#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexPoints : public IdexTest {
 protected:
    // Reads a POINTS table of these rows.
    std::string ReadPoints(std::string_view rows,
                           std::string_view columns = "PointNo,PointID,East,North,Elevation,Code,Description,SymDir") {
        std::string tables = "POINTS (";
        tables.append(columns).append(")\n").append(rows);
        return ReadTables(tables + "END POINTS\n");
    }

    // The description that a row with this field gives.
    std::string DescriptionOf(std::string_view field) {
        EXPECT_EQ(ReadPoints("1," + std::string(field) + ",\"CODE\";\n", "PointNo,Description,Code"), "");
        EXPECT_EQ(Shown(drawing.Code(Point(1))), "CODE") << field;
        return Shown(drawing.Description(Point(1)));
    }

    // The easting that a row with this field gives.
    double EastOf(std::string_view field) {
        EXPECT_EQ(ReadPoints("1," + std::string(field) + ";\n", "PointNo,East"), "");
        return Point(1).East;
    }
};

TEST_F(IdexPoints, ARowGivesEveryFieldOfAPoint) {
    ASSERT_EQ(ReadPoints("  12,\"a1\",155000.1234,-463000.5,  1.25,\"boom\",\"Eik\",50.5000 ;\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).PointNo, 12);
    EXPECT_EQ(Shown(Point(1).PointID()), "A1");
    EXPECT_EQ(Point(1).East, 155000.1234);
    EXPECT_EQ(Point(1).North, -463000.5);
    EXPECT_EQ(Point(1).Elevation, 1.25);
    EXPECT_EQ(Shown(drawing.Code(Point(1))), "BOOM");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "EIK");
    EXPECT_EQ(Point(1).SymDir, 50.5);
    EXPECT_EQ(drawing.PointIndex[12], 1);
}

TEST_F(IdexPoints, WithoutANumberColumnTheyAreNumberedInRowOrder) {
    ASSERT_EQ(ReadPoints("\"A\";\n\"B\";\n\"C\";\n", "PointID"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 3);
    for (const int index : {1, 2, 3}) {
        EXPECT_EQ(Point(index).PointNo, index);
        EXPECT_EQ(drawing.PointIndex[index], index);
    }
}

TEST_F(IdexPoints, AnEmptyNumberIsThePlaceInTheTable) {
    ASSERT_EQ(ReadPoints("10,\"A\";\n,\"B\";\n\"\",\"C\";\n", "PointNo,PointID"), "");
    EXPECT_EQ(Point(1).PointNo, 10);
    EXPECT_EQ(Point(2).PointNo, 2);
    EXPECT_EQ(Point(3).PointNo, 0);  // quotes are something that reads as 0
}

TEST_F(IdexPoints, ANumberIsRoundedHalvesToEven) {
    ASSERT_EQ(ReadPoints("2.5,1;\n3.5,1;\n7.4X,1;\n1E2,1;\n", "PointNo,East"), "");
    EXPECT_EQ(Point(1).PointNo, 2);
    EXPECT_EQ(Point(2).PointNo, 4);
    EXPECT_EQ(Point(3).PointNo, 7);
    EXPECT_EQ(Point(4).PointNo, 100);
}

TEST_F(IdexPoints, NumberZeroIsANumberLikeAnyOther) {
    ASSERT_EQ(ReadPoints("5,1;\n0,2;\n", "PointNo,East"), "");
    EXPECT_EQ(Point(2).PointNo, 0);
    EXPECT_EQ(drawing.PointIndex[0], 2);
}

TEST_F(IdexPoints, ALowerNumberLaterLeavesTheIndexAtItsSize) {
    ASSERT_EQ(ReadPoints("900,1;\n12,2;\n", "PointNo,East"), "");
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 900);
    EXPECT_EQ(drawing.PointIndex[900], 1);
    EXPECT_EQ(drawing.PointIndex[12], 2);
    EXPECT_EQ(drawing.PointIndex[13], 0);
}

TEST_F(IdexPoints, OfTwoWithTheSameNumberTheIndexNamesTheLast) {
    ASSERT_EQ(ReadPoints("5,1;\n5,2;\n", "PointNo,East"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(drawing.PointIndex[5], 2);
}

TEST_F(IdexPoints, ANumberOfTwoThousandMillionIsAccepted) {
    ASSERT_EQ(ReadPoints("2000000000,1;\n2147483647,2;\n", "PointNo,East"), "");
    EXPECT_EQ(drawing.PointIndex[2'000'000'000], 1);
    EXPECT_EQ(drawing.PointIndex[2'147'483'647], 2);
}

TEST_F(IdexPoints, ANumberBeyond32BitsOverflows) {
    EXPECT_EQ(ReadPoints("1,1;\n2147483648,2;\n3,3;\n", "PointNo,East"), ErrorAt(errors::overflow, 3));
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
}

TEST_F(IdexPoints, ANegativeNumberIsAnIndexOutOfRange) {
    EXPECT_EQ(ReadPoints("1,1;\n-2,2;\n3,3;\n", "PointNo,East"), ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 1);
}

TEST_F(IdexPoints, ARowThatFailsStoresNothing) {
    EXPECT_EQ(ReadPoints("1,1;\n2,1E400;\n", "PointNo,East"), ErrorAt(errors::overflow, 3));
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 1);
    EXPECT_EQ(ReadPoints("1,\"A\",1,1,1,\"C\",\"D\",-1D999;\n"), ErrorAt(errors::overflow, 2));
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
}

TEST_F(IdexPoints, NumbersHaveADecimalPointWhateverTheLocale) {
    EXPECT_EQ(EastOf("1234.5"), 1234.5);
    EXPECT_EQ(EastOf("-.5"), -0.5);
    EXPECT_EQ(EastOf("+7."), 7);
    EXPECT_EQ(EastOf("1.5e3"), 1500);
    EXPECT_EQ(EastOf("1.5d+3"), 1500);
    EXPECT_EQ(EastOf("1.5E"), 1.5);
    EXPECT_EQ(EastOf("12 34"), 12);
    EXPECT_EQ(EastOf("1.2.3"), 1.2);
}

TEST_F(IdexPoints, WhatIsNoNumberReadsAsZero) {
    EXPECT_EQ(EastOf(""), 0);
    EXPECT_EQ(EastOf("X12"), 0);
    EXPECT_EQ(EastOf("\"12\""), 0);
    EXPECT_EQ(EastOf("1E-400"), 0);
}

TEST_F(IdexPoints, TextsAreCutToTheirWidth) {
    const std::string description(90, 'd');
    ASSERT_EQ(
        ReadPoints("1,\"1234567890\",\"12345678\",\"" + description + "\";\n", "PointNo,PointID,Code,Description"), "");
    EXPECT_EQ(Shown(Point(1).PointID()), "123456789");
    EXPECT_EQ(Shown(drawing.Code(Point(1))), "1234567");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), std::string(80, 'D'));
}

TEST_F(IdexPoints, TextsArePutIntoCapitalsByWindows1252) {
    // é, œ, ÿ and ß, and the euro sign.
    EXPECT_EQ(DescriptionOf("\"caf\xE9 \x9C \xFF \xDF \x80\""), "CAFÉ Œ Ÿ ß €");
}

TEST_F(IdexPoints, ASeparatorBetweenQuotesIsNoSeparator) {
    EXPECT_EQ(DescriptionOf("\"A,B\""), "A,B");
    EXPECT_EQ(DescriptionOf("\"A\"\",\"\"B\""), "A'',''B");
}

TEST_F(IdexPoints, BlanksInsideTheQuotesStay) {
    EXPECT_EQ(DescriptionOf("  \"  A  \"  "), "  A");
    EXPECT_EQ(DescriptionOf("  A B  "), "A B");
}

TEST_F(IdexPoints, AnEscapedQuoteInADescriptionBecomesASingleQuote) {
    EXPECT_EQ(DescriptionOf("\"12\\\" PIJP, ROND\""), "12' PIJP, ROND");
    EXPECT_EQ(DescriptionOf("\"\\\"A\\\"\""), "'A'");
}

TEST_F(IdexPoints, ALoneQuoteIsTakenAway) {
    ASSERT_EQ(ReadPoints("1,\",2;\n", "PointNo,Description,East"), "");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "");
    EXPECT_EQ(Point(1).East, 2);
    EXPECT_EQ(DescriptionOf("A\"B"), "A'B");
    EXPECT_EQ(DescriptionOf("\"AB\" C"), "AB' C");
}

TEST_F(IdexPoints, WhatStandsForAnEscapedQuoteIsOneAlsoWhenTheFileHoldsIt) {
    EXPECT_EQ(DescriptionOf("\"A\\@\\B\""), "A'B");
    EXPECT_EQ(DescriptionOf("\\@\\A"), "A");
}

TEST_F(IdexPoints, OnlyInTheDescriptionAnEscapedQuoteComesBack) {
    ASSERT_EQ(ReadPoints("1,\"A\\\"B\",\"C\\\"D\",\"E\\\"F\";\n", "PointNo,PointID,Code,Description"), "");
    EXPECT_EQ(Shown(Point(1).PointID()), "A\\@\\B");
    EXPECT_EQ(Shown(drawing.Code(Point(1))), "C\\@\\D");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "E'F");
}

TEST_F(IdexPoints, WhatStandsBehindTheTerminatorIsLeftOut) {
    ASSERT_EQ(ReadPoints("1,5;6,7\n2,\"8;9\n", "PointNo,East"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(1).East, 5);
    EXPECT_EQ(Point(2).East, 0);
}

TEST_F(IdexPoints, ARowWithoutTerminatorGoesOnInTheNextLine) {
    ASSERT_EQ(ReadPoints("1,\"a\",\n  10.5,20.5,,\"code\",\"des\\\"cr\",30;\n2,\"b\",11;\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Shown(Point(1).PointID()), "A");
    EXPECT_EQ(Point(1).East, 10.5);
    EXPECT_EQ(Shown(drawing.Code(Point(1))), "CODE");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "DES'CR");
    EXPECT_EQ(Point(1).SymDir, 30);
    EXPECT_EQ(Point(2).East, 11);
}

TEST_F(IdexPoints, EmptyLinesDoNotComeBetweenTheTwoHalvesOfARow) {
    ASSERT_EQ(ReadPoints("1,\n\n \t\n5;\n2,6;\n", "PointNo,East"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(1).East, 5);
    EXPECT_EQ(Point(2).East, 6);
}

TEST_F(IdexPoints, ARowIsJoinedWithOneLineOnly) {
    ASSERT_EQ(ReadPoints("1,\n5,\n2,7;\n", "PointNo,East,North"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(1).East, 5);
    EXPECT_EQ(Point(1).North, 0);
    EXPECT_EQ(Point(2).PointNo, 2);
    EXPECT_EQ(Point(2).East, 7);
}

TEST_F(IdexPoints, ARowIsNotJoinedWithTheEndOfTheTable) {
    ASSERT_EQ(ReadPoints("1,5\n\n", "PointNo,East"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Point(1).East, 5);
    EXPECT_EQ(ReadPoints("-1,5\n\n", "PointNo,East"), ErrorAt(errors::subscriptOutOfRange, 4));
    // The table ends there all the same.
    ASSERT_EQ(ReadTables("POINTS (PointNo)\n1\nEND\nLINES (LineNo)\n1;\nEND\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
}

TEST_F(IdexPoints, ASecondTableBeginsAgainAtTheFirstPoint) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East)\n10,1;\n20,2;\n30,3;\nEND\n"
                         "POINTS (PointNo,East)\n40,4;\n50,5;\nEND\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 3);
    EXPECT_EQ(Point(1).PointNo, 40);
    EXPECT_EQ(Point(1).East, 4);
    EXPECT_EQ(Point(2).PointNo, 50);
    EXPECT_EQ(Point(3).PointNo, 30);
    EXPECT_EQ(drawing.PointIndex[40], 1);
    EXPECT_EQ(drawing.PointIndex[50], 2);
    EXPECT_EQ(drawing.PointIndex[10], 1);
}

TEST_F(IdexPoints, ATableWithoutItsEndIsAnErrorAndKeepsItsRows) {
    EXPECT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOINTS (PointNo)\n7;\n8;\n"), "error 62 in line 8");
    EXPECT_EQ(drawing.Points.UpperBound(), 2);
    // Half a row at the end of the file is none.
    EXPECT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOINTS (PointNo)\n7;\n8"), "error 62 in line 8");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
}

TEST_F(IdexPoints, TheStatusTellsOfTheStep) {
    ASSERT_EQ(ReadPoints("1,5;\n"), "");
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen IDEX", "Inlezen Punten"}));
}

}  // namespace

}  // namespace korvande::testing
