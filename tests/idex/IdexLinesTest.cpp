#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexLines : public IdexTest {
 protected:
    std::string ReadLines(std::string_view rows) {
        return ReadTables("LINES (LineNo,Code,Description,Flags1,Flags2)\n" + std::string(rows) + "END LINES\n");
    }

    // The first flag word that a row with this field gives.
    std::int32_t FlagsOf(std::string_view field) {
        EXPECT_EQ(ReadLines("1,\"A\",\"\"," + std::string(field) + ";\n"), "");
        return Line(1).Flags1;
    }
};

TEST_F(IdexLines, ARowGivesEveryFieldOfALineString) {
    ASSERT_EQ(ReadLines("  1,\"kant\",\"Kant \"\"verharding\"\"\",00000000 00000101,00000001;\n"), "");
    ASSERT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "KANT");
    EXPECT_EQ(Shown(drawing.Description(Line(1))), "KANT ''VERHARDING''");
    EXPECT_EQ(Line(1).Flags1, 5);
    EXPECT_EQ(Line(1).Flags2, 1);
}

TEST_F(IdexLines, ATabBetweenDigitsOfAFlagWordIsABlank) {
    ASSERT_EQ(ReadLines("1,\"A\",\"\",00000000\t00000101,00000001;\n"), "");
    EXPECT_EQ(Line(1).Flags1, 5);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexLines, GapsInTheNumbersAreBlankLines) {
    ASSERT_EQ(ReadLines("1,\"A\";\n2,\"B\";\n5,\"E\";\n"), "");
    ASSERT_EQ(drawing.Lines.UpperBound(), 5);
    for (const int number : {3, 4}) {
        EXPECT_EQ(drawing.Code(Line(number)), MakeFixedText<7>(u"")) << number;
        EXPECT_EQ(drawing.Description(Line(number)), MakeFixedText<53>(u"")) << number;
        EXPECT_EQ(Line(number).Flags1, 0) << number;
        EXPECT_EQ(Line(number).Flags2, 0) << number;
    }
    EXPECT_EQ(Shown(drawing.Code(Line(5))), "E");
}

TEST_F(IdexLines, NumbersComeInAnyOrderAndTheLastRowOfANumberCounts) {
    ASSERT_EQ(ReadLines("3,\"C\",\"OUD\",1,1;\n1,\"A\";\n3,\"D\";\n"), "");
    ASSERT_EQ(drawing.Lines.UpperBound(), 3);
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Shown(drawing.Code(Line(3))), "D");
    EXPECT_TRUE(drawing.Description(Line(3)).IsBlank());
    EXPECT_EQ(Line(3).Flags1, 0);
}

TEST_F(IdexLines, ARowWithoutANumberOrWithNumberZeroIsNoLine) {
    ASSERT_EQ(ReadLines(",\"A\";\n0,\"B\";\nX,\"C\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 0);
    EXPECT_EQ(Shown(drawing.Code(Line(0))), "C");
}

TEST_F(IdexLines, TextsAreCutToTheirWidth) {
    ASSERT_EQ(ReadLines("1,\"12345678\",\"" + std::string(60, 'x') + "\";\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "1234567");
    EXPECT_EQ(Shown(drawing.Description(Line(1))), std::string(53, 'X'));
}

TEST_F(IdexLines, AFlagWordIsBinary) {
    EXPECT_EQ(FlagsOf("00000101"), 5);
    EXPECT_EQ(FlagsOf("1 0"), 2);
    EXPECT_EQ(FlagsOf(""), 0);
    EXPECT_EQ(FlagsOf("2101"), 5);
    EXPECT_EQ(FlagsOf("00000001 00000000"), 256);
}

TEST_F(IdexLines, RowsAreNotJoined) {
    ASSERT_EQ(ReadLines("1,\"A\",\n2,\"B\"\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Shown(drawing.Code(Line(2))), "B");
}

TEST_F(IdexLines, ANumberOfAMillionIsAlwaysAllowed) {
    ASSERT_EQ(ReadLines("1000000,\"A\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1'000'000);
    EXPECT_EQ(drawing.Code(Line(999'999)), MakeFixedText<7>(u""));
}

TEST_F(IdexLines, AHigherNumberThanTheRowsAccountForIsAnIndexOutOfRange) {
    EXPECT_EQ(ReadLines("1,\"A\";\n1000001,\"B\";\n"), ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(ReadLines("1,\"A\";\n2000000000,\"B\";\n"), ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(ReadLines("1,\"A\";\n9999999999,\"B\";\n"), ErrorAt(errors::overflow, 3));
}

TEST_F(IdexLines, ANegativeNumberIsAnIndexOutOfRange) {
    EXPECT_EQ(ReadLines("1,\"A\";\n-1,\"B\";\n2,\"C\";\n"), ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
}

TEST_F(IdexLines, TenTimesTheRowsReadSoFarIsAllowedOverAllTables) {
    std::string rows;
    for (int i = 1; i <= 100'000; ++i) rows += "1,\"A\";\n";
    // The row itself counts: 100001 rows allow 1000010.
    ASSERT_EQ(ReadLines(rows + "1000010,\"B\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1'000'010);
    EXPECT_EQ(ReadLines(rows + "1000011,\"B\";\n"), ErrorAt(errors::subscriptOutOfRange, 100'002));
    EXPECT_EQ(ReadTables("LINES (LineNo)\n" + rows + "END\nLINES (LineNo)\n1000010;\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1'000'010);
}

TEST_F(IdexLines, ASecondTableAddsToTheFirst) {
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\n1,\"A\";\nEND\nLINES (Code,LineNo)\n\"B\",2;\nEND\n"), "");
    EXPECT_EQ(Shown(drawing.Code(Line(1))), "A");
    EXPECT_EQ(Shown(drawing.Code(Line(2))), "B");
}

TEST_F(IdexLines, ATableWithoutItsEndIsAnErrorAndKeepsItsRows) {
    EXPECT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nLINES (LineNo)\n1;\n2;\n"), "error 62 in line 8");
    EXPECT_EQ(drawing.Lines.UpperBound(), 2);
}

class IdexPolygons : public IdexTest {};

TEST_F(IdexPolygons, AreReadOverAndAccountedFor) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo,Code,Description)\n1,\"A\",\"B\";\n-5,\"C\";\nEND POLYGONS\n"
                         "LINES (LineNo)\n1;\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    const KindAccount& account = translation.account[ObjectKind::Polygon];
    EXPECT_EQ(account.read, 2);
    EXPECT_EQ(account.leftOut[static_cast<std::size_t>(LeftOut::NotTranslated)], 2);
    EXPECT_TRUE(account.Balances());
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen IDEX", "Inlezen Veelhoeken", "Inlezen Lijnstrings"}));
}

TEST_F(IdexPolygons, EndAtTheEndOfTheEdgesInsideThem) {
    ASSERT_EQ(ReadTables("POLYGONS (LineNo,Code)\n1,\"A\";\nEDGES (LineNo,StartPt,EndPt)\n1,-2,X;\nEND EDGES\n"
                         "2,\"B\";\nEND POLYGONS\nLINES (LineNo)\n1;\nEND LINES\n"),
              "");
    EXPECT_EQ(drawing.Edges.UpperBound(), 0);
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(translation.account[ObjectKind::Polygon].read, 2);
    EXPECT_TRUE(translation.account.Balances());
}

TEST_F(IdexPolygons, WithoutTheirEndAreAnErrorAlsoInsideTheirEdges) {
    constexpr std::string_view before = "HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOLYGONS (LineNo)\n1;\n";
    EXPECT_EQ(Read(before), "error 62 in line 7");
    EXPECT_EQ(Read(std::string(before) + "EDGES (LineNo)\n1;\n"), "error 62 in line 9");
}

}  // namespace

}  // namespace korvande::testing
