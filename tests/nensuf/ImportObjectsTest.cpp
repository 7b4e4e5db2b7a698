#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

// Point and symbol groups.
class ImportObjects : public ImportTest {
 protected:
    ImportObjects() {
        AddRow(translation.codes.points, u"EIK", u"S01 A01", u"Eik");
        AddRow(translation.codes.points, u"PUT", u"S02 B12", u"Put");
        AddRow(translation.codes.points, u"KAST", u"S03 C  ", u"Kast");
        AddRow(translation.codes.points, u"TEKEN", u"S02", u"Symbool");
        AddRow(translation.codes.points, u"VIER", u"S04 A01", u"Vier");
    }

    double DirectionOf(std::int32_t point) { return translation.drawing.Points[point].SymDir; }
    std::string CodeOf(std::int32_t point) {
        return ToUtf8(translation.drawing.Code(translation.drawing.Points[point]).TrimmedRight());
    }
};

TEST_F(ImportObjects, APointTakesCodeAndDescriptionOfItsRow) {
    Import(Point("P10", N("101") + At(1000, 2000, 3000)));
    EXPECT_EQ(Points(), "101|BOOM|1.000 2.000 3.000|0.0000\n");
    EXPECT_EQ(PointDescription(1), "Loofboom");
    EXPECT_EQ(translation.codes.points.rows[1].Count, 1);
    ExpectAccount(ObjectKind::Point, 1, 1);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportObjects, ANumberCountsForTheNextPointToBegin) {
    Import(Point("P10", N("1") + Field('I', "1") + At(1, 1)) + Point("P10", At(2, 2) + N("2")) +
           Point("P10", N("3") + N("4") + At(4, 4)) + Point("P10", At(5, 5)));
    EXPECT_EQ(Points(),
              "1|BOOM|0.001 0.001 0.000|0.0000\n|BOOM|0.002 0.002 0.000|0.0000\n"
              "4|BOOM|0.004 0.004 0.000|0.0000\n|BOOM|0.005 0.005 0.000|0.0000\n");
}

TEST_F(ImportObjects, AYOrZBeforeTheFirstXIsLost) {
    Import(Point("P10", At(9, 9)) + Point("P10", Field('Y', 5) + Field('Z', 6) + Field('X', 7)));
    EXPECT_EQ(Points(), "|BOOM|0.009 0.009 0.000|0.0000\n|BOOM|0.007 0.000 0.000|0.0000\n");
}

TEST_F(ImportObjects, ASecondPointOnlyGivesTheDirection) {
    Import(Point("P10", At(0, 0) + At(1000, 0)) + Point("P10", At(0, 0) + At(0, 1000)) +
           Point("P10", At(0, 0) + At(-1000, 0)) + Point("P10", At(0, 0) + At(0, -1000)) +
           Point("P10", At(0, 0) + At(1000, 1000)) + Point("P10", At(5, 5) + At(5005, 10, 9)));
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 6);
    EXPECT_NEAR(DirectionOf(1), 0, 1e-9);
    EXPECT_NEAR(DirectionOf(2), 100, 1e-9);
    EXPECT_NEAR(DirectionOf(3), 200, 1e-9);
    EXPECT_NEAR(DirectionOf(4), 300, 1e-9);
    EXPECT_NEAR(DirectionOf(5), 50, 1e-9);
    EXPECT_NEAR(DirectionOf(6), 0.063662, 1e-6);
}

TEST_F(ImportObjects, PointsCloserThanAMillimetreGiveNoDirection) {
    const std::string header = FirstLine() + SecondLine("010205");  // tenths of millimetres
    screen.answers = {Answer::No};
    Import(Point("P10", At(0, 0) + At(0, 0)) + Point("P10", At(0, 0) + At(0, 9)) + Point("P10", At(0, 0) + At(0, 10)) +
               Point("P10", At(0, 0)),
           header);
    EXPECT_EQ(DirectionOf(1), 0);
    EXPECT_EQ(DirectionOf(2), 0);
    EXPECT_NEAR(DirectionOf(3), 100, 1e-9);
    EXPECT_EQ(DirectionOf(4), 0);
}

TEST_F(ImportObjects, OnlyTheFirstFivePointsOfAGroupAreTaken) {
    std::string fields;
    for (std::int64_t i = 1; i <= 8; ++i) fields += N("N" + std::to_string(i)) + At(i * 1000, i * 1000, i);
    Import(Point("P10", fields));
    EXPECT_EQ(Points(), "N1|BOOM|1.000 1.000 0.001|50.0000\n");
}

TEST_F(ImportObjects, TheOptionForSymbolsDoesNotTurnPoints) {
    translation.options.chkImportSymRotation = true;
    Import(Point("P10", At(0, 0) + At(0, 1000)));
    EXPECT_NEAR(DirectionOf(1), 100, 1e-9);
}

TEST_F(ImportObjects, AnUnknownPointIsDroppedOrImportedAsTheUnknownRow) {
    Import(Point("ONB", At(1, 1)));
    EXPECT_EQ(Points(), "");
    ExpectLeft(ObjectKind::Point, LeftOut::UnknownCode);
    translation.options.chkImportUnknowns = true;
    Import(Point("ONB", N("8") + At(1, 1)));
    EXPECT_EQ(Points(), "8|STANDRD|0.001 0.001 0.000|0.0000\n");
    EXPECT_EQ(PointDescription(1), "ONBEKEND PUNTOBJECT");
    EXPECT_EQ(translation.codes.points.rows[0].Count, 2);
}

TEST_F(ImportObjects, AnUnknownObjectOfADrawingThatIsOnlyReadKeepsItsCode) {
    translation.options.chkImportUnknowns = translation.keepsUnknownCodes = true;
    Import(Point("ONB", At(1, 1)) + Point("P10", At(2, 2)));
    EXPECT_EQ(CodeOf(1), "ONB");
    EXPECT_EQ(CodeOf(2), "BOOM");
}

TEST_F(ImportObjects, APointWithoutCoordinatesIsLookedUpAndLeftOut) {
    Import(Point("P10", Field('Y', 1)) + Point("P10", "") + Symbol("P20", ""));
    EXPECT_EQ(Points(), "");
    EXPECT_EQ(translation.codes.points.rows[1].Count, 2);
    EXPECT_EQ(translation.codes.points.rows[2].Count, 1);
    ExpectLeft(ObjectKind::Point, LeftOut::NoCoordinates, 3);
}

TEST_F(ImportObjects, TheRectangleTestsTheFirstPoint) {
    Options& options = translation.options;
    options.chkSelectXY = true;
    options.txtMinX = u"1";
    options.txtMaxX = u"2";
    options.txtMinY = u"3";
    options.txtMaxY = u"4";
    const std::string inside = At(2000, 4000);
    const std::string outside = At(2001, 4000);
    Import(Point("P10", outside + inside) + Point("P10", inside + outside) + Point("P10", At(1000, 3000)) +
           Symbol("P20", outside + inside) + Symbol("P20", inside + outside));
    EXPECT_EQ(CodeOf(1) + CodeOf(2) + CodeOf(3), "BOOMBOOMMAST");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 3);
    EXPECT_EQ(translation.codes.points.rows[1].Count, 3);
    ExpectLeft(ObjectKind::Point, LeftOut::OutsideRectangle, 2);
}

TEST_F(ImportObjects, AMissing04GroupIsReportedAndTheRunGoesOn) {
    Import(Head("P10", "01") + Record("06A03TWeg") + Point("P20", At(1, 1)));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(ToUtf8(screen.boxes[0].text), "04 record ontbreekt");
    EXPECT_EQ(ToUtf8(screen.boxes[0].title), "");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(Points(), "|MAST|0.001 0.001 0.000|0.0000\n");
    EXPECT_EQ(translation.codes.points.rows[1].Count, 0);
    ExpectLeft(ObjectKind::Point, LeftOut::MissingRecord);
    EXPECT_EQ(LogText(), "FOUT:  Punt, 04 record ontbreekt\n");
}

TEST_F(ImportObjects, APointWithAnEmptyLiscadCodeKeepsItEmpty) {
    AddRow(translation.codes.points, u"", u"P99", u"Zonder code");
    Import(Point("P99", At(1, 1)));
    EXPECT_EQ(Points(), "||0.001 0.001 0.000|0.0000\n");
    EXPECT_EQ(PointDescription(1), "Zonder code");
}

TEST_F(ImportObjects, CoordinatesBeyondAllNumbersEndTheImport) {
    const std::string far = Field('X', "-9E307") + Field('X', "9E307");
    Import(Point("P10", At(1, 1)) + Point("P10", far) + Point("P10", At(2, 2)), FirstLine() + SecondLine("010245"));
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 1);
    ExpectLeft(ObjectKind::Point, LeftOut::Unfinished);
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 6)\n");
}

TEST_F(ImportObjects, ADroppedPointsDirectionIsNotComputed) {
    Import(Point("ONB", Field('X', "-9E307") + Field('X', "9E307")), FirstLine() + SecondLine("010245"));
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportObjects, ASymbolIsAPointOfItsCode) {
    Import(Symbol("P20", N("77") + At(1000, 2000, 3000) + At(2000, 2000)));
    EXPECT_EQ(Points(), "77|MAST|1.000 2.000 3.000|0.0000\n");
    EXPECT_EQ(PointDescription(1), "Lichtmast");
    EXPECT_EQ(Lines() + Edges() + Texts(), "");
    ExpectAccount(ObjectKind::Point, 1, 1);
}

TEST_F(ImportObjects, TheCodeOfASymbolMayStandInEitherField) {
    Import(Group("05", Field('Q', "P10") + Field('F', "012") + At(1, 1)) +
           Group("05", Field('K', "P20") + Field('F', "012") + At(2, 2)));
    EXPECT_EQ(CodeOf(1) + CodeOf(2), "BOOMMAST");
}

TEST_F(ImportObjects, TheThirdPositionOfThePlacementDecidesTheKind) {
    for (const std::string placement : {"113", "11", "", "110", "11 2", "11\xB2"}) {
        Import(Group("05", Field('F', placement) + Field('K', "P20") + At(1, 1)) + TextRecord("Weg"));
        EXPECT_EQ(Points(), "") << placement;
    }
    for (const std::string placement : {"112", "  2", "992XYZ"}) {
        Import(Group("05", Field('F', placement) + Field('K', "P20") + At(1, 1)));
        EXPECT_EQ(Points(), "|MAST|0.001 0.001 0.000|0.0000\n") << placement;
    }
}

TEST_F(ImportObjects, SymbolsOfS01ToS03GoByTheirTypeToo) {
    Import(Symbol("S01", At(1, 1), "A01") + Symbol("S02", At(1, 1), "B12XYZ") + Symbol("S03", At(1, 1), "C"));
    EXPECT_EQ(CodeOf(1) + CodeOf(2) + CodeOf(3), "EIKPUTKAST");
    EXPECT_EQ(translation.codes.points.rows[3].Count, 1);
    EXPECT_EQ(translation.codes.points.rows[0].Count, 0);
}

TEST_F(ImportObjects, WithoutARowForTheTypeTheCodeAloneCounts) {
    translation.options.chkImportUnknowns = true;
    translation.options.chkExportUnknowns = true;
    Import(Symbol("S02", At(1, 1), "ZZZ") + Symbol("S02", At(1, 1)) + Symbol("S01", At(1, 1), "ZZZ"));
    EXPECT_EQ(CodeOf(1) + CodeOf(2) + CodeOf(3), "TEKENTEKENSTANDRD");
    ASSERT_EQ(translation.unknowns.Entries().size(), 1U);
    EXPECT_EQ(ToUtf8(translation.unknowns.Entries()[0].Code.View()), "PS01    ");
}

TEST_F(ImportObjects, OtherSymbolCodesDoNotGoByTheirType) {
    Import(Symbol("S04", At(1, 1), "A01") + Symbol("s01", At(1, 1), "A01") + Symbol("S011", At(1, 1), "A01"));
    EXPECT_EQ(Points(), "");
    ExpectLeft(ObjectKind::Point, LeftOut::UnknownCode, 3);
}

TEST_F(ImportObjects, A04GroupBehindThePlacementGivesTheCoordinates) {
    Import(Symbol("P20", N("1") + At(1, 1)) + Geometry(N("2") + At(2000, 2000) + At(3000, 2000)) +
           Symbol("P20", N("3") + At(3, 3)));
    EXPECT_EQ(Points(), "2|MAST|2.000 2.000 0.000|0.0000\n3|MAST|0.003 0.003 0.000|0.0000\n");
}

TEST_F(ImportObjects, ASymbolsDirectionIsCountedLikeAPoints) {
    Import(Symbol("P20", At(0, 0) + At(1000, 0)) + Symbol("P20", At(0, 0) + At(0, 1000)) +
           Symbol("P20", At(0, 0) + At(-1000, -1000)) + Symbol("P20", At(0, 0)));
    EXPECT_NEAR(DirectionOf(1), 0, 1e-9);
    EXPECT_NEAR(DirectionOf(2), 100, 1e-9);
    EXPECT_NEAR(DirectionOf(3), 250, 1e-9);
    EXPECT_EQ(DirectionOf(4), 0);
}

TEST_F(ImportObjects, WithTheRotationOptionTheSecondPointLiesToTheSymbolsNorth) {
    translation.options.chkImportSymRotation = true;
    Import(Symbol("P20", At(0, 0) + At(1000, 0)) + Symbol("P20", At(0, 0) + At(0, 1000)) +
           Symbol("P20", At(0, 0) + At(-1000, -1000)) + Symbol("P20", At(0, 0)) + Symbol("P20", At(7, 7) + At(7, 7)));
    EXPECT_NEAR(DirectionOf(1), 300, 1e-9);
    EXPECT_NEAR(DirectionOf(2), 0, 1e-9);
    EXPECT_NEAR(DirectionOf(3), 150, 1e-9);
    EXPECT_EQ(DirectionOf(4), 0);
    EXPECT_EQ(DirectionOf(5), 0);
}

TEST_F(ImportObjects, ASymbolsTextRecordIsPassedOver) {
    Import(Symbol("P20", At(1, 1)) + TextRecord("Lichtmast") + Symbol("P20", At(2, 2)));
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Texts(), "");
}

}  // namespace

}  // namespace korvande::testing
