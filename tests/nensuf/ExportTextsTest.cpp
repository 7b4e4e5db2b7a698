#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportTexts : public ExportTest {
 protected:
    ExportTexts() { AddBarePoints(); }

    std::int64_t Left(LeftOut reason) {
        return translation.account[ObjectKind::TextObject].leftOut[static_cast<std::size_t>(reason)];
    }
    std::int64_t Written() { return translation.account[ObjectKind::TextObject].written; }

    // The 06 records.
    std::string ExportedTexts() {
        std::string texts;
        for (const std::string& line : SplitLines(ExportObjects())) {
            if (line.substr(0, 2) == "06") texts += line + "\n";
        }
        return texts;
    }

    // The texts that the reader makes from point data: the mark and the user's LKI code.
    static constexpr TextView generatedCode = u"\u00FFZ30";
};

TEST_F(ExportTexts, ATextIsAGroupOfThreeRecords) {
    AddText({.text = u"Dorpsstraat"});
    EXPECT_EQ(ExportObjects(), Records("03MZ01           01   BBRON  0  |00\n"
                                       "05F111      X    10000Y    20000X    11000Y    20000KZ01    |00\n"
                                       "06A11TDorpsstraat|01\n"));
}

TEST_F(ExportTexts, ATextsCodeFieldInSuf2BeginsWithQ) {
    AddText({.text = u"Dorpsstraat"});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MZ01           01   BBRON  0  |01\n"
                                             "05F111      X    10000Y    20000X    11000Y    20000QZ01    |01\n"
                                             "06A11TDorpsstraat|01\n"));
}

TEST_F(ExportTexts, TheLetterOfATextsCodeIsTheOppositeOfAPointsQuality) {
    AddRow(translation.codes.points, {u"PUNT", u"G02", types::point, u"Punt", 1, 1, 1});
    AddPoint({.code = u"PUNT"});
    AddText({.text = u"tekst"});
    for (const bool nen : {true, false}) {
        translation.mode.variant = nen ? Variant::Nen1878 : Variant::Suf2;
        const auto lines = SplitLines(ExportObjects());
        EXPECT_EQ(lines[1][32], nen ? 'Q' : 'K');
        EXPECT_EQ(lines[5][52], nen ? 'K' : 'Q');
    }
}

TEST_F(ExportTexts, TheCodeRecordOfATextKeepsItsColumns) {
    translation.options.lstSource = 2;
    translation.drawing.DrawingDate = u"01-02-2023";
    AddText({.text = u"a"});
    EXPECT_EQ(SplitLines(ExportObjects())[0] + "\n", Records("03MZ01           21   D 20230201BBRON  0  |00\n"));
}

TEST_F(ExportTexts, TheInsertionPositionLiesOneMetreInTheTextsDirection) {
    const std::vector<std::pair<float, std::string>> cases = {
        {0.0F, "X    11000Y    20000"},   {50.0F, "X    10707Y    20707"},  {100.0F, "X    10000Y    21000"},
        {200.0F, "X     9000Y    20000"}, {399.5F, "X    11000Y    19992"}, {-100.0F, "X    10000Y    19000"}};
    for (const auto& [direction, position] : cases) AddText({.text = u"a", .direction = direction});
    const auto lines = SplitLines(ExportObjects());
    ASSERT_EQ(lines.size(), 3 * cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(lines[3 * i + 1].substr(32, 20), cases[i].second) << cases[i].first;
    }
}

TEST_F(ExportTexts, TheSymbolRotationOptionDoesNotTouchTexts) {
    AddText({.text = u"a"});
    const std::string without = ExportObjects();
    translation.options.chkExportSymRotation = true;
    EXPECT_EQ(ExportObjects(), without);
}

TEST_F(ExportTexts, ThePlacementContinuesWhenNamesAndHeightsAreWritten) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    AddPoint({.code = u"", .east = 1, .north = 2, .elevation = 3, .name = u"P17"});
    AddText({.text = u"a", .anchor = 3});
    EXPECT_EQ(ExportObjects(), Records("03MZ01           01   BBRON  0  |00\n"
                                       "05F111      NP17      X     1000Y     2000Z     3000X     2000|00\n"
                                       "05Y     2000Z     3000KZ01    |00\n"
                                       "06A01Ta|01\n"));
}

TEST_F(ExportTexts, ATextHangsOnThePointOfItsNumberNotOfItsIndex) {
    AddPoint({.code = u"", .east = 7, .north = 8, .number = 2'000'000'000});
    AddText({.text = u"a", .anchor = 2'000'000'000});
    EXPECT_EQ(SplitLines(ExportObjects())[1].substr(12, 20), "X     7000Y     8000");
}

TEST_F(ExportTexts, TheCountIsTheLengthOfTheTrimmedTextInTwoDigits) {
    AddText({.text = u"  drie  "});
    AddText({.text = u"tien tekens met ee"});
    EXPECT_EQ(ExportedTexts(), Records("06A04Tdrie|01\n06A18Ttien tekens met ee|01\n"));
}

TEST_F(ExportTexts, ATextOfMoreThan40CharactersIsCutAt40) {
    AddText({.text = Text(40, u'a')});
    AddText({.text = Text(41, u'b')});
    AddText({.text = Text(47, u'c')});
    EXPECT_EQ(ExportedTexts(), Records("06A40T" + std::string(40, 'a') + "|01\n06A40T" + std::string(40, 'b') +
                                       "|01\n06A40T" + std::string(40, 'c') + "|01\n"));
}

TEST_F(ExportTexts, AnAccentIsOneByteAndOneCharacter) {
    AddText({.text = u"Café"});
    EXPECT_EQ(ExportedTexts(), Records("06A04TCaf\xE9|01\n"));
}

TEST_F(ExportTexts, AnEmptyTextIsLeftOutBeforeAnythingIsLookedAt) {
    AddText({.text = u""});
    AddText({.text = u"    ", .anchor = 99});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::EmptyText), 2);
    EXPECT_EQ(translation.codes.texts.rows[1].Count, 0);
    EXPECT_EQ(LogText().find("FOUT:"), std::string::npos);
}

TEST_F(ExportTexts, ATextThatHangsOnAPointNeverReadIsLeftOutAndLogged) {
    AddText({.text = u"a"});
    AddText({.text = u"b", .anchor = 99});
    AddText({.text = u"c", .anchor = -1});
    EXPECT_EQ(ExportedTexts(), Records("06A01Ta|01\n"));
    EXPECT_EQ(Left(LeftOut::NoReference), 2);
    EXPECT_EQ(translation.codes.texts.rows[1].Count, 1);
    const std::string log = LogText();
    EXPECT_EQ(log.substr(0, log.find(" Statistiek:")),
              "FOUT:  Tekst 2 verwijst naar een onbekend punt\n"
              "FOUT:  Tekst 3 verwijst naar een onbekend punt\n");
}

TEST_F(ExportTexts, AGeneratedPointNumberHoldsItsLkiCodeAndIsNotLookedUp) {
    AddText({.text = u"P17", .code = generatedCode, .position = pointNumberAnchor});
    EXPECT_EQ(ExportObjects(), Records("03MZ30           01   BBRON  0  |00\n"
                                       "05F111      X    10000Y    20000X    11000Y    20000KZ30    |00\n"
                                       "06A03TP17|01\n"));
    EXPECT_EQ(translation.codes.texts.rows[0].Count, 0);
    EXPECT_EQ(Written(), 1);
}

TEST_F(ExportTexts, AGeneratedTextIsWrittenAlsoWhenUnknownsAreOffAndTheTableHasNoRows) {
    translation.codes.texts.rows.clear();
    translation.codes.texts.RowsChanged();
    AddText({.text = u"P17", .code = generatedCode, .position = pointNumberAnchor});
    EXPECT_EQ(ExportedTexts(), Records("06A03TP17|01\n"));
}

TEST_F(ExportTexts, AGeneratedCodeFillsAtMostSixColumns) {
    AddText({.text = u"P17", .code = u"\u00FF123456"});
    AddText({.text = u"P17", .code = u"\u00FF"});
    const auto lines = SplitLines(ExportObjects());
    EXPECT_EQ(lines[0].substr(0, 10), "03M123456 ");
    EXPECT_EQ(lines[1].substr(52, 8), "K123456 ");
    EXPECT_EQ(lines[3].substr(0, 10), "03M       ");
}

TEST_F(ExportTexts, AGeneratedHeightIsCountedAs09WhateverItsLength) {
    AddText({.text = u"   1,25", .code = generatedCode, .direction = 50, .position = heightAnchor});
    EXPECT_EQ(ExportObjects(), Records("03MZ30           01   BBRON  0  |00\n"
                                       "05F111      X    10000Y    20000X    10707Y    20707KZ30    |00\n"
                                       "06A09T1,25|01\n"));
}

TEST_F(ExportTexts, OnlyAGeneratedTextAtTheHeightsPositionIsCountedAs09) {
    AddText({.text = u"1,25", .code = u"TEKST", .position = heightAnchor});
    AddText({.text = u"1,25", .code = generatedCode, .position = 4});
    EXPECT_EQ(ExportedTexts(), Records("06A04T1,25|01\n06A04T1,25|01\n"));
}

TEST_F(ExportTexts, ATextOfTypeDummyIsNotWritten) {
    AddRow(translation.codes.texts, {u"HULP", u"Z98", types::dummy});
    AddText({.text = u"a", .code = u"HULP"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::Dummy), 1);
    EXPECT_EQ(translation.codes.texts.rows[2].Count, 1);
}

TEST_F(ExportTexts, ATextOfAnyOtherTypeIsWritten) {
    AddRow(translation.codes.texts, {u"NAAM", u"Z02", u"LIJN"});
    AddText({.text = u"a", .code = u"NAAM"});
    EXPECT_EQ(ExportObjects().substr(0, 10), "03MZ02    ");
}

TEST_F(ExportTexts, ATextsCodeCarriesNoQuality) {
    AddRow(translation.codes.texts, {u"NAAM", u"Z02", u"", u"Naam", 1, 2, 3});
    AddText({.text = u"a", .code = u"NAAM"});
    EXPECT_EQ(ExportObjects(), Records("03MZ02           01   BBRON  0  |00\n"
                                       "05F111      X    10000Y    20000X    11000Y    20000KZ02    |00\n"
                                       "06A01Ta|01\n"));
}

TEST_F(ExportTexts, AnUnknownTextIsLeftOutButCountedWhenUnknownsAreOff) {
    AddText({.text = u"a", .code = u"RAAR"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
    EXPECT_EQ(translation.codes.texts.rows[0].Count, 1);
}

TEST_F(ExportTexts, AnUnknownTextIsWrittenWithTheUnknownRowWhenUnknownsAreOn) {
    translation.options.chkExportUnknowns = true;
    AddText({.text = u"a", .code = u"RAAR"});
    EXPECT_EQ(ExportObjects(), Records("03MZ19           01   BBRON  0  |00\n"
                                       "05F111      X    10000Y    20000X    11000Y    20000KZ19    |00\n"
                                       "06A01Ta|01\n"));
}

TEST_F(ExportTexts, ATextTableWithoutRowsLeavesItsTextsOut) {
    translation.codes.texts.rows.clear();
    translation.codes.texts.RowsChanged();
    AddText({.text = u"a"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
}

}  // namespace
}  // namespace korvande::testing
