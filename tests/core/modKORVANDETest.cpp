#include "core/modKORVANDE.h"

#include <gtest/gtest.h>

#include "tests/core/Allocations.h"

namespace korvande::testing {

namespace {

class DrawingTest : public ::testing::Test {
 protected:
    Drawing drawing;
};

TEST_F(DrawingTest, ResettingEmptiesEveryArray) {
    drawing.Points.Append().PointNo = 7;
    drawing.Lines.Append().Flags1 = 1;
    drawing.Edges.Append().LineNo = 1;
    drawing.Texts.Append().AnchorPointNo = 7;
    drawing.Points[0].East = 5;
    drawing.PointIndex.Set(7, 1);
    drawing.SetCode(drawing.Points[1], TextView(u"BOOM"));
    drawing.SetCode(drawing.Lines[1], TextView(u"MUUR"));
    drawing.SetLineType(drawing.Edges[1], TextView(u"STRAIGHT"));
    drawing.SetCode(drawing.Texts[1], TextView(u"NAAM"));
    drawing.IdexSeparator = ';';
    drawing.IdexTerminator = '#';
    drawing.DrawingDate = u"01-02-2024";

    ResetDrawing(drawing);

    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(drawing.Lines.UpperBound(), 0);
    EXPECT_EQ(drawing.Edges.UpperBound(), 0);
    EXPECT_EQ(drawing.Texts.UpperBound(), 0);
    EXPECT_EQ(drawing.Points[0].East, 0);
    EXPECT_EQ(drawing.PointKinds.Count(), 1U);
    EXPECT_EQ(drawing.LineKinds.Count(), 1U);
    EXPECT_EQ(drawing.LineTypes.Count(), 1U);
    EXPECT_EQ(drawing.TextCodes.Count(), 1U);
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 0);
    EXPECT_EQ(drawing.PointIndex.Find(7), 0);
    EXPECT_EQ(drawing.IdexSeparator, ',');
    EXPECT_EQ(drawing.IdexTerminator, ';');
    EXPECT_EQ(drawing.DrawingDate, u"");
}

TEST_F(DrawingTest, ResettingKeepsTheNameAndTheLayers) {
    drawing.DrawingName = u"STRAAT";
    drawing.LayerNames = {u"", u"STNDRD"};
    ResetDrawing(drawing);
    EXPECT_EQ(drawing.DrawingName, u"STRAAT");
    EXPECT_EQ(drawing.LayerNames.size(), 2U);
}

TEST_F(DrawingTest, TextsAreCutToTheirWidths) {
    const Text longText(90, u'x');
    PointRec& point = drawing.Points.Append();
    point.SetPointID(longText);
    drawing.SetCode(point, longText);
    drawing.SetDescription(point, longText);
    EXPECT_EQ(point.PointID().View(), Text(9, u'x'));
    EXPECT_EQ(drawing.Code(point).View(), Text(7, u'x'));
    EXPECT_EQ(drawing.Description(point).View(), Text(80, u'x'));
    LineRec& line = drawing.Lines.Append();
    drawing.SetCode(line, longText);
    drawing.SetDescription(line, longText);
    EXPECT_EQ(drawing.Code(line).View(), Text(7, u'x'));
    EXPECT_EQ(drawing.Description(line).View(), Text(53, u'x'));
    EdgeRec& edge = drawing.Edges.Append();
    drawing.SetLineType(edge, longText);
    EXPECT_EQ(drawing.LineType(edge).View(), Text(12, u'x'));
    TextRec& text = drawing.Texts.Append();
    text.SetCharacters(longText);
    drawing.SetCode(text, longText);
    EXPECT_EQ(text.Characters().View(), Text(47, u'x'));
    EXPECT_EQ(drawing.Code(text).View(), Text(7, u'x'));
}

TEST_F(DrawingTest, TextsAreTakenFromTheBytesOfAFileInCapitalsWhereThatIsAsked) {
    constexpr std::string_view bytes = "caf\xE9";
    PointRec& point = drawing.Points.Append();
    point.SetPointID(bytes);
    EXPECT_EQ(point.PointID().TrimmedRight(), TextView(u"café"));
    point.SetPointID(bytes, Letters::Capitals);
    drawing.SetCode(point, bytes, Letters::Capitals);
    drawing.SetDescription(point, bytes, Letters::Capitals);
    EXPECT_EQ(point.PointID().TrimmedRight(), TextView(u"CAFÉ"));
    EXPECT_EQ(drawing.Code(point).TrimmedRight(), TextView(u"CAFÉ"));
    EXPECT_EQ(drawing.Description(point).TrimmedRight(), TextView(u"CAFÉ"));
    LineRec& line = drawing.Lines.Append();
    drawing.SetCode(line, bytes);
    drawing.SetDescription(line, bytes, Letters::Capitals);
    EXPECT_EQ(drawing.Code(line).TrimmedRight(), TextView(u"café"));
    EXPECT_EQ(drawing.Description(line).TrimmedRight(), TextView(u"CAFÉ"));
    EdgeRec& edge = drawing.Edges.Append();
    drawing.SetLineType(edge, bytes, Letters::Capitals);
    EXPECT_EQ(drawing.LineType(edge).TrimmedRight(), TextView(u"CAFÉ"));
    TextRec& text = drawing.Texts.Append();
    text.SetCharacters(bytes);
    drawing.SetCode(text, bytes);
    EXPECT_EQ(text.Characters().TrimmedRight(), TextView(u"café"));
    EXPECT_EQ(drawing.Code(text).TrimmedRight(), TextView(u"café"));
}

TEST_F(DrawingTest, WhatRecordsHaveInCommonIsKeptOnce) {
    PointRec& first = drawing.Points.Append();
    PointRec& second = drawing.Points.Append();
    for (PointRec* const point : {&first, &second}) {
        drawing.SetCode(*point, TextView(u"BOOM"));
        drawing.SetDescription(*point, TextView(u"EIK"));
    }
    EXPECT_EQ(Drawing::KindOf(first), Drawing::KindOf(second));
    drawing.SetCode(second, TextView(u"PAAL"));
    EXPECT_NE(Drawing::KindOf(first), Drawing::KindOf(second));
    EXPECT_EQ(drawing.Code(first).TrimmedRight(), TextView(u"BOOM"));
    EXPECT_EQ(drawing.Code(second).TrimmedRight(), TextView(u"PAAL"));
    EXPECT_EQ(drawing.Description(second).TrimmedRight(), TextView(u"EIK"));
    EXPECT_EQ(drawing.CodeBytes(second).View(), "PAAL   ");
}

TEST_F(DrawingTest, TextsOfRecordsThatWereNeverSetWereNeverFilled) {
    EXPECT_TRUE(drawing.Code(drawing.Points.Append()).NeverFilled());
    EXPECT_TRUE(drawing.Description(drawing.Lines.Append()).NeverFilled());
    EXPECT_TRUE(drawing.LineType(drawing.Edges.Append()).NeverFilled());
    EXPECT_TRUE(drawing.Code(drawing.Texts.Append()).NeverFilled());
}

TEST_F(DrawingTest, LineNumbersWithGapsLeaveRecordsThatWereNeverFilled) {
    for (const int number : {1, 2, 7}) {
        drawing.Lines.GrowTo(number);
        drawing.SetCode(drawing.Lines[number], TextView(u"L01"));
    }
    EXPECT_EQ(drawing.Lines.UpperBound(), 7);
    for (int number = 3; number <= 6; ++number) {
        EXPECT_TRUE(drawing.Code(drawing.Lines[number]).NeverFilled());
        EXPECT_EQ(drawing.Lines[number].Flags1, 0);
        EXPECT_EQ(drawing.Lines[number].Flags2, 0);
    }
}

TEST_F(DrawingTest, ALowerPointNumberLeavesTheIndexAtItsSize) {
    drawing.PointIndex.Set(900, 1);
    drawing.PointIndex.Set(3, 2);
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 900);
    EXPECT_EQ(drawing.PointIndex[900], 1);
    EXPECT_EQ(drawing.PointIndex[3], 2);
}

TEST_F(DrawingTest, TwoDrawingsHaveNothingInCommon) {
    Drawing other;
    drawing.Points.Append().PointNo = 7;
    drawing.PointIndex.Set(7, 1);
    drawing.LayerNames = {u"STNDRD"};
    EXPECT_EQ(other.Points.UpperBound(), 0);
    EXPECT_EQ(other.PointIndex.Find(7), 0);
    EXPECT_TRUE(other.LayerNames.empty());
    other.Points.Append().PointNo = 8;
    ResetDrawing(other);
    EXPECT_EQ(drawing.Points[1].PointNo, 7);
}

}  // namespace

}  // namespace korvande::testing
