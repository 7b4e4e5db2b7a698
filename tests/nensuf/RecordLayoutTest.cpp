#include "nensuf/RecordLayout.h"

#include <cmath>
#include <limits>

#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class RecordLayout : public ExportTest {
 protected:
    RecordLayout() { AddPoint({.code = u""}); }

    // The bytes that writing one record makes.
    std::string Written(std::string_view buffer, std::string_view tail, int closingFlag) {
        std::string bytes;
        LineWriter output;
        output.OpenBytes(bytes);
        RecordText record;
        record.Put(buffer);
        WriteRecord(output, variant, record, tail, closingFlag);
        output.Close();
        return bytes;
    }
    std::vector<std::string> WrittenLines(std::string_view buffer, std::string_view tail = {}) {
        std::string bytes = Written(buffer, tail, 1);
        std::erase(bytes, '\r');
        return SplitLines(bytes);
    }

    // A record of type 04 with this many characters, all of them different from their neighbours.
    static std::string RecordOf(std::size_t length) {
        std::string record = "04";
        while (record.size() < length) record.push_back(static_cast<char>('A' + record.size() % 26));
        return record;
    }

    static std::string Millimetres(double metres) {
        RecordText field;
        field.PutMillimetres('X', metres);
        return std::string(field.View());
    }

    PointRec& ThePoint() { return translation.drawing.Points[1]; }
    std::string Coordinates() { return std::string(FormatCoordinates(translation.options, ThePoint()).View()); }

    std::string DateOf(TextView date) {
        translation.drawing.DrawingDate = date;
        return FormatFieldworkDate(translation.drawing, translation.log);
    }
    std::string SourceBlock() { return FormatSourceBlock(translation.owner); }

    Variant variant = Variant::Nen1878;
};

using Lines = std::vector<std::string>;

TEST_F(RecordLayout, ARecordIsALineOf64ColumnsThatEndsInCrLf) {
    EXPECT_EQ(Written("06A20Tpaal", "", 1), "06A20Tpaal" + std::string(52, ' ') + "01\r\n");
}

TEST_F(RecordLayout, ARecordOf62CharactersFillsItsLine) {
    EXPECT_EQ(WrittenLines(RecordOf(62)), Lines{RecordOf(62) + "01"});
}

TEST_F(RecordLayout, ARecordOf63To65CharactersLosesWhatIsBehindColumn62) {
    for (const std::size_t length : {63U, 64U, 65U}) {
        EXPECT_EQ(WrittenLines(RecordOf(length)), Lines{RecordOf(62) + "01"}) << length;
    }
}

TEST_F(RecordLayout, ARecordOf66CharactersContinuesOnASecondLine) {
    const std::string record = RecordOf(66);
    EXPECT_EQ(WrittenLines(record),
              (Lines{record.substr(0, 62) + "00", "04" + record.substr(62) + std::string(56, ' ') + "01"}));
}

TEST_F(RecordLayout, AContinuationToo63To65CharactersLongLosesWhatIsBehindColumn62) {
    for (const std::size_t length : {123U, 124U, 125U}) {
        const std::string record = RecordOf(length);
        EXPECT_EQ(WrittenLines(record), (Lines{record.substr(0, 62) + "00", "04" + record.substr(62, 60) + "01"}))
            << length;
    }
}

TEST_F(RecordLayout, ARecordOf126CharactersTakesThreeLines) {
    const std::string record = RecordOf(126);
    EXPECT_EQ(WrittenLines(record), (Lines{record.substr(0, 62) + "00", "04" + record.substr(62, 60) + "00",
                                           "04" + record.substr(122) + std::string(56, ' ') + "01"}));
}

TEST_F(RecordLayout, TheTailCountsAsPartOfTheRecord) {
    const std::string record = RecordOf(72);
    EXPECT_EQ(WrittenLines(record.substr(0, 62), record.substr(62)), WrittenLines(record));
    EXPECT_EQ(WrittenLines(record.substr(0, 62), record.substr(62)).size(), 2U);
}

TEST_F(RecordLayout, AnEmptyBufferWritesNothingNotEvenItsTail) { EXPECT_EQ(Written("", "Q  1  2  3", 1), ""); }

TEST_F(RecordLayout, ABareRecordTypeIsNotWritten) {
    EXPECT_EQ(Written("04", "", 1), "");
    EXPECT_EQ(Written("0", "4", 1), "");
    EXPECT_EQ(Written("0", "", 1), "");
    EXPECT_EQ(WrittenLines("04", "I"), Lines{"04I" + std::string(59, ' ') + "01"});
}

TEST_F(RecordLayout, Nen1878EndsARecordWithTheLastDigitOfTheClosingFlag) {
    const auto endCode = [this](int closingFlag) { return Written("03M", "", closingFlag).substr(62, 2); };
    EXPECT_EQ(endCode(0), "00");
    EXPECT_EQ(endCode(1), "01");
    EXPECT_EQ(endCode(12), "02");
    EXPECT_EQ(endCode(-3), "03");
}

TEST_F(RecordLayout, Suf2EndsEveryRecordWith01WhateverTheClosingFlag) {
    variant = Variant::Suf2;
    EXPECT_EQ(Written("03M", "", 0).substr(62, 2), "01");
    EXPECT_EQ(Written("03M", "", 2).substr(62, 2), "01");
    const std::string twoLines = Written(RecordOf(66), "", 0);
    EXPECT_EQ(twoLines.substr(62, 2), "00");
    EXPECT_EQ(twoLines.substr(66 + 62, 2), "01");
}

TEST_F(RecordLayout, TheClosingRecordIs99And62Spaces) {
    std::string bytes;
    LineWriter output;
    output.OpenBytes(bytes);
    WriteClosingRecord(output);
    output.Close();
    EXPECT_EQ(bytes, "99" + std::string(62, ' ') + "\r\n");
}

TEST_F(RecordLayout, ARecordTextHoldsNoMoreThanItsCapacity) {
    RecordText record;
    record.Put(std::string(RecordText::capacity, 'A'));
    EXPECT_EQ(ErrorOf([&] { record.Put("B"); }), errors::subscriptOutOfRange);
    EXPECT_EQ(record.View(), std::string(RecordText::capacity, 'A'));
}

TEST_F(RecordLayout, FieldsPutTogetherInPlaceAreTheLinesOfTheRecordThatTheyMake) {
    for (const Variant each : {Variant::Nen1878, Variant::Suf2}) {
        variant = each;
        for (std::size_t count = 1; count <= 13; ++count) {
            for (const int flag : {goesOn, closesGroup}) {
                std::string fields;
                for (std::size_t i = 0; i < count; ++i) fields.append(10, static_cast<char>('A' + i));
                std::string bytes;
                LineWriter output;
                output.OpenBytes(bytes);
                RecordLines lines(output, variant);
                lines.Begin("04");
                lines.PutFields(fields.substr(0, 10));
                lines.PutFields(fields.substr(10));
                lines.End(flag);
                lines.PutLine(OneLine(variant, "06", "A20T", flag));
                lines.Finish();
                output.Close();
                EXPECT_EQ(bytes, Written("04" + fields, "", flag) + Written("06A20T", "", flag)) << count << flag;
            }
        }
    }
}

TEST_F(RecordLayout, ALineMadeBeforeIsTheRecordThatItHolds) {
    for (const std::size_t length : {0U, 1U, 59U, 60U}) {
        const std::string data(length, 'x');
        const PhysicalLine line = OneLine(Variant::Nen1878, "03", data, closesGroup);
        EXPECT_EQ(std::string_view(line.data(), line.size()), "03" + data + std::string(60 - length, ' ') + "01\r\n");
    }
    const PhysicalLine line = OneLine(Variant::Suf2, "03", "M", goesOn);
    EXPECT_EQ(std::string_view(line.data(), line.size()), "03M" + std::string(59, ' ') + "01\r\n");
}

TEST_F(RecordLayout, TextsBecomeOneByteForEachCharacter) {
    RecordText record;
    record.Put(u"Café €5 \u0416");
    EXPECT_EQ(record.View(),
              "Caf\xE9 \x80"
              "5 ?");
}

TEST_F(RecordLayout, LengthsAreWholeMillimetresOnTheRightOfNineColumns) {
    EXPECT_EQ(Millimetres(123456.7895), "X123456790");
    EXPECT_EQ(Millimetres(1), "X     1000");
    EXPECT_EQ(Millimetres(0), "X        0");
    EXPECT_EQ(Millimetres(-12.345), "X   -12345");
    EXPECT_EQ(Millimetres(-99999.999), "X-99999999");
    EXPECT_EQ(Millimetres(999999.999), "X999999999");
}

TEST_F(RecordLayout, HalfAMillimetreRoundsAwayFromZero) {
    EXPECT_EQ(Millimetres(0.0005), "X        1");
    EXPECT_EQ(Millimetres(-0.0005), "X       -1");
    EXPECT_EQ(Millimetres(1.0005), "X     1001");
    EXPECT_EQ(Millimetres(2.0025), "X     2003");
    EXPECT_EQ(Millimetres(0.00049), "X        0");
}

TEST_F(RecordLayout, ALengthThatRoundsToZeroCarriesNoMinusSign) {
    EXPECT_EQ(Millimetres(-0.0004), "X        0");
    EXPECT_EQ(Millimetres(-0.0), "X        0");
}

TEST_F(RecordLayout, ALengthOfMoreThanNineCharactersKeepsTheRightmostNine) {
    EXPECT_EQ(Millimetres(1000000), "X000000000");
    EXPECT_EQ(Millimetres(1234567.891), "X234567891");
    EXPECT_EQ(Millimetres(-100000), "X100000000");
    EXPECT_EQ(Millimetres(-1234567.891), "X234567891");
}

TEST_F(RecordLayout, ALengthOfMoreThanFifteenDigitsIsTakenByItsFirstFifteen) {
    EXPECT_EQ(Millimetres(1234567890123.456), "X890123460");
    EXPECT_EQ(Millimetres(-1e300), "X000000000");
}

TEST_F(RecordLayout, ALengthThatIsNoFiniteNumberOfMillimetresIsAnOverflow) {
    for (const double metres : {1e306, std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_EQ(ErrorOf([&] { Millimetres(metres); }), errors::overflow) << metres;
    }
}

TEST_F(RecordLayout, CoordinatesAreXAndY) {
    ThePoint().Elevation = 1.5;
    ThePoint().SetPointID(u"P1");
    EXPECT_EQ(Coordinates(), "X   100000Y   200000");
}

TEST_F(RecordLayout, ThePointNumberFieldHoldsTheNameInNineColumns) {
    translation.options.chkExportPointnoAsField = true;
    ThePoint().SetPointID(u"P1");
    EXPECT_EQ(Coordinates(), "NP1       X   100000Y   200000");
    ThePoint().SetPointID(u"ABCDEFGHIJ");
    EXPECT_EQ(Coordinates(), "NABCDEFGHIX   100000Y   200000");
}

TEST_F(RecordLayout, ABlankNameHasNoPointNumberField) {
    translation.options.chkExportPointnoAsField = true;
    EXPECT_EQ(Coordinates(), "X   100000Y   200000");
}

TEST_F(RecordLayout, TheHeightFieldComesWithThe3DOption) {
    translation.options.chkExport3D = true;
    ThePoint().Elevation = -1.25;
    EXPECT_EQ(Coordinates(), "X   100000Y   200000Z    -1250");
}

TEST_F(RecordLayout, AHeightOfZeroHasNoHeightField) {
    translation.options.chkExport3D = true;
    EXPECT_EQ(Coordinates(), "X   100000Y   200000");
    ThePoint().Elevation = 0.0001;
    EXPECT_EQ(Coordinates(), "X   100000Y   200000Z        0");
}

TEST_F(RecordLayout, NameAndHeightStandBeforeAndBehindTheCoordinates) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    ThePoint().Elevation = 2;
    ThePoint().SetPointID(u"P1");
    EXPECT_EQ(Coordinates(), "NP1       X   100000Y   200000Z     2000");
}

TEST_F(RecordLayout, APointNeedsNoPlaceInADrawing) {
    PointRec point{};
    point.SetPointID(u"P1");
    point.East = 3;
    point.North = 4;
    EXPECT_EQ(FormatCoordinates(translation.options, point).View(), "X     3000Y     4000");
}

TEST_F(RecordLayout, TheQualityFieldTakesTheLastDigitsOfPIAndB) {
    EXPECT_EQ(FormatQuality(variant, 1, 2, 3), "Q  1  2  3");
    EXPECT_EQ(FormatQuality(variant, 12, 0, -37), "Q  2  0  7");
    EXPECT_EQ(FormatQuality(variant, 32767, -32768, 10), "Q  7  8  0");
}

TEST_F(RecordLayout, TheQualityFieldBeginsWithKInSuf2) {
    variant = Variant::Suf2;
    EXPECT_EQ(FormatQuality(variant, 1, 2, 3), "K  1  2  3");
}

TEST_F(RecordLayout, AFieldworkDateIsWrittenAsYearMonthAndDay) {
    EXPECT_EQ(DateOf(u"15-05-2024"), "D 20240515");
    EXPECT_EQ(DateOf(u"5/6/2024"), "D 20240605");
    EXPECT_EQ(DateOf(u"5.6.2024"), "D 20240605");
    EXPECT_EQ(DateOf(u"5:6:2024"), "D 20240605");
    EXPECT_EQ(DateOf(u"2024-06-05"), "D 20240605");
    EXPECT_EQ(DateOf(u"05-06-2024-12:30:00"), "D 20240605");
    EXPECT_EQ(LogText(), "");
}

TEST_F(RecordLayout, AFieldworkDateWithAShortYearIsWidened) {
    EXPECT_EQ(DateOf(u"05-06-24"), "D 20240605");
    EXPECT_EQ(DateOf(u"05-06-29"), "D 20290605");
    EXPECT_EQ(DateOf(u"05-06-30"), "D 19300605");
    EXPECT_EQ(DateOf(u"05-06-99"), "D 19990605");
    EXPECT_EQ(DateOf(u"05-06-104"), "D 20040605");
}

TEST_F(RecordLayout, ADrawingWithoutAFieldworkDateHasAnEmptyFieldAndNoMessage) {
    EXPECT_EQ(DateOf(u""), "");
    EXPECT_EQ(DateOf(u"   "), "");
    EXPECT_EQ(LogText(), "");
}

TEST_F(RecordLayout, AnInvalidFieldworkDateIsLeftOutWithAMessage) {
    std::string messages;
    for (const TextView date : {u"31-02-2024", u"voorjaar", u"15-05", u"15-05-4", u"15-mei-2024", u"20240515"}) {
        EXPECT_EQ(DateOf(date), "") << ToUtf8(date);
        messages += "Tekening bevat ongeldige veldwerkdatum, wordt weggelaten...\n";
    }
    EXPECT_EQ(translation.problems.errors, 0);
    EXPECT_EQ(LogText(), messages);
}

TEST_F(RecordLayout, TheSourceBlockHoldsTheTrimmedSourceInFiveColumns) {
    EXPECT_EQ(SourceBlock(), "BBRON  0  ");
    translation.owner.Source = u"VOSAI";
    EXPECT_EQ(SourceBlock(), "BVOSAI 0  ");
    translation.owner.Source = u"  AB";
    EXPECT_EQ(SourceBlock(), "BAB    0  ");
    translation.owner.Source = u"é";
    EXPECT_EQ(SourceBlock(), "B\xE9     0  ");
}

TEST_F(RecordLayout, ABlankSourceGivesTenSpaces) {
    translation.owner.Source = u"";
    EXPECT_EQ(SourceBlock(), std::string(10, ' '));
}

}  // namespace
}  // namespace korvande::testing
