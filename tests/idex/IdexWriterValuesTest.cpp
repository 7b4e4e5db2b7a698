#include <limits>

#include "idex/modExportIDEX.h"
#include "tests/core/ErrorOf.h"
#include "tests/idex/IdexWriterTest.h"

namespace korvande::testing {

namespace {

class IdexWriterValues : public IdexWriterTest {
 protected:
    // The k-th row behind the table's header, without the blanks before it; lines end in a line feed.
    std::string Row(std::string_view table, int number = 1) {
        const std::string tables = WriteTables();
        std::size_t at = tables.find(" " + std::string(table) + " (");
        EXPECT_NE(at, std::string::npos) << table;
        for (int i = 0; i < number; ++i) at = tables.find('\n', at) + 1;
        at = tables.find_first_not_of(' ', at);
        return tables.substr(at, tables.find('\n', at) - at);
    }

    // The east, north, elevation and direction of a point as they are written.
    std::string PointRow(double east, double north = 0, double elevation = 0, double direction = 0) {
        ResetDrawing(drawing);
        AddPoint(drawing, {u"", east, north, elevation, u"", u"", direction});
        return Row("POINTS");
    }
    std::string East(double east) { return PointRow(east).substr(5, 16); }
    std::string Direction(double direction) {
        const std::string row = PointRow(0, 0, 0, direction);
        return row.substr(row.size() - 10);
    }

    // The direction of a text as it is written.
    std::string TextDirection(float direction) {
        ResetDrawing(drawing);
        AddText(drawing, 1, u"T", 1, direction);
        return Row("BOX_ON_POINT").substr(std::string_view("1, 1 , 1 , 0,").size());
    }

    // The item that a text gives.
    std::string Item(TextView text) {
        ResetDrawing(drawing);
        AddText(drawing, 1, text);
        return Row("ITEMS").substr(std::string_view("1, 1 , 1, 1,").size());
    }
};

TEST_F(IdexWriterValues, CoordinatesHaveFourDecimalsAndFifteenColumns) {
    EXPECT_EQ(East(1234.5), "1234.5000      ,");
    EXPECT_EQ(East(0), "0.0000         ,");
    EXPECT_EQ(East(0.00005), "0.0001         ,");
    EXPECT_EQ(East(0.00004), "0.0000         ,");
    EXPECT_EQ(East(155000.12345), "155000.1235    ,");
    EXPECT_EQ(PointRow(1, -2.25, 3.99999),
              "1,\"\",1.0000         ,-2.2500        ,4.0000         ,\"\",\"\",0.0000   ;");
}

TEST_F(IdexWriterValues, ANegativeNumberHasItsSignBeforeTheFirstDigit) {
    EXPECT_EQ(East(-1234.5), "-1234.5000     ,");
    EXPECT_EQ(East(-0.25), "-0.2500        ,");
    EXPECT_EQ(East(-0.00001), "0.0000         ,");
    EXPECT_EQ(Direction(-12.5), "-12.5000 ;");
}

TEST_F(IdexWriterValues, WhatIsWiderThanItsColumnsIsCut) {
    EXPECT_EQ(East(1234567890.12345), "1234567890.1235,");
    EXPECT_EQ(East(123456789012.5), "123456789012.50,");
    EXPECT_EQ(East(1e20), "100000000000000,");
    EXPECT_EQ(East(-1e20), "-10000000000000,");
    EXPECT_EQ(Direction(399.9999), "399.9999 ;");
    EXPECT_EQ(Direction(12345.6789), "12345.678;");
    EXPECT_EQ(Direction(1e15), "100000000;");
}

TEST_F(IdexWriterValues, ANumberThatIsNoneOverflowsAndLeavesItsRowOut) {
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        ResetDrawing(drawing);
        AddPoint(drawing, {u"A"});
        AddPoint(drawing, {u"B", 1, value});
        OpenMemory(translation);
        EXPECT_EQ(ErrorOf([this] { WriteIdexFile(translation); }), errors::overflow);
        translation.output.Close();
        EXPECT_TRUE(translation.outputBytes.ends_with(",\"\",\"\",0.0000   ;\r\n"));
    }
}

TEST_F(IdexWriterValues, TheDirectionOfATextHasTwoBlanksAndThreeDecimalsInNineColumns) {
    EXPECT_EQ(TextDirection(0), "  0.000  ;");
    EXPECT_EQ(TextDirection(50), "  50.000 ;");
    EXPECT_EQ(TextDirection(399.9996F), "  400.000;");
    EXPECT_EQ(TextDirection(12.3456F), "  12.346 ;");
    EXPECT_EQ(TextDirection(-5.25F), "  -5.250 ;");
    EXPECT_EQ(TextDirection(-105.25F), "  -105.25;");
    EXPECT_EQ(TextDirection(123456), "  123456.;");
}

TEST_F(IdexWriterValues, QuotesAndTerminatorsInsideQuotesAreReplaced) {
    AddPoint(drawing, {u"A\";B", 0, 0, 0, u"C\";D", u"12\" buis; rond, 'grijs'", 0});
    AddLine(drawing, u"E\";F");
    AddEdge(drawing, 1, 1, 1);
    AddText(drawing, 1, u"G\"H;I'J");
    translation.ProjectName = u"De \"kaart\"; blad 1";
    EXPECT_EQ(
        Row("POINTS"),
        "1,\"A',B\",0.0000         ,0.0000         ,0.0000         ,\"C',D\",\"12' buis, rond, 'grijs'\",0.0000   ;");
    EXPECT_EQ(Row("LINES"), "1,\"E',F\",00000000 00000000,00000000 00000000;");
    EXPECT_EQ(Row("EDGES"), "1,1, \"A',B\",1, \"A',B\",STRAIGHT    ;");
    EXPECT_EQ(Row("ITEMS"), "1, 1 , 1, 1,\"G'H,I'J\";");
    EXPECT_NE(WriteLines().find("NAME          \"De 'kaart', blad 1\"\n"), std::string::npos);
}

TEST_F(IdexWriterValues, AProjectNameOfAnyLengthIsWritten) {
    translation.ProjectName = Text(300'000, u'n');
    EXPECT_NE(Write().find("NAME          \"" + std::string(300'000, 'n') + "\"\r\n"), std::string::npos);
}

TEST_F(IdexWriterValues, AccentsAreWrittenInWindows1252AndOthersAsQuestionMarks) {
    EXPECT_EQ(Item(u"Café €5 Œuvre"),
              "\"Caf\xE9 \x80"
              "5 \x8Cuvre\";");
    EXPECT_EQ(Item(u"Łódź"),
              "\"?\xF3"
              "d?\";");
}

TEST_F(IdexWriterValues, ATextIsTrimmed) {
    EXPECT_EQ(Item(u"  A  B  "), "\"A  B\";");
    EXPECT_EQ(Item(u"   "), "\"\";");
}

TEST_F(IdexWriterValues, OfAPointsCodeAndDescriptionTheBlanksBehindThemAreLeftOutAndOfItsNameAll) {
    AddPoint(drawing, {u" 7 ", 0, 0, 0, u" C ", u"  D ", 0});
    EXPECT_EQ(Row("POINTS"), "1,\"7\",0.0000         ,0.0000         ,0.0000         ,\" C\",\"  D\",0.0000   ;");
}

TEST_F(IdexWriterValues, ALinesCodeIsTrimmed) {
    AddLine(drawing, u"  L1 ");
    EXPECT_EQ(Row("LINES"), "1,\"L1\",00000000 00000000,00000000 00000000;");
}

TEST_F(IdexWriterValues, GapsInTheLineNumbersAreRowsWithoutCodeAndFlags) {
    AddLine(drawing, u"A", 5, 256);
    drawing.Lines.GrowTo(3);  // as never filled
    AddLine(drawing, u"");    // as an IDEX file leaves it
    AddLine(drawing, u"E");
    constexpr std::string_view none = ",\"\",00000000 00000000,00000000 00000000;";
    EXPECT_EQ(Row("LINES", 1), "1,\"A\",00000000 00000101,00000001 00000000;");
    EXPECT_EQ(Row("LINES", 2), "2" + std::string(none));
    EXPECT_EQ(Row("LINES", 3), "3" + std::string(none));
    EXPECT_EQ(Row("LINES", 4), "4" + std::string(none));
    EXPECT_EQ(Row("LINES", 5), "5,\"E\",00000000 00000000,00000000 00000000;");
}

TEST_F(IdexWriterValues, TextsThatWereNeverFilledAreEmpty) {
    drawing.Points.Append();
    drawing.Lines.Append();
    drawing.Edges.Append();  // from and to element 0, which was never filled either
    drawing.Texts.Append();
    EXPECT_EQ(Row("POINTS"), "1,\"\",0.0000         ,0.0000         ,0.0000         ,\"\",\"\",0.0000   ;");
    EXPECT_EQ(Row("LINES"), "1,\"\",00000000 00000000,00000000 00000000;");
    EXPECT_EQ(Row("EDGES"), "0,0, \"\",0, \"\",            ;");
    EXPECT_EQ(Row("ITEMS"), "1, 1 , 1, 1,\"\";");
    EXPECT_EQ(Write().find('\0'), std::string::npos);
}

TEST_F(IdexWriterValues, ATextThatBeginsWithACharacterZeroIsWrittenWhole) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Item(u"\0straat"sv), "\"\0straat\";"sv);
}

TEST_F(IdexWriterValues, FlagWordsHaveSixteenBits) {
    AddLine(drawing, u"A", 65535, 65536);
    AddLine(drawing, u"B", -1, 0x1234);
    EXPECT_EQ(Row("LINES", 1), "1,\"A\",11111111 11111111,11111111 11111111;");
    EXPECT_EQ(Row("LINES", 2), "2,\"B\",00000000 00000000,00010010 00110100;");
}

TEST_F(IdexWriterValues, ALineTypeIsWrittenAsItStandsAtFullWidth) {
    AddPoint(drawing, {});
    AddEdge(drawing, -12, 1, 1, u"\"A;B\" CURVE C");
    EXPECT_EQ(Row("EDGES"), "-12,1, \"\",1, \"\",\"A;B\" CURVE ;");
}

TEST_F(IdexWriterValues, NumbersOfAnchorsArePrinted) {
    AddText(drawing, -5, u"T", -3, 0);
    AddText(drawing, 2'000'000'000, u"T", 9, 0);
    EXPECT_EQ(Row("BOX_ON_POINT", 1), "1,-5 ,-3 , 0,  0.000  ;");
    EXPECT_EQ(Row("BOX_ON_POINT", 2), "2, 2000000000 , 9 , 0,  0.000  ;");
}

TEST_F(IdexWriterValues, TheWidestRowsAreWrittenWhole) {
    const Text wide(80, u'w');
    constexpr double large = -1e300;
    AddPoint(drawing, {wide, large, large, large, wide, wide, large});
    const std::string number =
        "-"
        "10000000000000,";
    EXPECT_EQ(Row("POINTS"), "1,\"wwwwwwwww\"," + number + number + number + "\"wwwwwww\",\"" + std::string(80, 'w') +
                                 "\",-10000000;");
    AddText(drawing, 1, wide);
    EXPECT_EQ(Row("ITEMS"), "1, 1 , 1, 1,\"" + std::string(47, 'w') + "\";");
}

}  // namespace

}  // namespace korvande::testing
