#include "core/modKORVANDE.h"

#include <gtest/gtest.h>
#include <array>

#include "tests/core/Allocations.h"

namespace korvande::testing {

namespace {

class DrawingTest : public ::testing::Test {
 protected:
    DrawingTest() {
        ResetDrawing();
        TheDrawing().LayerNames.clear();
        TheDrawing().DrawingName.clear();
    }

    Drawing& drawing = TheDrawing();
};

TEST_F(DrawingTest, ResettingEmptiesEveryArrayAndTheTally) {
    drawing.Points.Append().PointNo = 7;
    drawing.Lines.Append().Flags1 = 1;
    drawing.Edges.Append().LineNo = 1;
    drawing.Texts.Append().AnchorPointNo = 7;
    drawing.Points[0].East = 5;
    drawing.PointIndex.Set(7, 1);
    CountUnknownCode(MakeFixedText<8>(u"PA01"));
    drawing.IdexSeparator = ';';
    drawing.IdexTerminator = '#';
    drawing.DrawingDate = u"01-02-2024";

    ResetDrawing();

    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(drawing.Lines.UpperBound(), 0);
    EXPECT_EQ(drawing.Edges.UpperBound(), 0);
    EXPECT_EQ(drawing.Texts.UpperBound(), 0);
    EXPECT_EQ(drawing.Points[0].East, 0);
    EXPECT_EQ(drawing.PointIndex.UpperBound(), 0);
    EXPECT_EQ(drawing.PointIndex.Find(7), 0);
    EXPECT_TRUE(drawing.UnknownCodes.Entries().empty());
    EXPECT_EQ(drawing.IdexSeparator, ',');
    EXPECT_EQ(drawing.IdexTerminator, ';');
    EXPECT_EQ(drawing.DrawingDate, u"");
}

TEST_F(DrawingTest, ResettingKeepsTheNameAndTheLayers) {
    drawing.DrawingName = u"STRAAT";
    drawing.LayerNames = {u"", u"STNDRD"};
    ResetDrawing();
    EXPECT_EQ(drawing.DrawingName, u"STRAAT");
    EXPECT_EQ(drawing.LayerNames.size(), 2U);
}

TEST_F(DrawingTest, FieldsAreCutToTheirWidths) {
    PointRec& point = drawing.Points.Append();
    point.PointID = u"1234567890";
    point.Code = u"ABCDEFGH";
    point.Description = Text(90, u'd');
    EXPECT_EQ(point.PointID.View(), TextView(u"123456789"));
    EXPECT_EQ(point.Code.View(), TextView(u"ABCDEFG"));
    EXPECT_EQ(point.Description.View(), Text(80, u'd'));
    TextRec& text = drawing.Texts.Append();
    text.Text = Text(48, u't');
    EXPECT_EQ(text.Text.View(), Text(47, u't'));
    EXPECT_EQ(decltype(LineRec::Description)::width, 53U);
    EXPECT_EQ(decltype(EdgeRec::LineType)::width, 12U);
    EXPECT_EQ(decltype(UnknownCodeRec::Code)::width, 8U);
}

TEST_F(DrawingTest, LineNumbersWithGapsLeaveRecordsThatWereNeverFilled) {
    for (const int number : {1, 2, 7}) {
        drawing.Lines.GrowTo(number);
        drawing.Lines[number].Code = u"L01";
    }
    EXPECT_EQ(drawing.Lines.UpperBound(), 7);
    for (int number = 3; number <= 6; ++number) {
        EXPECT_TRUE(drawing.Lines[number].Code.NeverFilled());
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

TEST_F(DrawingTest, UnknownCodesAreCountedInOrderOfFirstOccurrence) {
    for (const TextView code : {u"LB02", u"PA01", u"LB02", u"TC03", u"LB02", u"PA01"}) {
        CountUnknownCode(MakeFixedText<8>(code));
    }
    const auto& entries = drawing.UnknownCodes.Entries();
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].Code, MakeFixedText<8>(u"LB02"));
    EXPECT_EQ(entries[0].Count, 3);
    EXPECT_EQ(entries[1].Code, MakeFixedText<8>(u"PA01"));
    EXPECT_EQ(entries[1].Count, 2);
    EXPECT_EQ(entries[2].Code, MakeFixedText<8>(u"TC03"));
    EXPECT_EQ(entries[2].Count, 1);
}

TEST_F(DrawingTest, CodesAreComparedExactly) {
    CountUnknownCode(MakeFixedText<8>(u"PA01"));
    CountUnknownCode(MakeFixedText<8>(u"Pa01"));
    CountUnknownCode(MakeFixedText<8>(u"PA01   X"));
    FixedText<8> neverFilled = MakeFixedText<8>(u"P");
    neverFilled.characters.back() = u'\0';
    CountUnknownCode(neverFilled);
    CountUnknownCode(MakeFixedText<8>(u"P"));
    EXPECT_EQ(drawing.UnknownCodes.Entries().size(), 5U);
}

TEST_F(DrawingTest, SortedCodesAreStillFound) {
    for (const TextView code : {u"TC03", u"LB02", u"PA01", u"LB01", u"TC03"}) {
        CountUnknownCode(MakeFixedText<8>(code));
    }
    drawing.UnknownCodes.Sort();
    CountUnknownCode(MakeFixedText<8>(u"PA01"));
    CountUnknownCode(MakeFixedText<8>(u"TC03"));
    std::string tally;
    for (const auto& [code, count] : drawing.UnknownCodes.Entries()) {
        tally += ToUtf8(Concat(code.TrimmedRight(), u"=", count, u" "));
    }
    EXPECT_EQ(tally, "LB01=1 LB02=1 PA01=2 TC03=3 ");
}

TEST_F(DrawingTest, AfterAResetCountingBeginsAgain) {
    CountUnknownCode(MakeFixedText<8>(u"PA01"));
    ResetDrawing();
    CountUnknownCode(MakeFixedText<8>(u"TB02"));
    CountUnknownCode(MakeFixedText<8>(u"PA01"));
    const auto& entries = drawing.UnknownCodes.Entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].Code, MakeFixedText<8>(u"TB02"));
    EXPECT_EQ(entries[1].Count, 1);
}

TEST_F(DrawingTest, CountingACodeThatIsThereTakesNoHeap) {
    const auto code = MakeFixedText<8>(u"LABCDEFG");
    CountUnknownCode(code);
    EXPECT_EQ(AllocationsOf([&] { CountUnknownCode(code); }).blocks, 0U);
    EXPECT_EQ(drawing.UnknownCodes.Entries()[0].Count, 2);
}

std::string Quoted(std::int32_t pointIndex) {
    std::array<char, 11> bytes{};
    return {bytes.data(), QuotedPointID(pointIndex, bytes.data())};
}

TEST_F(DrawingTest, APointsNameIsTrimmedInPlaceAndQuoted) {
    drawing.Points.Append().PointID = u"  12a";
    EXPECT_EQ(Quoted(1), "\"12a\"");
    EXPECT_EQ(drawing.Points[1].PointID.View(), TextView(u"12a      "));
    drawing.Points.Append().PointID = u"";
    EXPECT_EQ(Quoted(2), "\"\"");
    drawing.Points.Append().PointID = u"€é";
    EXPECT_EQ(Quoted(3), "\"\x80\xE9\"");
}

TEST_F(DrawingTest, APointsNameOfFullLengthIsQuotedWhole) {
    drawing.Points.Append().PointID = u"123456789";
    EXPECT_EQ(Quoted(1), "\"123456789\"");
}

}  // namespace

}  // namespace korvande::testing
