#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportLines : public ExportTest {
 protected:
    ExportLines() {
        AddBarePoints();
        AddLine(u"KANT");
    }

    std::int64_t Left(LeftOut reason) {
        return translation.account[ObjectKind::LineSegment].leftOut[static_cast<std::size_t>(reason)];
    }
    std::int64_t Written() { return translation.account[ObjectKind::LineSegment].written; }

    // The log book's lines that begin with "FOUT:  ".
    std::string Errors() {
        std::string errors;
        for (const std::string& line : SplitLines(LogText())) {
            if (line.rfind("FOUT:  ", 0) == 0) errors += line + "\n";
        }
        return errors;
    }
};

TEST_F(ExportLines, ASegmentIsAGroupOfTwoRecords) {
    AddSegment({});
    EXPECT_EQ(ExportObjects(), Records("03MB01      G120101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I2        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, ASegmentInSuf2) {
    AddSegment({});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MB01      G 30 01   BBRON  0  |01\n"
                                             "04I1        X    10000Y    20000I2        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, AnArcHasAMarkerAndAKindOfItsOwn) {
    AddSegment({.type = u"ARC_CENT"});
    EXPECT_EQ(ExportObjects(), Records("03MB01      G130101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I4        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, AnArcInSuf2) {
    AddSegment({.type = u"ARC_CENT"});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MB01      G 40 01   BBRON  0  |01\n"
                                             "04I1        X    10000Y    20000I4        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, CurvesAreWrittenAsStraightSegmentsAndCirclesAsArcs) {
    for (const TextView type : {u"STRAIGHT", u"CURVE_3RD", u"CURVE_4RD", u"CIRCLE_CENT", u"ARC_CENT"}) {
        AddSegment({.type = type});
    }
    std::string markersAndKinds;
    for (const std::string& line : SplitLines(ExportObjects())) {
        markersAndKinds += line.substr(0, 2) == "03" ? line.substr(12, 5) + " " : line.substr(32, 2) + "\n";
    }
    EXPECT_EQ(markersAndKinds, "G1201 I2\nG1201 I2\nG1201 I2\nG1301 I4\nG1301 I4\n");
    EXPECT_EQ(Written(), 5);
}

TEST_F(ExportLines, ASegmentOfAnotherLineTypeIsLookedUpButNotWritten) {
    for (const TextView type : {u"SPLINE", u"ARC_3PT", u"", u"\"STRAIGHT\"", u"STRAIGHTS"}) AddSegment({.type = type});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::LineType), 5);
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 5);
}

TEST_F(ExportLines, BoundariesAreWrittenLikeLines) {
    AddRow(translation.codes.lines, {u"GRENS", u"A01", types::boundary});
    AddLine(u"GRENS");
    AddSegment({.line = 2});
    EXPECT_EQ(ExportObjects(), Records("03MA01      G120101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I2        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, SegmentsOfOtherTypesAreLookedUpButNotWritten) {
    AddRow(translation.codes.lines, {u"HULP", u"B98", types::dummy});
    AddRow(translation.codes.lines, {u"PUNT", u"B99", types::point});
    AddLine(u"HULP");
    AddLine(u"PUNT");
    AddSegment({.line = 2});
    AddSegment({.line = 3});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::Dummy), 1);
    EXPECT_EQ(Left(LeftOut::OtherType), 1);
    EXPECT_EQ(translation.codes.lines.rows[2].Count, 1);
    EXPECT_EQ(translation.codes.lines.rows[3].Count, 1);
}

TEST_F(ExportLines, TheQualityOfALineGoesOnOnASecondLine) {
    AddRow(translation.codes.lines, {u"MUUR", u"B02", types::line, u"Muur", 1, 2, 3});
    AddLine(u"MUUR");
    AddSegment({.line = 2});
    AddSegment({.type = u"ARC_CENT", .line = 2});
    EXPECT_EQ(ExportObjects(), Records("03MB02      G120101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I2        X    11000Y    22000|00\n"
                                       "04Q  1  2  3|01\n"
                                       "03MB02      G130101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I4        X    11000Y    22000|00\n"
                                       "04Q  1  2  3|01\n"));
}

TEST_F(ExportLines, TheQualityOfALineInSuf2BeginsWithK) {
    AddRow(translation.codes.lines, {u"MUUR", u"B02", types::line, u"Muur", 0, 0, 4});
    AddLine(u"MUUR");
    AddSegment({.line = 2});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MB02      G 30 01   BBRON  0  |01\n"
                                             "04I1        X    10000Y    20000I2        X    11000Y    22000|00\n"
                                             "04K  0  0  4|01\n"));
}

TEST_F(ExportLines, NamesAndHeightsOfBothPointsAreWrittenWithTheirOptions) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    AddPoint({.code = u"", .east = 1, .north = 2, .elevation = 3, .name = u"A"});
    AddPoint({.code = u"", .east = 4, .north = 5, .elevation = 6, .name = u"B"});
    AddSegment({.start = 3, .end = 4});
    EXPECT_EQ(ExportObjects(), Records("03MB01      G120101   BBRON  0  |00\n"
                                       "04I1        NA        X     1000Y     2000Z     3000I2        |00\n"
                                       "04NB        X     4000Y     5000Z     6000|01\n"));
}

TEST_F(ExportLines, ASegmentRunsFromItsStartToItsEndPoint) {
    AddSegment({.start = 2, .end = 1});
    EXPECT_EQ(SplitLines(ExportObjects())[1] + "\n",
              Records("04I1        X    11000Y    22000I2        X    10000Y    20000|01\n"));
}

TEST_F(ExportLines, SegmentsAreWrittenInTheirOwnOrder) {
    AddRow(translation.codes.lines, {u"MUUR", u"B02", types::line});
    AddLine(u"MUUR");
    for (const std::int32_t line : {2, 1, 2}) AddSegment({.line = line});
    std::string codes;
    for (const std::string& line : SplitLines(ExportObjects())) {
        if (line.substr(0, 2) == "03") codes += line.substr(3, 4);
    }
    EXPECT_EQ(codes, "B02 B01 B02 ");
}

TEST_F(ExportLines, AnUnknownLineIsLeftOutButCountedWhenUnknownsAreOff) {
    AddLine(u"RAAR");
    AddSegment({.line = 2});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 1);
}

TEST_F(ExportLines, AnUnknownLineIsWrittenWithTheUnknownRowWhenUnknownsAreOn) {
    translation.options.chkExportUnknowns = true;
    AddLine(u"RAAR");
    AddSegment({.line = 2});
    EXPECT_EQ(ExportObjects(), Records("03MQ00      G120101   BBRON  0  |00\n"
                                       "04I1        X    10000Y    20000I2        X    11000Y    22000|01\n"));
}

TEST_F(ExportLines, ALineTableWithoutRowsLeavesItsSegmentsOut) {
    translation.codes.lines.rows.clear();
    translation.codes.lines.RowsChanged();
    AddSegment({});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
}

TEST_F(ExportLines, ASegmentThatRefersToAPointNeverReadIsLeftOutAndLogged) {
    AddSegment({.start = 0});
    AddSegment({.end = 0});
    AddSegment({.end = 3});
    AddSegment({.start = -1});
    AddSegment({});
    EXPECT_EQ(SplitLines(ExportObjects()).size(), 2U);
    EXPECT_EQ(Left(LeftOut::NoReference), 4);
    EXPECT_EQ(Written(), 1);
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 1) << "what is left out so is not looked up";
    EXPECT_EQ(Errors(),
              "FOUT:  Lijnsegment 1 verwijst naar een onbekend punt\n"
              "FOUT:  Lijnsegment 2 verwijst naar een onbekend punt\n"
              "FOUT:  Lijnsegment 3 verwijst naar een onbekend punt\n"
              "FOUT:  Lijnsegment 4 verwijst naar een onbekend punt\n");
}

TEST_F(ExportLines, ASegmentThatRefersToALineNeverReadIsLeftOutAndLogged) {
    for (const std::int32_t line : {0, -1, 2, 1}) AddSegment({.line = line});
    EXPECT_EQ(SplitLines(ExportObjects()).size(), 2U);
    EXPECT_EQ(Left(LeftOut::NoReference), 3);
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 0);
    EXPECT_EQ(Errors(),
              "FOUT:  Lijnsegment 1 verwijst naar een onbekende lijn\n"
              "FOUT:  Lijnsegment 2 verwijst naar een onbekende lijn\n"
              "FOUT:  Lijnsegment 3 verwijst naar een onbekende lijn\n");
}

TEST_F(ExportLines, TheUnknownPointIsToldBeforeTheUnknownLine) {
    AddSegment({.line = 9, .start = 9});
    ExportObjects();
    EXPECT_EQ(Errors(), "FOUT:  Lijnsegment 1 verwijst naar een onbekend punt\n");
}

TEST_F(ExportLines, ABlankLineInAGapOfNumbersIsFoundByItsBlankCode) {
    AddLine(u"");
    AddSegment({.line = 2});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 1);
}

TEST_F(ExportLines, LinesWithoutSegmentsWriteNothing) {
    AddLine(u"KANT");
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 0);
}

}  // namespace
}  // namespace korvande::testing
