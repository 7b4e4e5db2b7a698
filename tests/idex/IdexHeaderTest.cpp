#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexHeader : public IdexTest {
 protected:
    // Reads a file with these lines in its header.
    std::string ReadHeader(std::string_view lines) {
        return Read("HEADER\n" + std::string(lines) + "END HEADER\n" + std::string(layers));
    }

    static constexpr std::string_view layers = "LAYERS (LayerNo,Name)\nEND LAYERS\nDATABASE\n";
};

TEST_F(IdexHeader, ItsSeparatorAndTerminatorHoldForTheRestOfTheFile) {
    ASSERT_EQ(Read("HEADER\n"
                   "  SEPARATOR   ';'\n"
                   "  TERMINATOR  '#'\n"
                   "END HEADER\n"
                   "LAYERS (LayerNo;Name)\n"
                   "  1;\"A,B\"#\n"
                   "END LAYERS\n"
                   "DATABASE\n"
                   "POINTS (PointNo;PointID;East)\n"
                   "  7;\"P,1\";12.5# all of this is left out; 99\n"
                   "END POINTS\n"),
              "");
    EXPECT_EQ(drawing.IdexSeparator, ';');
    EXPECT_EQ(drawing.IdexTerminator, '#');
    EXPECT_EQ(ToUtf8(drawing.LayerNames.at(1)), "A,B");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Shown(Point(1).PointID()), "P,1");
    EXPECT_EQ(Point(1).East, 12.5);
}

TEST_F(IdexHeader, ItsSeparatorAndTerminatorMayBeLettersOfAnyCase) {
    for (const std::string_view letters :
         {"SEPARATOR 'q'\nTERMINATOR 'x'\n", "SEPARATOR 'Q'\nTERMINATOR 'X'\n", "TERMINATOR 'x'\nSEPARATOR 'q'\n"}) {
        ASSERT_EQ(Read("HEADER\n" + std::string(letters) +
                       "END HEADER\n"
                       "LAYERS (LayerNoqName)\n0qAx\n1QBX\nEND LAYERS\nDATABASE\n"
                       "POINTS (PointNoqPointIDqEastqNorthQDescription)\n"
                       "1qaQ10q20qeenx weg, q\n"
                       "2Qbq11q\n21QtweeX\n"
                       "EXTRAINFO (PointNoqPointIDqEastqNorth)\n2qcq12q22x\n"
                       "END POINTS\n"
                       "LINES (LineNoqCode)\n1qmuurx\nEDGES (LineNoqStartPtqEndPtqLineType)\n"
                       "1q1q2qstraightx\nEND EDGES\nEND LINES\n"),
                  "")
            << letters;
        EXPECT_EQ(drawing.LayerNames, (std::vector<Text>{u"A", u"B"}));
        ASSERT_EQ(drawing.Points.UpperBound(), 2);
        EXPECT_EQ(Shown(Point(1).PointID()), "A");
        EXPECT_EQ(Point(1).East, 10);
        EXPECT_EQ(Point(1).North, 20);
        EXPECT_EQ(Shown(drawing.Description(Point(1))), "EEN");
        EXPECT_EQ(Shown(Point(2).PointID()), "C");
        EXPECT_EQ(Point(2).East, 12);
        EXPECT_EQ(Point(2).North, 22);
        ASSERT_EQ(drawing.Lines.UpperBound(), 1);
        EXPECT_EQ(Shown(drawing.Code(Line(1))), "MUUR");
        ASSERT_EQ(drawing.Edges.UpperBound(), 1);
        EXPECT_EQ(Edge(1).EndPt, 2);
        EXPECT_EQ(Shown(drawing.LineType(Edge(1))), "STRAIGHT");
    }
}

TEST_F(IdexHeader, OneLetterIsEnoughAndAccentedOnesAreLettersToo) {
    ASSERT_EQ(Read("HEADER\nSEPARATOR '\xE9'\nEND HEADER\nLAYERS (LayerNo\xC9Name)\n0\xE9"
                   "A;\nEND\nDATABASE\n"
                   "POINTS (PointID\xE9"
                   "East)\na\xE9"
                   "1;\nb\xC9"
                   "2\n;\nEND\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(1).East, 1);
    EXPECT_EQ(Point(2).East, 2);
    EXPECT_EQ(ToUtf8(drawing.LayerNames.at(0)), "A");
    for (const std::string_view letter : {"TERMINATOR 'x'\n", "TERMINATOR 'x'\nSEPARATOR ','\n"}) {
        ASSERT_EQ(Read("HEADER\n" + std::string(letter) +
                       "END HEADER\nLAYERS ()\nEND\nDATABASE\n"
                       "POINTS (PointID,East)\na,1x,\nb,\n2x\nEND\n"),
                  "")
            << letter;
        ASSERT_EQ(drawing.Points.UpperBound(), 2);
        EXPECT_EQ(Point(2).East, 2);
    }
}

TEST_F(IdexHeader, ALetterSeparatesTextsAsACapitalOnlyForTheyKeepTheirOwnLetters) {
    ASSERT_EQ(Read("HEADER\nSEPARATOR 'q'\nTERMINATOR 'z'\nEND HEADER\nLAYERS (LayerNoqName)\n0qAz\nEND\nDATABASE\n"
                   "TEXT\nBOX_ON_POINT (TextBoxNoqAnchorPointNo)\n1Q7Z\nEND\n"
                   "ITEMS (TextBoxNoqLineNoqTextItem)\n1Q1QAquarel, zonZ\nEND\nEND TEXT\n"),
              "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(TextAt(1).AnchorPointNo, 7);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Aquarel, zon");
}

TEST_F(IdexHeader, WithoutThemFieldsAreSeparatedByCommasAlsoAfterAnotherFile) {
    ASSERT_EQ(ReadHeader("SEPARATOR ';'\nTERMINATOR '#'\n"), "");
    ASSERT_EQ(ReadHeader(""), "");
    EXPECT_EQ(drawing.IdexSeparator, ',');
    EXPECT_EQ(drawing.IdexTerminator, ';');
}

TEST_F(IdexHeader, TheSeparatorIsTheSecondCharacterOfItsValueAndABlankWhenThereIsNone) {
    ASSERT_EQ(ReadHeader("SEPARATOR \"|\"\nTERMINATOR\n"), "");
    EXPECT_EQ(drawing.IdexSeparator, '|');
    EXPECT_EQ(drawing.IdexTerminator, ' ');
}

TEST_F(IdexHeader, ItsNameIsTheRestOfTheLineInCapitals) {
    ASSERT_EQ(ReadHeader("NAME   \"Caf\xE9 de Zon\"  \n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "\"CAFÉ DE ZON\"");
    ASSERT_EQ(ReadHeader(""), "");
    EXPECT_TRUE(drawing.DrawingName.empty());
}

TEST_F(IdexHeader, KeywordsAreTakenInAnyCaseAndBehindTabs) {
    ASSERT_EQ(ReadHeader("\tSeparator\t';'\n\t name \t Kaart\t\n"), "");
    EXPECT_EQ(drawing.IdexSeparator, ';');
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "KAART");
}

TEST_F(IdexHeader, AKeywordMustBeTheWholeFirstWord) {
    ASSERT_EQ(ReadHeader("SEPARATORS ';'\nNAMES Kaart\nTERMINATOR';'\n"), "");
    EXPECT_EQ(drawing.IdexSeparator, ',');
    EXPECT_TRUE(drawing.DrawingName.empty());
}

TEST_F(IdexHeader, OtherKeywordsAndTheEndsOfBlocksAreSkipped) {
    ASSERT_EQ(ReadHeader("VERSION 1.20\nUNITS\nLINEAR METRE\nEND UNITS\nPROJECT\nCREATION_DATE 01-02-2003\n"
                         "END PROJECT\nEND\nFIELD_DATE 20240515\n"),
              "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024");
}

TEST_F(IdexHeader, ItBeginsAtTheFirstLineThatHoldsTheWordAndEndsAtEndHeader) {
    ASSERT_EQ(
        Read("NAME Before\n  this is the header: \nNAME Inside\nend \t Header\nNAME Behind\n" + std::string(layers)),
        "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "INSIDE");
}

TEST_F(IdexHeader, OneThatTheFileDoesNotEndEndsWithTheFile) {
    OpenLog();
    EXPECT_EQ(Read("HEADER\nNAME Kaart\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "KAART");
    EXPECT_EQ(LogText(),
              "FOUT:  Geen LAYERS gevonden in het IDEX bestand\n"
              "       Een bestand zonder LAYERS, zoals van een instrument, wordt gelezen met --instrument; het venster "
              "vraagt ernaar.\n");
}

TEST_F(IdexHeader, TheWordEofEndsItToo) {
    ASSERT_EQ(Read("HEADER\nEOF\nNAME Kaart\n" + std::string(layers)), "");
    EXPECT_TRUE(drawing.DrawingName.empty());
}

TEST_F(IdexHeader, AFieldworkDateOfEightDigitsIsTurnedAround) {
    ASSERT_EQ(ReadHeader("FIELD_DATE  20240515\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024");
    ASSERT_EQ(ReadHeader("FIELD_DATE  \"20240516\"\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "16-05-2024");
}

TEST_F(IdexHeader, AnyOtherFieldworkDateIsKept) {
    ASSERT_EQ(ReadHeader("FIELD_DATE 15-05-2024/12:30:00\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024/12:30:00");
}

TEST_F(IdexHeader, WithoutAFieldworkDateThereIsNone) {
    ASSERT_EQ(ReadHeader("FIELD_DATE 20240515\n"), "");
    ASSERT_EQ(ReadHeader(""), "");
    EXPECT_TRUE(drawing.DrawingDate.empty());
}

TEST_F(IdexHeader, TodayMayTakeThePlaceOfItsDate) {
    const EnvironmentValue now("SOURCE_DATE_EPOCH", "1715731200");  // 15 May 2024
    SetDateOption(translation.options, &Options::optDateNow, true);
    ASSERT_EQ(ReadHeader("FIELD_DATE 20010203\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024");
}

TEST_F(IdexHeader, ADateTypedByThePersonMayTakeThePlaceOfItsDate) {
    SetDateOption(translation.options, &Options::optDateAlt, true);
    translation.options.txtAltDatum = u"  op 20231224 ";
    ASSERT_EQ(ReadHeader("FIELD_DATE 20010203\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "24-12-2023");

    // Only the last eight characters count.
    translation.options.txtAltDatum = u"24-12-2023";
    ASSERT_EQ(ReadHeader(""), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "-12-2023");

    translation.options.txtAltDatum = u"  ";
    ASSERT_EQ(ReadHeader("FIELD_DATE 20010203\n"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "");
}

class IdexLayers : public IdexTest {
 protected:
    std::string ReadLayers(std::string_view rows, std::string_view columns = "(LayerNo,Name,Flags)") {
        std::string file = "HEADER\nEND HEADER\nDEFINITIONS\n  LAYERS ";
        file.append(columns).append("\n").append(rows);
        return Read(file + "  END LAYERS\nEND DEFINITIONS\nDATABASE\n");
    }
    std::string Name(std::size_t number) const { return ToUtf8(drawing.LayerNames.at(number)); }
};

TEST_F(IdexLayers, AreKeptByTheirNumberInCapitalsAndWithoutQuotes) {
    ASSERT_EQ(ReadLayers("  0,\"Stndrd\",00000001;\n  4,\"caf\xE9 \"\"X\"\"\",00000001;\n  2,Kaal;\n"), "");
    ASSERT_EQ(drawing.LayerNames.size(), 5U);
    EXPECT_EQ(Name(0), "STNDRD");
    EXPECT_EQ(Name(1), "");
    EXPECT_EQ(Name(2), "KAAL");
    EXPECT_EQ(Name(3), "");
    EXPECT_EQ(Name(4), "CAFÉ ''X''");
}

TEST_F(IdexLayers, OfAnEarlierFileAreForgotten) {
    ASSERT_EQ(ReadLayers("0,\"A\";\n9,\"B\";\n"), "");
    ASSERT_EQ(ReadLayers("1,\"C\";\n"), "");
    ASSERT_EQ(drawing.LayerNames.size(), 2U);
    EXPECT_EQ(Name(0), "");
    EXPECT_EQ(Name(1), "C");
}

TEST_F(IdexLayers, EmptyLinesAreNoRowsAndALaterRowReplacesAnEarlierOne) {
    ASSERT_EQ(ReadLayers("1,\"A\";\n\n \t \n1,\"B\";\n"), "");
    EXPECT_EQ(Name(0), "");
    EXPECT_EQ(Name(1), "B");
}

TEST_F(IdexLayers, TheNumberOfOneReachesToAMillion) {
    ASSERT_EQ(ReadLayers("1000000,\"HOOG\";\n"), "");
    EXPECT_EQ(Name(1'000'000), "HOOG");
    EXPECT_EQ(ReadLayers("1,\"A\";\n1000001,\"TE HOOG\";\n"), "error 9 in line 6");
    EXPECT_EQ(ReadLayers("-1,\"NEGATIEF\";\n"), "error 9 in line 5");
    EXPECT_EQ(ReadLayers("3000000000,\"OVERLOOP\";\n"), "error 6 in line 5");
}

TEST_F(IdexLayers, ANumberAboveAMillionMayBeTenTimesTheRowsReadSoFar) {
    std::string rows;
    for (int i = 1; i <= 100'000; ++i) rows += "1,\"A\";\n";
    // The row itself counts: 100001 rows allow 1000010.
    ASSERT_EQ(ReadLayers(rows + "1000010,\"HOOG\";\n"), "");
    EXPECT_EQ(Name(1'000'010), "HOOG");
    EXPECT_EQ(ReadLayers(rows + "1000011,\"TE HOOG\";\n"), "error 9 in line 100005");
}

TEST_F(IdexLayers, ATableWithoutItsEndIsAnError) {
    EXPECT_EQ(Read("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n1,\"A\";\n"), "error 62 in line 4");
    EXPECT_EQ(Name(1), "A");
}

TEST_F(IdexLayers, TheTableIsTheFirstLineThatStartsWithTheWord) {
    ASSERT_EQ(
        Read("HEADER\nEND HEADER\nMY LAYERS (LayerNo,Name)\n\tlayers(LayerNo,Name)\n1,\"A\";\nend layers\nDATABASE\n"),
        "");
    EXPECT_EQ(Name(1), "A");
}

}  // namespace

}  // namespace korvande::testing
