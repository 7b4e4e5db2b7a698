#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportArcs : public ImportTest {
 protected:
    void Select(TextView minX, TextView maxX, TextView minY, TextView maxY) {
        Options& options = translation.options;
        options.chkSelectXY = true;
        options.txtMinX = minX;
        options.txtMaxX = maxX;
        options.txtMinY = minY;
        options.txtMaxY = maxY;
    }
};

// Points on the circle of 10 metres about 100, 200: north, east, south and west of the centre.
const std::string north = At(100000, 210000);
const std::string east = At(110000, 200000);
const std::string south = At(100000, 190000);
const std::string west = At(90000, 200000);
const std::string centre = "|KANT|100.000 200.000 0.000|0.0000\n";
const std::string northPoint = "|KANT|100.000 210.000 0.000|0.0000\n";
const std::string eastPoint = "|KANT|110.000 200.000 0.000|0.0000\n";
const std::string southPoint = "|KANT|100.000 190.000 0.000|0.0000\n";
const std::string westPoint = "|KANT|90.000 200.000 0.000|0.0000\n";

TEST_F(ImportArcs, AnArcClockwiseIsStartCentreAndEnd) {
    Import(Arc("B10", north + east + south));
    EXPECT_EQ(Points(), northPoint + centre + southPoint);
    EXPECT_EQ(Lines(), "KANT\n");
    EXPECT_EQ(Edges(), "1: 1-2 ARC_CENT\n1: 2-3 ARC_CENT\n");
    EXPECT_EQ(LineDescription(1), "Kant verharding");
    EXPECT_EQ(PointDescription(2), "Kant verharding");
    ExpectAccount(ObjectKind::Arc, 1, 1);
    ExpectAccount(ObjectKind::LineString, 0, 0);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportArcs, AnArcAnticlockwiseIsMarked) {
    Import(Arc("B10", south + east + north));
    EXPECT_EQ(Points(), southPoint + centre + northPoint);
    EXPECT_EQ(Lines(), "KANT|16\n");
}

TEST_F(ImportArcs, TheCentreKeepsTheHeightOfThePointOnTheArc) {
    Import(Arc("B10", At(100000, 210000, 1000) + At(110000, 200000, 2000) + At(100000, 190000, 3000)));
    EXPECT_EQ(translation.drawing.Points[2].Elevation, 2);
    EXPECT_EQ(translation.drawing.Points[3].Elevation, 3);
}

TEST_F(ImportArcs, NumbersAndInterpolationCodesTakeNoPart) {
    Import(Arc("B10", Field('I', "1") + N("1") + north + Field('I', "4") + N("2") + east + N("3") + south));
    EXPECT_EQ(Points(), northPoint + centre + southPoint);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportArcs, FivePointsAreTwoArcsThatShareTheirThird) {
    Import(Arc("B10", north + east + south + At(90000, 180000) + At(100000, 170000)));
    EXPECT_EQ(Points(), northPoint + centre + southPoint + "|KANT|100.000 180.000 0.000|0.0000\n" +
                            "|KANT|100.000 170.000 0.000|0.0000\n");
    EXPECT_EQ(Edges(), "1: 1-2 ARC_CENT\n1: 2-3 ARC_CENT\n2: 3-4 ARC_CENT\n2: 4-5 ARC_CENT\n");
    EXPECT_EQ(Lines(), "KANT\nKANT|16\n");
    ExpectAccount(ObjectKind::Arc, 2, 2);
}

TEST_F(ImportArcs, EachArcOfAChainCarriesItsOwnDirection) {
    // Clockwise about 180 north, anticlockwise, clockwise, each half a circle further south.
    Import(Arc("B10", south + At(90000, 180000) + At(100000, 170000) + At(110000, 160000) + At(100000, 150000) +
                          At(90000, 140000) + At(100000, 130000)));
    EXPECT_EQ(Lines(), "KANT|16\nKANT\nKANT|16\n");
    EXPECT_EQ(translation.drawing.Edges.UpperBound(), 6);
    EXPECT_EQ(LineDescription(3), "Kant verharding");
    ExpectAccount(ObjectKind::Arc, 3, 3);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportArcs, FourPointsAreAnArcAndAnInvalidOne) {
    Import(Arc("B10", north + east + south + west) + Point("P10", At(1, 1)));
    EXPECT_EQ(Points(), northPoint + centre + southPoint + westPoint + "|BOOM|0.001 0.001 0.000|0.0000\n");
    EXPECT_EQ(Lines(), "KANT\nKANT\n");
    EXPECT_EQ(Edges(), "1: 1-2 ARC_CENT\n1: 2-3 ARC_CENT\n");
    ExpectAccount(ObjectKind::Arc, 2, 1);
    ExpectLeft(ObjectKind::Arc, LeftOut::InvalidArc);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "FOUT:  Ongeldige boog\n");
}

TEST_F(ImportArcs, FewerThanThreePointsStayWithTheirLineString) {
    Import(Arc("B10", "") + Arc("B10", north) + Arc("B10", north + east));
    EXPECT_EQ(Points(), northPoint + northPoint + eastPoint);
    EXPECT_EQ(Lines(), "KANT\nKANT\nKANT\n");
    EXPECT_EQ(Edges(), "");
    ExpectAccount(ObjectKind::Arc, 3, 0);
    ExpectLeft(ObjectKind::Arc, LeftOut::InvalidArc, 3);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "FOUT:  Ongeldige boog\nFOUT:  Ongeldige boog\nFOUT:  Ongeldige boog\n");
}

TEST_F(ImportArcs, ThreePointsOnALineBecomeStraightEdges) {
    Import(Arc("B10", At(1000, 1000) + At(2000, 2000) + At(5000, 5000)));
    EXPECT_EQ(Points(),
              "|KANT|1.000 1.000 0.000|0.0000\n|KANT|2.000 2.000 0.000|0.0000\n|KANT|5.000 5.000 0.000|0.0000\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n1: 2-3 STRAIGHT\n");
    EXPECT_EQ(Lines(), "KANT\n");
    ExpectAccount(ObjectKind::Arc, 1, 1);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportArcs, APairOfPointsHalfATurnApartMakesStraightEdges) {
    Import(Arc("B10", south + east + west));
    EXPECT_EQ(Points(), southPoint + eastPoint + westPoint);
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n1: 2-3 STRAIGHT\n");
}

TEST_F(ImportArcs, AStraightPieceInAChainDoesNotDisturbItsNeighbours) {
    Import(Arc("B10", north + east + south + At(100000, 180000) + At(100000, 170000) + At(110000, 160000) +
                          At(100000, 150000)));
    EXPECT_EQ(Edges(),
              "1: 1-2 ARC_CENT\n1: 2-3 ARC_CENT\n2: 3-4 STRAIGHT\n2: 4-5 STRAIGHT\n3: 5-6 ARC_CENT\n"
              "3: 6-7 ARC_CENT\n");
    EXPECT_EQ(Lines(), "KANT\nKANT\nKANT\n");
}

TEST_F(ImportArcs, AMissing04GroupIsReportedAndTheRunGoesOn) {
    Import(Head("B10", "13") + Record("06A03TWeg") + Arc("B20", north + east + south));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(ToUtf8(screen.boxes[0].text), "04 record ontbreekt");
    EXPECT_EQ(ToUtf8(screen.boxes[0].title), "");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(Lines(), "MUUR\n");
    ExpectLeft(ObjectKind::Arc, LeftOut::MissingRecord);
    EXPECT_EQ(LogText(), "FOUT:  Boog; 04 record ontbreekt\n");
}

TEST_F(ImportArcs, AnUnknownArcIsDroppedOrImportedAsTheUnknownRow) {
    Import(Arc("ONB", north + east + south));
    EXPECT_EQ(Points() + Lines(), "");
    ExpectLeft(ObjectKind::Arc, LeftOut::UnknownCode);
    translation.options.chkImportUnknowns = true;
    Import(Arc("ONB", north + east + south));
    EXPECT_EQ(Lines(), "STANDRD\n");
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 2);
}

TEST_F(ImportArcs, TheBordersOfTheRectangleBelongToIt) {
    Select(u"100", u"110", u"190", u"210");
    Import(Arc("B10", north + east + south));
    EXPECT_EQ(translation.drawing.Edges.UpperBound(), 2);
}

TEST_F(ImportArcs, AnArcWithOnePointOutsideTheRectangleKeepsItsPointsWithoutEdges) {
    Select(u"0", u"999", u"0", u"209.999");  // start
    Import(Arc("B10", north + east + south));
    EXPECT_EQ(Points() + Lines() + Edges(), northPoint + eastPoint + southPoint + "KANT\n");
    Select(u"0", u"109.999", u"0", u"999");  // point on the arc
    Import(Arc("B10", north + east + south));
    EXPECT_EQ(Points() + Lines() + Edges(), northPoint + eastPoint + southPoint + "KANT\n");
    Select(u"0", u"999", u"190.001", u"999");  // end
    Import(Arc("B10", north + east + south));
    EXPECT_EQ(Points() + Lines() + Edges(), northPoint + eastPoint + southPoint + "KANT\n");
    Select(u"90.001", u"999", u"0", u"999");  // point on the arc, to the other side
    Import(Arc("B10", north + west + south));
    EXPECT_EQ(Points() + Lines() + Edges(), northPoint + westPoint + southPoint + "KANT\n");
    ExpectLeft(ObjectKind::Arc, LeftOut::OutsideRectangle, 4);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportArcs, InAChainTheRectangleTestsEachArc) {
    Select(u"0", u"999", u"0", u"190");
    Import(Arc("B10", north + east + south + At(90000, 180000) + At(100000, 170000)));
    EXPECT_EQ(Edges(), "2: 3-4 ARC_CENT\n2: 4-5 ARC_CENT\n");
    EXPECT_EQ(Lines(), "KANT\nKANT|16\n");
    ExpectAccount(ObjectKind::Arc, 2, 1);
}

TEST_F(ImportArcs, ArcsInTheNationalGridFindTheirCentreToTheMillimetre) {
    Import(Arc("B10", At(121000000, 487005000) + At(121003000, 487004000) + At(121005000, 487000000)));
    EXPECT_NEAR(translation.drawing.Points[2].East, 121000, 0.0005);
    EXPECT_NEAR(translation.drawing.Points[2].North, 487000, 0.0005);
}

TEST_F(ImportArcs, ArcsBeyondAllNumbersEndTheImport) {
    const std::string far = Field('X', "9E307") + Field('Y', "9E307");
    const std::string farther = Field('X', "-9E307") + Field('Y', "1");
    Import(Arc("B10", far + farther + far) + Point("P10", At(1, 1)), FirstLine() + SecondLine("010245"));
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 3);
    EXPECT_EQ(Edges(), "");
    ExpectLeft(ObjectKind::Arc, LeftOut::Unfinished);
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 4)\n");
}

}  // namespace

}  // namespace korvande::testing
