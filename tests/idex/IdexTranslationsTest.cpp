#include "idex/modExportIDEX.h"
#include "tests/idex/IdexWriterTest.h"

namespace korvande::testing {

namespace {

// A screen that does something else at every status.
class BusyScreen : public RecordingScreen {
 public:
    std::function<void()> onStatus;

    void ShowStatus(TextView text) override {
        RecordingScreen::ShowStatus(text);
        if (onStatus) onStatus();
    }
};

// A drawing with another separator and terminator than usual, and one whose values hold those.
constexpr std::string_view bars =
    "HEADER\nSEPARATOR '|'\nTERMINATOR '#'\nNAME Strepen\nFIELD_DATE 20240515\nEND HEADER\n"
    "LAYERS (LayerNo|Name)\n0|\"NUL\"#\n1|\"EEN\"#\n2|\"TWEE\"#\nEND\nDATABASE\n"
    "POINTS (PointNo|PointID|East|Elevation|Description)\n10|\"A,1\"|1.5|2.25|\"X; Y, Z\"#\n20|\"B\"|\n2.5|0|#\nEND\n"
    "LINES (LineNo|Code)\n1|\"K\"#\nEDGES (LineNo|StartPt|EndPt|LineType)\n1|10|20|CURVE#\nEND\nEND\n"
    "POLYGONS (LineNo)\n1#\nEND\n"
    "TEXT\nBOX_ON_POINT (TextBoxNo|AnchorPointNo|LayerNo)\n1|10|2#\nEND\n"
    "ITEMS (TextBoxNo|LineNo|TextItem)\n1|1|\"Dorp, aan;\"#\n1|2|\"Zee\"#\nEND\nEND TEXT\nEND DATABASE\n";
constexpr std::string_view commas =
    "HEADER\nNAME Komma's\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"STNDRD\";\nEND\nDATABASE\n"
    "POINTS (PointNo,PointID,East,Elevation,Description)\n1,\"C|2\",7.5,9.125,\"P# Q| R\";\n2,\"\",8.5,0,\"\";\n"
    "3,\"D\",9.5,1,\"\";\nEND\nLINES (LineNo,Code)\n3,\"L\";\nEND\n"
    "TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,LayerNo)\n1,3,0;\nEND\n"
    "ITEMS (TextBoxNo,LineNo,TextItem)\n1,1,\"Berg|dal#\";\nEND\nEND TEXT\nEND DATABASE\n";

// Two translations that are alive at the same time, each with a log book and options of its own: the first makes texts
// of point numbers, the second of heights, and today takes the place of its date.
class IdexTranslations : public ::testing::Test {
 protected:
    IdexTranslations() {
        first.options.chkExportPointnoAsText = true;
        first.options.txtPnoTxtLKI = u"Z01";
        second.options.chkExportHeightAsText = true;
        second.options.txtEleTxtLKI = u"Z02";
        SetDateOption(second.options, &Options::optDateNow, true);
        for (Translation* translation : {&first, &second}) translation->withDiagnosticFiles = false;
        first.log.Open(folder / "first.log");
        second.log.Open(folder / "second.log");
    }

    void ExpectBars() {
        const Drawing& drawing = first.drawing;
        EXPECT_EQ(drawing.IdexSeparator, '|');
        EXPECT_EQ(drawing.IdexTerminator, '#');
        EXPECT_EQ(ToUtf8(drawing.DrawingName), "STREPEN");
        EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024");
        EXPECT_EQ(drawing.LayerNames, (std::vector<Text>{u"NUL", u"EEN", u"TWEE"}));
        ASSERT_EQ(drawing.Points.UpperBound(), 2);
        EXPECT_EQ(Shown(drawing.Points[1].PointID()), "A,1");
        EXPECT_EQ(Shown(drawing.Description(drawing.Points[1])), "X; Y, Z");
        EXPECT_EQ(drawing.Points[2].East, 2.5);
        EXPECT_EQ(drawing.PointIndex[20], 2);
        EXPECT_EQ(drawing.Lines.UpperBound(), 1);
        ASSERT_EQ(drawing.Edges.UpperBound(), 1);
        EXPECT_EQ(drawing.Edges[1].EndPt, 2);
        EXPECT_EQ(TextsOf(drawing), "ÿZ01=A,1 ÿZ01=B TWEE=Dorp, aan; Zee ");
        EXPECT_EQ(first.account[ObjectKind::Polygon].read, polygonsOfFirst);
        EXPECT_EQ(first.inputLine, 0);
    }
    void ExpectCommas() {
        const Drawing& drawing = second.drawing;
        EXPECT_EQ(drawing.IdexSeparator, ',');
        EXPECT_EQ(drawing.IdexTerminator, ';');
        EXPECT_EQ(ToUtf8(drawing.DrawingName), "KOMMA'S");
        EXPECT_EQ(ToUtf8(drawing.DrawingDate), "01-01-2001");
        EXPECT_EQ(drawing.LayerNames, std::vector<Text>{u"STNDRD"});
        ASSERT_EQ(drawing.Points.UpperBound(), 3);
        EXPECT_EQ(Shown(drawing.Points[1].PointID()), "C|2");
        EXPECT_EQ(Shown(drawing.Description(drawing.Points[1])), "P# Q| R");
        EXPECT_EQ(drawing.PointIndex.UpperBound(), 3);
        EXPECT_EQ(drawing.Lines.UpperBound(), 3);
        EXPECT_EQ(drawing.Edges.UpperBound(), 0);
        EXPECT_EQ(TextsOf(drawing), "ÿZ02=   9,13 ÿZ02=   1,00 STNDRD=Berg|dal# ");
        EXPECT_EQ(second.account[ObjectKind::Polygon].read, 0);
        EXPECT_EQ(second.inputLine, 0);
    }

    static std::string TextsOf(const Drawing& drawing) {
        std::string texts;
        for (std::int32_t index = 1; index <= drawing.Texts.UpperBound(); ++index) {
            const TextRec& text = drawing.Texts[index];
            texts.append(Shown(drawing.Code(text))).append("=").append(Shown(text.Characters())).append(" ");
        }
        return texts;
    }

    static std::string LogOf(Translation& translation, TextView name) {
        translation.log.Close();
        std::string text = Windows1252ToUtf8(FileBytes(name));
        std::erase(text, '\r');
        return text;
    }
    std::string FirstLog() { return LogOf(first, folder / "first.log"); }
    std::string SecondLog() { return LogOf(second, folder / "second.log"); }

    EnvironmentValue now{"SOURCE_DATE_EPOCH", "978350400"};  // 1 January 2001
    TestFolder folder;
    BusyScreen screen;
    BusyScreen otherScreen;
    Translation first{screen};
    Translation second{otherScreen};
    std::int64_t polygonsOfFirst = 1;
};

TEST_F(IdexTranslations, ReadTheirFilesInTurns) {
    ASSERT_EQ(ReadInto(first, bars), "");
    ASSERT_EQ(ReadInto(second, commas), "");
    ExpectBars();
    ExpectCommas();
    ASSERT_EQ(ReadInto(first, bars), "");
    polygonsOfFirst = 2;  // what was read before is not forgotten by the account
    ExpectBars();
    ExpectCommas();
}

TEST_F(IdexTranslations, ReadTheirFilesInTheMidstOfEachOther) {
    int readings = 0;
    screen.onStatus = [&] {
        ++readings;
        EXPECT_EQ(ReadInto(second, commas), "");
        ExpectCommas();
    };
    ASSERT_EQ(ReadInto(first, bars), "");
    ExpectBars();
    // At the beginning, at each of four tables, around the edges and at the generated texts.
    EXPECT_EQ(readings, 8);
    EXPECT_EQ(screen.statuses.size(), 8U);
    EXPECT_EQ(otherScreen.statuses.size(), 8U * 5U);
}

TEST_F(IdexTranslations, KeepWhatIsWrongToThemselves) {
    const std::string broken =
        "HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nTEXT\nBOX_ON_POINT (A)\nEND\n"
        "ITEMS (LineNo,TextItem)\n2,\"X\";\n1,\"Y\";\n";
    EXPECT_EQ(ReadInto(first, broken), "error 9 in line 11");
    EXPECT_EQ(ReadInto(second, "geen tekening"), "");
    EXPECT_EQ(first.inputLine, 11);
    EXPECT_EQ(first.problems.errors, 1);
    EXPECT_EQ(second.problems.errors, 1);
    EXPECT_FALSE(first.outcome.wrongFormat);
    EXPECT_TRUE(second.outcome.wrongFormat);
    EXPECT_EQ(FirstLog(), "FOUT:  Tekstregel zonder tekst (regel 10)\n");
    EXPECT_EQ(SecondLog(), "FOUT:  Geen HEADER gevonden in het IDEX bestand\n");
}

TEST_F(IdexTranslations, ReadingEmptiesTheTallyOfTheirOwnOnly) {
    CountUnknownCode(first.unknowns, MakeFixedText<8>(u"PX"));
    CountUnknownCode(second.unknowns, MakeFixedText<8>(u"LY"));
    ASSERT_EQ(ReadInto(first, bars), "");
    EXPECT_TRUE(first.unknowns.Entries().empty());
    ASSERT_EQ(second.unknowns.Entries().size(), 1U);
    EXPECT_EQ(second.unknowns.Entries()[0].Code, MakeFixedText<8>(u"LY"));
}

TEST_F(IdexTranslations, WriteTheirFilesInTheMidstOfEachOther) {
    ASSERT_EQ(ReadInto(first, bars), "");
    ASSERT_EQ(ReadInto(second, commas), "");
    first.ProjectName = u"Eerste";
    second.ProjectName = u"Tweede";
    second.ProjectDate = DateTime{};
    CountUse(first.codes.points, 0, 3);
    CountUnknownCode(second.unknowns, MakeFixedText<8>(u"PX01"));
    const std::string firstAlone = WriteOf(first);
    const std::string secondAlone = WriteOf(second);
    const std::string firstLog = FirstLog();
    const std::string secondLog = SecondLog();
    EXPECT_NE(firstAlone.find("\"Eerste\""), std::string::npos);
    EXPECT_NE(secondAlone.find("\"Tweede\"\r\n    CREATION_DATE "), std::string::npos);
    EXPECT_NE(firstLog.find(" 3 maal\n"), std::string::npos);
    EXPECT_EQ(firstLog.find("X01    (1)"), std::string::npos);
    EXPECT_EQ(secondLog.find(" maal\n"), std::string::npos);
    EXPECT_NE(secondLog.find("X01    (1)"), std::string::npos);

    first.log.Open(folder / "first.log");
    int writings = 0;
    screen.onStatus = [&] {
        ++writings;
        second.log.Open(folder / "second.log");
        EXPECT_EQ(WriteOf(second), secondAlone);
        EXPECT_EQ(SecondLog(), secondLog);
    };
    EXPECT_EQ(WriteOf(first), firstAlone);
    EXPECT_EQ(FirstLog(), firstLog);
    EXPECT_EQ(writings, 5);
}

}  // namespace

}  // namespace korvande::testing
