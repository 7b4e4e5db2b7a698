#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexTexts : public IdexTest {
 protected:
    // Reads a TEXT table of these boxes and items.
    std::string ReadTexts(std::string_view boxes, std::string_view items) {
        std::string tables =
            "TEXT\nPROPERTIES (TextPropertyNo)\n1;\nEND PROPERTIES\nBOXES\n"
            "BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n";
        tables.append(boxes).append("END BOX_ON_POINT\nEND BOXES\n");
        tables.append("ITEMS (TextItemNo,TextBoxNo,TextPropertyNo,LineNo,TextItem)\n").append(items);
        return ReadTables(tables + "END ITEMS\nEND TEXT\n");
    }
    static constexpr int firstBox = 7;

    // The first line of the items behind a single box.
    static constexpr int firstItem = 11;
    static constexpr std::string_view aBox = "1,10,3,1,25.5;\n";
};

TEST_F(IdexTexts, AnItemOnItsBoxGivesEveryFieldOfAText) {
    ASSERT_EQ(ReadTexts("  1, 10 , 3 , 1,  25.5 ;\n", "  1, 1 , 1, 1,\"Kerkstraat\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(TextAt(1).AnchorPointNo, 10);
    EXPECT_EQ(TextAt(1).AnchorPosition, 3);
    EXPECT_EQ(TextAt(1).HzDirection, 25.5F);
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "TEKSTEN");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Kerkstraat");
}

TEST_F(IdexTexts, ItsTextIsNotPutIntoCapitals) {
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"Caf\xE9 \"\"Zon\"\", no. 5\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Café ''Zon'', no. 5");
}

TEST_F(IdexTexts, ItsCodeIsTheNameOfItsLayerCutToSevenCharacters) {
    ASSERT_EQ(
        Read("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n3,\"straatnamen\";\n5,\"\xFFZ01\";\nEND\nDATABASE\nTEXT\n"
             "BOX_ON_POINT (BoxNo,LayerNo)\n1,3;\n2,4;\n3,0;\n4,5;\nEND\n"
             "ITEMS (TextBoxNo,LineNo,TextItem)\n1,1,A;\n2,1,B;\n3,1,C;\n4,1,D;\nEND\n"),
        "");
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "STRAATN");
    EXPECT_EQ(drawing.Code(TextAt(2)), MakeFixedText<7>(u""));
    EXPECT_EQ(drawing.Code(TextAt(3)), MakeFixedText<7>(u""));
    // The mark of a generated text is no capital, so no file can bring it.
    EXPECT_EQ(Shown(drawing.Code(TextAt(4))), "ŸZ01");
}

TEST_F(IdexTexts, ThreeItemsAreOneTextJoinedBySingleBlanks) {
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"Dorp  \";\n2,1,1,2,\"aan\";\n3,1,1,3,\"Zee\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Dorp aan Zee");
}

TEST_F(IdexTexts, AFurtherItemLosesTheBlanksInFrontOfTheTextBeforeIt) {
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"  Dorp\";\n2,1,1,2,\"  Zee\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Dorp   Zee");
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"  Dorp\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "  Dorp");
}

TEST_F(IdexTexts, ATextIsCutAt47Characters) {
    const std::string item(30, 'x');
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"" + item + item + "\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), std::string(47, 'x'));
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"" + item + "\";\n2,1,1,2,\"y" + item + "\";\n3,1,1,3,\"z\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), item + " y" + std::string(15, 'x'));
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"" + item + "\";\n2,1,1,2,\"" + item + item + "\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), item + " " + std::string(16, 'x'));
}

TEST_F(IdexTexts, AnEmptyFurtherItemAddsNothing) {
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,1,\"A\";\n2,1,1,2,;\n3,1,1,3,\"B\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "A B");
}

TEST_F(IdexTexts, TheLineNumberIsComparedAsANumber) {
    ASSERT_EQ(ReadTexts(aBox, "1,1,1, 1.0 ,\"A\";\n2,1,1,01,\"B\";\n3,1,1,1E0,\"C\";\n4,1,1,1.4,\"D\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 3);
    EXPECT_EQ(Shown(TextAt(3).Characters()), "C D");
}

TEST_F(IdexTexts, AFurtherItemGoesToTheLastTextWhateverItsBox) {
    ASSERT_EQ(ReadTexts("1,10;\n2,20;\n", "1,1,1,1,\"A\";\n2,2,1,1,\"B\";\n3,1,1,2,\"C\";\n4,99,1,2,\"D\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "A");
    EXPECT_EQ(Shown(TextAt(2).Characters()), "B C D");
}

TEST_F(IdexTexts, AFurtherItemBeforeAnyTextIsLeftOutAndLogged) {
    OpenLog();
    ASSERT_EQ(ReadTexts(aBox, "1,1,1,2,\"B\";\n2,1,1,1,\"A\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "A");
    EXPECT_EQ(LogText(), "FOUT:  Tekstregel zonder tekst (regel 18)\n");
    EXPECT_EQ(firstLineOfTables + firstItem - 1, 18);
}

TEST_F(IdexTexts, TheNumberOfABoxIsTheFirstFieldWhateverItsColumnIsCalled) {
    ASSERT_EQ(ReadTables("TEXT\nBOX_ON_POINT (AnchorPointNo,LayerNo)\n10,1;\nEND\n"
                         "ITEMS (TextBoxNo,LineNo,TextItem)\n10,1,\"A\";\nEND\n"),
              "");
    EXPECT_EQ(TextAt(1).AnchorPointNo, 10);
}

TEST_F(IdexTexts, ABoxMayHoldSeveralTextsAndBeDeclaredAgain) {
    ASSERT_EQ(ReadTexts("0,10;\n7,20;\n7,30;\n", "1,7,1,1,\"A\";\n2,0,1,1,\"B\";\n3,7,1,1,\"C\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 3);
    EXPECT_EQ(TextAt(1).AnchorPointNo, 30);
    EXPECT_EQ(TextAt(2).AnchorPointNo, 10);
    EXPECT_EQ(TextAt(3).AnchorPointNo, 30);
}

TEST_F(IdexTexts, AnItemForABoxNeverDeclaredIsAnError) {
    // 3 lies above the highest box, 1 below it.
    EXPECT_EQ(ReadTexts("0,10;\n2,20;\n", "1,2,1,1,\"A\";\n2,3,1,1,\"B\";\n3,2,1,1,\"C\";\n"),
              ErrorAt(errors::subscriptOutOfRange, firstItem + 2));
    EXPECT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(ReadTexts("0,10;\n2,20;\n", "1,1,1,1,\"A\";\n"), ErrorAt(errors::subscriptOutOfRange, firstItem + 1));
    EXPECT_EQ(ReadTexts(aBox, "1,-1,1,1,\"A\";\n"), ErrorAt(errors::subscriptOutOfRange, firstItem));
    EXPECT_EQ(drawing.Texts.UpperBound(), 0);
}

TEST_F(IdexTexts, ABoxNumberReachesToAMillion) {
    ASSERT_EQ(ReadTexts("1000000,10;\n", "1,1000000,1,1,\"A\";\n"), "");
    EXPECT_EQ(TextAt(1).AnchorPointNo, 10);
    EXPECT_EQ(ReadTexts("1,10;\n1000001,10;\n", ""), ErrorAt(errors::subscriptOutOfRange, firstBox + 1));
    EXPECT_EQ(ReadTexts("-1,10;\n", ""), ErrorAt(errors::subscriptOutOfRange, firstBox));
}

TEST_F(IdexTexts, ABoxNumberAboveAMillionMayBeTenTimesTheRowsReadSoFar) {
    std::string rows;
    for (int i = 1; i <= 100'000; ++i) rows += "1,10;\n";
    // The row itself counts: 100001 rows allow 1000010.
    ASSERT_EQ(ReadTexts(rows + "1000010,20;\n", "1,1000010,1,1,\"A\";\n"), "");
    EXPECT_EQ(TextAt(1).AnchorPointNo, 20);
    EXPECT_EQ(ReadTexts(rows + "1000011,20;\n", ""), ErrorAt(errors::subscriptOutOfRange, firstBox + 100'000));
}

TEST_F(IdexTexts, ALayerThatIsNotInTheTableIsAnErrorAboveItOnly) {
    EXPECT_EQ(ReadTexts("1,10,3,2,0;\n", ""), ErrorAt(errors::subscriptOutOfRange, firstBox));
    EXPECT_EQ(ReadTexts("1,10,3,-1,0;\n", ""), ErrorAt(errors::subscriptOutOfRange, firstBox));
    EXPECT_EQ(ReadTexts("1,10,3,,0;\n", "1,1,1,1,\"A\";\n"), "");
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "STNDRD");
}

TEST_F(IdexTexts, ABoxWithANumberThatDoesNotFitOverflows) {
    EXPECT_EQ(ReadTexts("1,3000000000;\n", ""), ErrorAt(errors::overflow, firstBox));
    EXPECT_EQ(ReadTexts("1,1,40000;\n", ""), ErrorAt(errors::overflow, firstBox));
    EXPECT_EQ(ReadTexts("1,1,1,1,1E39;\n", ""), ErrorAt(errors::overflow, firstBox));
    EXPECT_EQ(ReadTexts("1,1,1,1,-1E39;\n", ""), ErrorAt(errors::overflow, firstBox));
}

TEST_F(IdexTexts, ATableWithoutBoxesOrItemsIsAnError) {
    constexpr std::string_view before = "HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nTEXT\n";
    EXPECT_EQ(Read(before), "error 62 in line 6");
    EXPECT_EQ(Read(std::string(before) + "BOX_ON_POINT (TextBoxNo)\n1;\nEND\nEND TEXT\n"), "error 62 in line 10");
    EXPECT_EQ(Read(std::string(before) + "BOX_ON_POINT (TextBoxNo)\n1;\n"), "error 62 in line 8");
    EXPECT_EQ(Read(std::string(before) + "BOX_ON_POINT (TextBoxNo)\n1;\nEND\nITEMS (TextBoxNo,LineNo)\n1,1;\n"),
              "error 62 in line 11");
    EXPECT_EQ(drawing.Texts.UpperBound(), 1);
}

TEST_F(IdexTexts, ASecondTableAddsItsTexts) {
    constexpr std::string_view table =
        "text\n box_on_point(X,AnchorPointNo)\n1,10;\nend\n items(TextBoxNo,LineNo,TextItem)\n1,1,a;\nend\nend text\n";
    ASSERT_EQ(ReadTables(std::string(table).append(table)), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 2);
    EXPECT_EQ(Shown(TextAt(2).Characters()), "a");
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen IDEX", "Inlezen Teksten", "Inlezen Teksten"}));
}

}  // namespace

}  // namespace korvande::testing
