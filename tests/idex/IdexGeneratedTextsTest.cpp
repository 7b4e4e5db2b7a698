#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexGeneratedTexts : public IdexTest {
 protected:
    static constexpr std::string_view points =
        "POINTS (PointNo,PointID,Elevation)\n"
        "10,\"a1\",0;\n"
        "20,\"\",-1.005;\n"
        "30,\"  \",12345.678;\n"
        "40,\"B2\",0.1;\n"
        "END POINTS\n";

    void AskForPointNumbers(TextView code = u"Z01") {
        translation.options.chkExportPointnoAsText = true;
        translation.options.txtPnoTxtLKI = code;
    }
    void AskForHeights(TextView code = u"Z02") {
        translation.options.chkExportHeightAsText = true;
        translation.options.txtEleTxtLKI = code;
    }

    // The text that a point of this height gives, at its full width up to the last digit; "" when there is none.
    std::string HeightTextOf(std::string_view elevation) {
        AskForHeights();
        EXPECT_EQ(ReadTables("POINTS (PointNo,Elevation)\n1," + std::string(elevation) + ";\nEND\n"), "");
        return drawing.Texts.UpperBound() == 0 ? std::string() : Shown(TextAt(1).Characters());
    }
};

TEST_F(IdexGeneratedTexts, AreNotMadeUnasked) {
    ASSERT_EQ(ReadTables(points), "");
    EXPECT_EQ(drawing.Texts.UpperBound(), 0);
}

TEST_F(IdexGeneratedTexts, EveryPointWithANameGivesAPointNumberText) {
    AskForPointNumbers();
    ASSERT_EQ(ReadTables(points), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 2);
    const TextRec& first = TextAt(1);
    EXPECT_EQ(first.AnchorPointNo, 10);
    EXPECT_EQ(first.AnchorPosition, 9);
    EXPECT_EQ(first.HzDirection, 0);
    EXPECT_EQ(Shown(drawing.Code(first)), "ÿZ01");
    EXPECT_EQ(Shown(first.Characters()), "A1");
    EXPECT_EQ(TextAt(2).AnchorPointNo, 40);
    EXPECT_EQ(Shown(TextAt(2).Characters()), "B2");
}

TEST_F(IdexGeneratedTexts, EveryPointWithAHeightGivesAHeightText) {
    AskForHeights();
    ASSERT_EQ(ReadTables(points), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 3);
    const TextRec& first = TextAt(1);
    EXPECT_EQ(first.AnchorPointNo, 20);
    EXPECT_EQ(first.AnchorPosition, 5);
    EXPECT_EQ(first.HzDirection, 50);
    EXPECT_EQ(Shown(drawing.Code(first)), "ÿZ02");
    EXPECT_EQ(Shown(first.Characters()), "  -1,01");
    EXPECT_EQ(TextAt(2).AnchorPointNo, 30);
    EXPECT_EQ(TextAt(3).AnchorPointNo, 40);
}

TEST_F(IdexGeneratedTexts, AHeightHasTwoDecimalsACommaAndSevenCharacters) {
    EXPECT_EQ(HeightTextOf("0.1"), "   0,10");
    EXPECT_EQ(HeightTextOf("12.345"), "  12,35");
    EXPECT_EQ(HeightTextOf("-12.3"), " -12,30");
    EXPECT_EQ(HeightTextOf("1234.5"), "1234,50");
    EXPECT_EQ(HeightTextOf("12345.678"), "2345,68");
    EXPECT_EQ(HeightTextOf("-1234.5"), "1234,50");
    EXPECT_EQ(HeightTextOf("0.001"), "   0,00");
    EXPECT_EQ(HeightTextOf("-0.001"), "   0,00");
    EXPECT_EQ(HeightTextOf("1E300"), "0000,00");
}

TEST_F(IdexGeneratedTexts, AHeightOfZeroIsNone) {
    EXPECT_EQ(HeightTextOf("0"), "");
    EXPECT_EQ(HeightTextOf("-0.000"), "");
    EXPECT_EQ(HeightTextOf(""), "");
}

TEST_F(IdexGeneratedTexts, TheirCodeIsCutToSevenCharacters) {
    AskForPointNumbers(u"1234567");
    AskForHeights(u"ABCDEFGH");
    ASSERT_EQ(ReadTables("POINTS (PointID,Elevation)\n\"A\",1;\nEND\n"), "");
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "ÿ123456");
    EXPECT_EQ(Shown(drawing.Code(TextAt(2))), "ÿABCDEF");
}

TEST_F(IdexGeneratedTexts, TheirCodeIsTheMarkAloneWhenNothingWasTyped) {
    AskForPointNumbers(u"");
    ASSERT_EQ(ReadTables("POINTS (PointID)\n\"A\";\nEND\n"), "");
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "ÿ");
}

TEST_F(IdexGeneratedTexts, PointNumbersComeBeforeHeights) {
    AskForHeights();
    AskForPointNumbers();
    ASSERT_EQ(ReadTables(points), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 5);
    EXPECT_EQ(TextAt(2).AnchorPosition, 9);
    EXPECT_EQ(TextAt(3).AnchorPosition, 5);
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen IDEX", "Inlezen Punten", "Toevoegen puntnr.teksten",
                                                         "Toevoegen hoogte teksten"}));
}

TEST_F(IdexGeneratedTexts, StandBehindTheTextsThatAreThere) {
    AskForPointNumbers();
    ASSERT_EQ(ReadTables("TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo)\n1,10;\nEND\n"
                         "ITEMS (TextBoxNo,LineNo,TextItem)\n1,1,\"Tekst\";\nEND\nEND TEXT\n" +
                         std::string(points)),
              "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 3);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Tekst");
    EXPECT_EQ(Shown(TextAt(2).Characters()), "A1");
}

TEST_F(IdexGeneratedTexts, ASecondTableOfPointsMakesThemAgain) {
    AskForPointNumbers();
    ASSERT_EQ(ReadTables("POINTS (PointID)\n\"A\";\n\"B\";\nEND\nPOINTS (PointID)\n\"C\";\nEND\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 4);
    EXPECT_EQ(Shown(TextAt(2).Characters()), "B");
    EXPECT_EQ(Shown(TextAt(3).Characters()), "C");
    EXPECT_EQ(Shown(TextAt(4).Characters()), "B");
}

TEST_F(IdexGeneratedTexts, AreMadeFromUpdatedPoints) {
    AskForPointNumbers();
    ASSERT_EQ(
        ReadTables("POINTS (PointNo,PointID)\n1,\"A\";\n2,\"B\";\nEXTRAINFO (PointNo,PointID)\n1,\"C\";\n2,;\nEND\n"),
        "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "C");
}

TEST_F(IdexGeneratedTexts, AreNotMadeFromATableThatEndsInAnError) {
    AskForPointNumbers();
    EXPECT_EQ(ReadTables("POINTS (PointNo,PointID)\n1,\"A\";\n-1,\"B\";\nEND\n"),
              ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.Texts.UpperBound(), 0);
}

}  // namespace

}  // namespace korvande::testing
