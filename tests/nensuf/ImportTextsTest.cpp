#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

using ImportTexts = ImportTest;

TEST_F(ImportTexts, ATextHangsOnItsPointWithTheCodeOfItsRow) {
    Import(TextGroups("Z10", At(1000, 2000, 500), "Lindenlaan"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Lindenlaan\n");
    EXPECT_EQ(Points(), "|100|1.000 2.000 0.500|0.0000\n");
    EXPECT_EQ(PointDescription(1), "Onbekend Object");
    EXPECT_EQ(Lines() + Edges(), "");
    EXPECT_EQ(translation.codes.texts.rows[1].Count, 1);
    ExpectAccount(ObjectKind::TextObject, 1, 1);
    ExpectAccount(ObjectKind::Point, 0, 0);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportTexts, TwoPointsGiveTheDirectionAndALineString) {
    Import(Point("P10", At(9, 9)) + TextGroups("Z10", N("4") + At(1000, 1000) + At(1000, 2000), "Lindenlaan"));
    EXPECT_EQ(Texts(), "STRAAT|2|1|100.000|Lindenlaan\n");
    EXPECT_EQ(Points(),
              "|BOOM|0.009 0.009 0.000|0.0000\n4|100|1.000 1.000 0.000|0.0000\n|100|1.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(Lines(), "STRAAT\n");
    EXPECT_EQ(LineDescription(1), "Straatnaam");
    EXPECT_EQ(Edges(), "1: 2-3 STRAIGHT\n");
}

TEST_F(ImportTexts, PointsCloserThanAMillimetreGiveNeitherDirectionNorLineString) {
    screen.answers = {Answer::No};
    Import(TextGroups("Z10", At(0, 0) + At(9, 0), "Weg") + TextGroups("Z10", At(0, 0) + At(0, -10), "Pad"),
           FirstLine() + SecondLine("010205"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Weg\nSTRAAT|3|1|300.000|Pad\n");
    EXPECT_EQ(Edges(), "1: 3-4 STRAIGHT\n");
}

TEST_F(ImportTexts, MorePointsAreAddedUpToFive) {
    std::string fields;
    for (std::int64_t i = 1; i <= 7; ++i) fields += At(i * 1000, i, i);
    Import(TextGroups("Z10", fields, "Weg"));
    EXPECT_EQ(Points(),
              "|100|1.000 0.001 0.001|0.0000\n|100|2.000 0.002 0.002|0.0000\n|100|3.000 0.003 0.003|0.0000\n"
              "|100|4.000 0.004 0.004|0.0000\n|100|5.000 0.005 0.005|0.0000\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.064|Weg\n");
}

TEST_F(ImportTexts, ANumberIsThatOfOnePointOnly) {
    // Cancelled at the question, so that the clean-up does not hide it.
    translation.mode.variant = Variant::Suf2;
    Import(TextGroups("Z10", N("4") + At(1, 1) + At(2, 2), "Weg") + Record("07N"), Suf2Header());
    EXPECT_EQ(Points(), "4|100|0.001 0.001 0.000|0.0000\n|100|0.002 0.002 0.000|0.0000\n");
}

TEST_F(ImportTexts, TheRotationOptionDoesNotTurnTexts) {
    translation.options.chkImportSymRotation = true;
    Import(TextGroups("Z10", At(0, 0) + At(1000, 1000), "Weg"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|50.000|Weg\n");
}

TEST_F(ImportTexts, A04GroupBehindThePlacementGivesTheCoordinates) {
    Import(Placement("111", "Z10", At(1, 1)) + Geometry(N("8") + At(2000, 2000)) + TextRecord("Weg"));
    EXPECT_EQ(Points(), "8|100|2.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Weg\n");
}

TEST_F(ImportTexts, AnEmpty04GroupBehindThePlacementLeavesTheTextOut) {
    Import(Placement("111", "Z10", At(1, 1)) + Geometry("") + TextRecord("Weg"));
    EXPECT_EQ(Texts() + Points(), "");
    ExpectLeft(ObjectKind::TextObject, LeftOut::NoCoordinates);
}

TEST_F(ImportTexts, TheFirstPositionOfThePlacementIsTheAnchorPositionRenumbered) {
    const std::string renumbered = "147258369";
    for (char anchor = '1'; anchor <= '9'; ++anchor) {
        Import(Placement(std::string(1, anchor) + "11", "Z10", At(1, 1)) + TextRecord("Weg"));
        EXPECT_EQ(translation.drawing.Texts[1].AnchorPosition,
                  renumbered[static_cast<std::size_t>(anchor - '1')] - '0');
    }
    for (const std::string anchor : {"0", " ", ":", "A", "\xE9", "-"}) {
        Import(Placement(anchor + "11", "Z10", At(1, 1)) + TextRecord("Weg"));
        EXPECT_EQ(translation.drawing.Texts[1].AnchorPosition, 1) << anchor;
    }
}

TEST_F(ImportTexts, TheTextRunsFromColumn7To62) {
    const std::string text = "Een lange naam die in een tekening op zevenenveertig tek";
    ASSERT_EQ(text.size(), 56U);
    Import(Placement("111", "Z10", At(1, 1)) + Record("06A56T" + text) + Placement("111", "Z10", At(1, 1)) +
           Record("06    kort"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|" + text.substr(0, 47) + "\nSTRAAT|2|1|0.000|kort\n");
}

TEST_F(ImportTexts, TheEndCodeIsNoPartOfTheText) {
    Import(Placement("111", "Z10", At(1, 1)) + Record("06A03TWeg", "99"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Weg\n");
}

TEST_F(ImportTexts, OnlyTheFirstOfSeveral06RecordsHoldsTheText) {
    Import(Placement("111", "Z10", At(1, 1)) + Record("06A03TWeg", "00") + Record("06A05Tverder", "00") +
           Record("06A03Teinde") + Point("P10", At(2, 2)));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Weg\n");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
}

TEST_F(ImportTexts, BlanksBeforeAnOrdinaryTextStay) {
    Import(Placement("111", "Z10", At(1, 1)) + Record("06A08T   Weg"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|   Weg\n");
}

TEST_F(ImportTexts, APlaceNameBeginsAtColumn14AndIsTrimmed) {
    Import(Placement("111", "Z01", At(1, 1)) + Record("06A20T1234567  Molveren aan de Zoom   ") +
           Placement("111", "Z01", At(1, 1)) + Record("06A30T1234567" + std::string(20, ' ') + "Zoom"));
    EXPECT_EQ(Texts(), "PLAATS|1|1|0.000|Molveren aan de Zoom\nPLAATS|2|1|0.000|Zoom\n");
}

TEST_F(ImportTexts, APlaceNameMayReachColumn62) {
    Import(Placement("111", "Z01", At(1, 1)) + Record("06A99T1234567" + std::string(49, 'x')));
    EXPECT_EQ(Texts(), "PLAATS|1|1|0.000|" + std::string(47, 'x') + "\n");
}

TEST_F(ImportTexts, AccentsAndQuotesAreKept) {
    Import(TextGroups("Z10", At(1, 1), "Caf\xE9 't \"Ho\xEBkje\" \x80"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Café 't \"Hoëkje\" €\n");
}

TEST_F(ImportTexts, AnEmptyTextIsAText) {
    Import(Placement("111", "Z10", At(1, 1)) + Record("06"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|\n");
}

TEST_F(ImportTexts, AMissing06RecordIsReportedAndTheRecordFoundIsTheNextGroup) {
    Import(Placement("111", "Z10", At(1, 1) + At(2, 2)) + Point("P10", At(3, 3)));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(ToUtf8(screen.boxes[0].text), "06 record ontbreekt");
    EXPECT_EQ(ToUtf8(screen.boxes[0].title), "");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(Points(), "|BOOM|0.003 0.003 0.000|0.0000\n");
    EXPECT_EQ(Texts() + Lines(), "");
    EXPECT_EQ(translation.codes.texts.rows[1].Count, 0);
    ExpectLeft(ObjectKind::TextObject, LeftOut::MissingRecord);
    EXPECT_EQ(LogText(), "FOUT:  Tekst, 06 record ontbreekt\n");
}

TEST_F(ImportTexts, AMissing06RecordAtTheEndOfTheFileIsReportedToo) {
    ImportBytes(NenHeader() + Placement("111", "Z10", "") + Geometry(At(1, 1)));
    EXPECT_EQ(screen.messages, std::vector<std::string>{"06 record ontbreekt"});
    EXPECT_EQ(Points(), "");
}

TEST_F(ImportTexts, AnUnknownTextIsDroppedWithIts06Record) {
    Import(TextGroups("ONB", At(1, 1), "Weg") + TextGroups("Z10", At(2, 2), "Pad"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Pad\n");
    EXPECT_EQ(translation.codes.texts.rows[0].Count, 1);
    ExpectLeft(ObjectKind::TextObject, LeftOut::UnknownCode);
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(ImportTexts, AnUnknownTextIsImportedAsTheUnknownRowWhenAskedFor) {
    translation.options.chkImportUnknowns = true;
    Import(TextGroups("ONB", At(0, 0) + At(1000, 0), "Weg"));
    EXPECT_EQ(Texts(), "STANDRD|1|1|0.000|Weg\n");
    EXPECT_EQ(Lines(), "STANDRD\n");
}

TEST_F(ImportTexts, ATextWithoutCoordinatesIsLeftOut) {
    Import(TextGroups("Z10", N("1"), "Weg") + TextGroups("Z10", At(1, 1), "Pad"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Pad\n");
    EXPECT_EQ(translation.codes.texts.rows[1].Count, 2);
    ExpectLeft(ObjectKind::TextObject, LeftOut::NoCoordinates);
}

TEST_F(ImportTexts, TheRectangleTestsTheFirstPoint) {
    Options& options = translation.options;
    options.chkSelectXY = true;
    options.txtMinX = u"1";
    options.txtMaxX = u"2";
    options.txtMinY = u"3";
    options.txtMaxY = u"4";
    Import(TextGroups("Z10", At(2001, 3500) + At(1500, 3500), "buiten") +
           TextGroups("Z10", At(2000, 4000) + At(9000, 4000), "binnen"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|binnen\n");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
    ExpectLeft(ObjectKind::TextObject, LeftOut::OutsideRectangle);
}

TEST_F(ImportTexts, SeveralFFieldsRunTheReadersOfSymbolAndText) {
    AddRow(translation.codes.points, u"PAAL", u"Z10", u"Paal");
    Import(Group("05", Field('F', "911") + Field('F', "312") + Field('K', "Z10") + N("5") + At(1000, 1000)) +
           TextRecord("Weg"));
    EXPECT_EQ(Points(), "5|PAAL|1.000 1.000 0.000|0.0000\n|100|1.000 1.000 0.000|0.0000\n");
    EXPECT_EQ(Texts(), "STRAAT|2|7|0.000|Weg\n");  // the last F field's anchor position
    ExpectAccount(ObjectKind::Point, 1, 1);
    ExpectAccount(ObjectKind::TextObject, 1, 1);
}

TEST_F(ImportTexts, SymbolAndTextOfOneGroupShareA04GroupBehindIt) {
    AddRow(translation.codes.points, u"PAAL", u"Z10", u"Paal");
    Import(Group("05", Field('F', "112") + Field('F', "111") + Field('K', "Z10")) + Geometry(At(2000, 2000)) +
           TextRecord("Weg"));
    EXPECT_EQ(Points(), "|PAAL|2.000 2.000 0.000|0.0000\n|100|2.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(Texts(), "STRAAT|2|1|0.000|Weg\n");
}

TEST_F(ImportTexts, ATextBehindARolledBackLineHangsOnItsOwnPoint) {
    Options& options = translation.options;
    options.chkSelectXY = true;
    options.txtMaxX = u"10";
    Import(Line("B10", At(11000, 0) + At(0, 0)) + TextGroups("Z10", At(1000, 0), "Weg"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Weg\n");
    EXPECT_EQ(Points(), "|100|1.000 0.000 0.000|0.0000\n");
}

}  // namespace

}  // namespace korvande::testing
