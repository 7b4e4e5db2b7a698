#include <algorithm>
#include <cmath>

#include "core/LinePieces.h"
#include "core/modAzimuth.h"
#include "core/modLineIntraVerse.h"
#include "nensuf/modImportSUFNEN.h"
#include "tests/nensuf/ExportTest.h"
#include "tests/nensuf/ProblemLists.h"

namespace korvande::testing {

namespace {

class ExportArcs : public ExportTest {
 protected:
    ExportArcs() { translation.options.chkThreePointArcs = true; }

    // A line string of one arc about a centre (metres), from one bearing on (radians) with a sweep, positive clockwise.
    void AddArc(Position centre, double radius, double bearing, double sweep, TextView type = u"ARC_CENT") {
        const Position start = PolarPoint(centre.east, centre.north, bearing, radius);
        const Position end = PolarPoint(centre.east, centre.north, bearing + sweep, radius);
        const std::int32_t first = translation.drawing.Points.UpperBound() + 1;
        for (const Position place : {start, centre, end}) {
            AddPoint({.code = u"", .east = Rounded(place.east), .north = Rounded(place.north)});
        }
        AddLine(u"KANT");
        const std::int32_t line = translation.drawing.Lines.UpperBound();
        translation.drawing.Lines[line].Flags1 = sweep < 0 ? anticlockwiseFlag : 0;
        AddSegment({.type = type, .line = line, .start = first, .end = first + 1});
        AddSegment({.type = type, .line = line, .start = first + 1, .end = first + 2});
    }

    // A quarter circle of this radius (metres), and as a second line string the whole circle.
    void AddArcAndCircle(double radius) {
        for (const Position place : {Position{radius, 0}, Position{radius, radius}, Position{0, radius}}) {
            AddPoint({.code = u"", .east = place.east, .north = place.north});
        }
        AddLine(u"KANT");
        AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
        AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
        AddLine(u"KANT");
        AddSegment({.type = u"CIRCLE_CENT", .line = 2, .start = 1, .end = 2});
        AddSegment({.type = u"CIRCLE_CENT", .line = 2, .start = 2, .end = 1});
    }

    static double Rounded(double metres) { return std::round(metres * 1000) / 1000; }

    // What reads the export back.
    void ReadBack() {
        bytes = Export();
        Prepare(back);
        back.mode = {Direction::ToIdex, translation.mode.variant};
        back.outputTo = OutputTo::Nowhere;
        back.inputBytes = bytes;
        ImportNenSuf(back);
    }

    // What is told of arcs: of points there is only that they are of the type DUMMY.
    std::string Told() const {
        std::string told;
        for (const std::string& line : SplitLines(LossOf(translation) + WantedOf(translation))) {
            if (line.find("DUMMY") == std::string::npos) told += line + "\n";
        }
        return told;
    }

    std::string bytes;
    RecordingScreen otherScreen;
    Translation back{otherScreen};
};

TEST_F(ExportArcs, AnArcIsOneGroupOfStartAPlaceOnItAndEnd) {
    AddPoint({.code = u"", .east = 10, .north = 20});
    AddPoint({.code = u"", .east = 10, .north = 15});
    AddPoint({.code = u"", .east = 15, .north = 15});
    AddLine(u"KANT");
    AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
    // (13.374, 18.690) is 2 micrometres off it.
    EXPECT_EQ(ExportObjects(), Records("03MB01      G130101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I4        X    13374Y    18690|00\n"
                                       "04I4        X    15000Y    15000|01\n"));
    EXPECT_EQ(translation.account[ObjectKind::LineSegment].written, 2);
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 2);
    EXPECT_EQ(Told(), "");
}

TEST_F(ExportArcs, WithoutTheOptionNothingIsDifferent) {
    AddArc({100, 100}, 5, 0, 1.5);
    translation.options.chkThreePointArcs = false;
    const std::string without = ExportObjects();
    EXPECT_EQ(std::count(without.begin(), without.end(), '\n'), 4);
    EXPECT_EQ(Told(), "2 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, ReadBackAnArcHasItsCentreAndItsTurningDirection) {
    const double turn = 6.28318530717958;
    std::vector<double> sweeps;
    for (const double part : {0.02, 0.1, 0.25, 0.4, 0.5, 0.6, 0.75, 0.9, 0.97}) {
        sweeps.push_back(part * turn);
        sweeps.push_back(-part * turn);
    }
    for (const double sweep : sweeps) AddArc({121000.123, 487000.456}, 7.5, 0.4, sweep);
    for (const double sweep : sweeps) AddArc({121000.123, 487000.456}, 85.25, 2.9, sweep);
    for (const Variant variant : {Variant::Nen1878, Variant::Suf2}) {
        translation.mode.variant = variant;
        ReadBack();
        const Drawing& drawing = back.drawing;
        int moved = 0;
        ASSERT_EQ(drawing.Lines.UpperBound(), translation.drawing.Lines.UpperBound());
        for (std::int32_t line = 1; line <= drawing.Lines.UpperBound(); ++line) {
            const EdgeRec& edge = drawing.Edges[2 * line - 1];
            const auto& lineType = drawing.LineType(edge);
            EXPECT_EQ(ToUtf8(lineType.TrimmedRight()), "ARC_CENT") << line;
            EXPECT_EQ(drawing.Lines[line].Flags1, translation.drawing.Lines[line].Flags1) << line;
            const PointRec& centre = drawing.Points[edge.EndPt];
            constexpr double millimetre = 0.001 + 1e-6;
            const double off = std::max(std::fabs(centre.East - 121000.123), std::fabs(centre.North - 487000.456));
            if (off <= millimetre) continue;
            // The shortest arcs, and those that nearly come back to their start, whole millimetres tell less well.
            ++moved;
            const std::int32_t place = (line - 1) % 18;
            EXPECT_TRUE(place < 2 || place >= 16) << line;
            EXPECT_LT(off, 0.5) << line;
        }
        EXPECT_GT(moved, 0);
        EXPECT_EQ(Told(), std::to_string(moved) +
                              " bogen waarvan het middelpunt uit drie punten niet op de millimeter terugkomt\n");
        translation.problems = {};
        EXPECT_EQ(back.problems.errors, 0);
    }
}

TEST_F(ExportArcs, ACircleIsTwoHalfCircles) {
    AddPoint({.code = u"", .east = 10, .north = 20});
    AddPoint({.code = u"", .east = 10, .north = 15});
    AddLine(u"KANT");
    translation.drawing.Lines[1].Flags1 = anticlockwiseFlag;
    AddSegment({.type = u"CIRCLE_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"CIRCLE_CENT", .start = 2, .end = 1});
    EXPECT_EQ(ExportObjects(), Records("03MB01      G130101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I4        X     5000Y    15000|00\n"
                                       "04I4        X    10000Y    10000|01\n"
                                       "03MB01      G130101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    10000I4        X    15000Y    15000|00\n"
                                       "04I4        X    10000Y    20000|01\n"));
    ReadBack();
    ASSERT_EQ(back.drawing.Lines.UpperBound(), 2);
    for (const std::int32_t line : {1, 2}) {
        const PointRec& centre = back.drawing.Points[back.drawing.Edges[2 * line - 1].EndPt];
        EXPECT_NEAR(centre.East, 10, 1e-9);
        EXPECT_NEAR(centre.North, 15, 1e-9);
        EXPECT_EQ(back.drawing.Lines[line].Flags1, anticlockwiseFlag);
    }
}

TEST_F(ExportArcs, AnArcWhoseCentreWouldMoveIsTold) {
    AddArc({0, 0}, 1000, 0, 0.002);  // two metres of a kilometre's radius
    ReadBack();
    EXPECT_EQ(Told(), "1 boog waarvan het middelpunt uit drie punten niet op de millimeter terugkomt\n");
    EXPECT_EQ(back.drawing.Edges.UpperBound(), 2);
}

TEST_F(ExportArcs, WhatIsNoArcStaysSegmentBySegment) {
    AddArc({0, 0}, 1000, 0, 0.000002);  // two millimetres: on one line
    AddPoint({.code = u"", .east = 30, .north = 20});
    AddSegment({.type = u"ARC_CENT", .line = 1, .start = 3, .end = 4});  // without its other half
    const std::string objects = ExportObjects();
    EXPECT_EQ(std::count(objects.begin(), objects.end(), '\n'), 6) << objects;
    EXPECT_EQ(Told(), "3 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, ArcsAndCirclesWithoutARadiusStaySegmentBySegment) {
    AddArc({100, 100}, 0, 0, 1.5);
    AddPoint({.code = u"", .east = 10, .north = 20});
    AddPoint({.code = u"", .east = 10, .north = 20});
    AddLine(u"KANT");
    AddSegment({.type = u"CIRCLE_CENT", .line = 2, .start = 4, .end = 5});
    AddSegment({.type = u"CIRCLE_CENT", .line = 2, .start = 5, .end = 4});
    ExportObjects();
    EXPECT_EQ(Told(), "4 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, AnArcWhoseEndsAreWrittenAsOnePlaceStaysSegmentBySegment) {
    AddPoint({.code = u"", .east = 9.9996, .north = 20});
    AddPoint({.code = u"", .east = 10, .north = 15});
    AddPoint({.code = u"", .east = 10.0004, .north = 20});
    AddLine(u"KANT");
    AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
    ExportObjects();
    EXPECT_EQ(Told(), "2 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, ThoseTooLargeToFindTheirCentreAgainStaySegmentBySegment) {
    AddArcAndCircle(1e200);
    ExportObjects();
    EXPECT_EQ(Told(),
              "12 coördinaten van lijnsegmenten die niet in negen posities passen\n"
              "4 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, ThoseThatReachBeyondAllNumbersEndTheExport) {
    AddArcAndCircle(1.7e308);
    EXPECT_EQ(ErrorOf([this] { ExportObjects(); }), errors::overflow);
}

TEST_F(ExportArcs, ThoseThatLoseDigitsAreToldOfTheirCentresToo) {
    AddArcAndCircle(1e17);
    ExportObjects();
    EXPECT_EQ(Told(),
              "13 coördinaten van lijnsegmenten die niet in negen posities passen\n"
              "2 bogen waarvan het middelpunt uit drie punten niet op de millimeter terugkomt\n");
}

TEST_F(ExportArcs, OneAboutSoFarACentreThatItDoesNotTurnStaysSegmentBySegment) {
    AddPoint({.code = u"", .east = 0, .north = 0.001});
    AddPoint({.code = u"", .east = 1e15, .north = 1});
    AddPoint({.code = u"", .east = 0.001, .north = 0});
    AddLine(u"KANT");
    AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
    ExportObjects();
    EXPECT_EQ(Told(),
              "2 coördinaten van lijnsegmenten die niet in negen posities passen\n"
              "2 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, ACircleOfHalfAMillimetreStaysSegmentBySegment) {
    AddPoint({.code = u"", .east = 0.0016, .north = 0.0049});
    AddPoint({.code = u"", .east = 0.0011, .north = 0.0049});
    AddLine(u"KANT");
    AddSegment({.type = u"CIRCLE_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"CIRCLE_CENT", .start = 2, .end = 1});
    ExportObjects();
    EXPECT_EQ(Told(), "2 lijnsegmenten van bogen, per segment geschreven\n");
}

TEST_F(ExportArcs, AnArcOfAnUnknownCodeIsLeftOutWhole) {
    AddArc({100, 100}, 5, 0, 1.5);
    translation.drawing.SetCode(translation.drawing.Lines[1], TextView(u"VREEMD"));
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(translation.account[ObjectKind::LineSegment].LeftOutTotal(), 2);
}

TEST_F(ExportArcs, HeightsOfBothEndsAreMeantInThePlaceBetween) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    AddPoint({.code = u"", .east = 10, .north = 20, .elevation = 1, .name = u"NAAM12345"});
    AddPoint({.code = u"", .east = 10, .north = 15});
    AddPoint({.code = u"", .east = 15, .north = 15, .elevation = 2, .name = u"NAAM12346"});
    AddLine(u"KANT");
    translation.codes.lines.rows[1].P = 1;
    AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
    std::string all;
    for (const std::string& line : SplitLines(ExportObjects())) all += line.substr(2, 60);
    EXPECT_NE(all.find("I1        NNAAM12345X    10000Y    20000Z     1000I4        X    13374Y    18690Z     1500"
                       "I4        NNAAM12346X    15000Y    15000Z     2000Q"),
              std::string::npos)
        << all;
}

TEST_F(ExportArcs, TheHeightOfOneEndIsThatOfThePlaceBetween) {
    translation.options.chkExport3D = true;
    AddPoint({.code = u"", .east = 10, .north = 20, .elevation = 1});
    AddPoint({.code = u"", .east = 10, .north = 15});
    AddPoint({.code = u"", .east = 15, .north = 15});
    AddLine(u"KANT");
    AddSegment({.type = u"ARC_CENT", .start = 1, .end = 2});
    AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
    std::string all;
    for (const std::string& line : SplitLines(ExportObjects())) all += line.substr(2, 60);
    EXPECT_NE(all.find("X    13374Y    18690Z     1000"), std::string::npos) << all;
}

}  // namespace

}  // namespace korvande::testing
