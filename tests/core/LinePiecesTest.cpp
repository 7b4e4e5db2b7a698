#include "core/LinePieces.h"

#include <gtest/gtest.h>

#include <string>

namespace korvande::testing {

namespace {

class LinePieces : public ::testing::Test {
 protected:
    std::int32_t Point(double east, double north) {
        PointRec& point = drawing.Points.Append();
        point.East = east;
        point.North = north;
        return drawing.Points.UpperBound();
    }

    void Segment(std::int32_t line, std::int32_t start, std::int32_t end, TextView type) {
        drawing.Lines.GrowTo(line);
        EdgeRec& edge = drawing.Edges.Append();
        edge.LineNo = line;
        edge.StartPt = start;
        edge.EndPt = end;
        drawing.SetLineType(edge, type);
    }

    // All pieces of a line string: their kinds' letters with the points that they begin and end at, as "S1-2 A2-4".
    std::string PiecesOf(std::int32_t line) const {
        const SegmentsOfLines segments(drawing);
        std::string all;
        for (auto rest = segments.Of(line); !rest.empty();) {
            const LinePiece piece = FirstPiece(drawing, rest);
            all += std::string(all.empty() ? "" : " ") + "SAOCN"[static_cast<int>(piece.kind)];
            all += std::to_string(piece.start) + "-" + std::to_string(piece.end);
            if (piece.centre != 0) all += (piece.isAnticlockwise ? "<" : ">") + std::to_string(piece.centre);
            rest = rest.subspan(piece.segments);
        }
        return all;
    }

    Drawing drawing;
};

TEST_F(LinePieces, TwoSegmentsThroughACentreAreOneArc) {
    Point(0, 0);
    Point(10, 0);
    Point(10, 10);
    Point(20, 10);
    Point(30, 10);
    Segment(1, 1, 2, u"STRAIGHT");
    Segment(1, 2, 3, u"ARC_CENT");
    Segment(1, 3, 4, u"ARC_CENT");
    Segment(1, 4, 5, u"STRAIGHT");
    EXPECT_EQ(PiecesOf(1), "S1-2 A2-4>3 S4-5");
    drawing.Lines[1].Flags1 = 0xFF;
    EXPECT_EQ(PiecesOf(1), "S1-2 A2-4<3 S4-5");
    drawing.Lines[1].Flags1 = 0xFF - anticlockwiseFlag;
    EXPECT_EQ(PiecesOf(1), "S1-2 A2-4>3 S4-5");
}

TEST_F(LinePieces, ArcsThatFollowEachOtherArePairedOneByOne) {
    Point(0, 0);
    Point(5, 0);
    Point(10, 0);
    Point(15, 0);
    Point(20, 0);
    for (std::int32_t i = 1; i < 5; ++i) Segment(1, i, i + 1, u"ARC_CENT");
    EXPECT_EQ(PiecesOf(1), "A1-3>2 A3-5>4");
}

TEST_F(LinePieces, SegmentsOfOneLineStringArePairedWhereverTheyStand) {
    Point(0, 0);
    Point(5, 0);
    Point(10, 0);
    Segment(2, 1, 2, u"ARC_CENT");
    Segment(1, 3, 1, u"STRAIGHT");
    Segment(2, 2, 3, u"ARC_CENT");
    Segment(7, 1, 3, u"STRAIGHT");
    EXPECT_EQ(PiecesOf(2), "A1-3>2");
    EXPECT_EQ(PiecesOf(1), "S3-1");
    EXPECT_EQ(PiecesOf(7), "S1-3");
    EXPECT_EQ(PiecesOf(3), "");
    EXPECT_EQ(PiecesOf(8), "");
    EXPECT_EQ(PiecesOf(0), "");
    EXPECT_EQ(PiecesOf(-1), "");
}

TEST_F(LinePieces, ASegmentWithoutItsOtherHalfStaysStraight) {
    Point(0, 0);
    Point(5, 0);
    Point(10, 0);
    Point(50, 0);
    Segment(1, 1, 2, u"ARC_CENT");  // the last of its line string
    Segment(2, 1, 2, u"ARC_CENT");  // behind it another one goes on
    Segment(2, 2, 3, u"STRAIGHT");
    Segment(3, 1, 2, u"ARC_CENT");  // the next one begins elsewhere
    Segment(3, 3, 1, u"ARC_CENT");
    Segment(4, 1, 2, u"ARC_CENT");  // no circle goes through both ends
    Segment(4, 2, 4, u"ARC_CENT");
    Segment(5, 1, 2, u"ARC_CENT");  // of two kinds
    Segment(5, 2, 1, u"CIRCLE_CENT");
    Segment(6, 2, 2, u"ARC_CENT");  // without a radius
    Segment(6, 2, 2, u"ARC_CENT");
    EXPECT_EQ(PiecesOf(1), "S1-2");
    EXPECT_EQ(PiecesOf(2), "S1-2 S2-3");
    EXPECT_EQ(PiecesOf(3), "S1-2 S3-1");
    EXPECT_EQ(PiecesOf(4), "S1-2 S2-4");
    EXPECT_EQ(PiecesOf(5), "S1-2 S2-1");
    EXPECT_EQ(PiecesOf(6), "S2-2 S2-2");
}

TEST_F(LinePieces, ACentreThatWasMeasuredMayBeACentimetreOff) {
    Point(0, 0);
    Point(5.01, 0);
    Point(10, 0);
    Point(0, 100);
    Point(1001, 100);
    Point(2010, 100);
    Segment(1, 1, 2, u"ARC_CENT");
    Segment(1, 2, 3, u"ARC_CENT");
    Segment(2, 4, 5, u"ARC_CENT");
    Segment(2, 5, 6, u"ARC_CENT");
    EXPECT_EQ(PiecesOf(1), "A1-3>2");
    EXPECT_EQ(PiecesOf(2), "A4-6>5");
}

TEST_F(LinePieces, ACircleGoesAboutItsCentreAndBack) {
    Point(0, 0);
    Point(5, 0);
    Point(10, 0);
    Point(0, 0.0004);
    Segment(1, 1, 2, u"CIRCLE_CENT");
    Segment(1, 2, 1, u"CIRCLE_CENT");
    Segment(2, 1, 2, u"CIRCLE_CENT");  // to another place on it
    Segment(2, 2, 3, u"CIRCLE_CENT");
    Segment(3, 1, 2, u"ARC_CENT");
    Segment(3, 2, 4, u"ARC_CENT");
    EXPECT_EQ(PiecesOf(1), "O1-1>2");
    EXPECT_EQ(PiecesOf(2), "O1-3>2");
    EXPECT_EQ(PiecesOf(3), "O1-4>2");
}

TEST_F(LinePieces, SegmentsOfACurveThatGoOnFromEachOtherAreOneCurve) {
    for (int i = 0; i < 6; ++i) Point(i, i * i);
    Segment(1, 1, 2, u"CURVE_4RD");
    Segment(1, 2, 3, u"CURVE_4RD");
    Segment(1, 3, 4, u"CURVE_4RD");
    Segment(1, 5, 6, u"CURVE_4RD");  // by itself
    Segment(2, 1, 2, u"CURVE_3RD");
    Segment(2, 2, 3, u"CURVE_3RD");
    Segment(2, 3, 4, u"CURVE_4RD");
    EXPECT_EQ(PiecesOf(1), "C1-4 S5-6");
    EXPECT_EQ(PiecesOf(2), "C1-3 S3-4");
}

TEST_F(LinePieces, WhatRefersToNoPointIsNothing) {
    Point(0, 0);
    Point(5, 0);
    Segment(1, 0, 1, u"STRAIGHT");
    Segment(1, 1, 3, u"STRAIGHT");
    Segment(1, 1, 2, u"ARC_CENT");
    Segment(1, 2, 0, u"ARC_CENT");
    Segment(2, 1, 2, u"CURVE_3RD");
    Segment(2, 2, 9, u"CURVE_3RD");
    EXPECT_EQ(PiecesOf(1), "N0-0 N0-0 S1-2 N0-0");
    EXPECT_EQ(PiecesOf(2), "S1-2 N0-0");
}

TEST_F(LinePieces, SegmentsOfNoLineStringAreNobodys) {
    Point(0, 0);
    Point(5, 0);
    Segment(1, 1, 2, u"STRAIGHT");
    for (const std::int32_t line : {0, -4, 2, 1'000'000'000}) {
        EdgeRec& edge = drawing.Edges.Append();
        edge = drawing.Edges[1];
        edge.LineNo = line;
    }
    EXPECT_EQ(PiecesOf(1), "S1-2");
    EXPECT_EQ(PiecesOf(2), "");
}

}  // namespace

}  // namespace korvande::testing
