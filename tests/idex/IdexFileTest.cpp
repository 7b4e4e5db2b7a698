#include <algorithm>

#include "core/modScreen.h"
#include "idex/modImportIDEX.h"
#include "tests/core/ErrorOf.h"
#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexFile : public IdexTest {
 protected:
    // Reads the file of this name and gives the log book's text.
    std::string LogOfReading(TextView name) {
        OpenLog();
        translation.inputBytes.reset();
        translation.IdexFileName = name;
        ReadIdexFile(translation);
        return LogText();
    }

    // The lines that the log book holds after a file of these bytes.
    std::string LogOf(std::string_view bytes) {
        OpenLog();
        EXPECT_EQ(Read(bytes), "");
        return LogText();
    }

    bool IsEmpty() const {
        return drawing.Points.UpperBound() == 0 && drawing.Lines.UpperBound() == 0 && drawing.Edges.UpperBound() == 0 &&
               drawing.Texts.UpperBound() == 0 && drawing.PointIndex.UpperBound() == 0;
    }

    // How far a drawing has been read.
    std::string Counts() const {
        std::string counts;
        for (const std::int32_t count : {drawing.Points.UpperBound(), drawing.Lines.UpperBound(),
                                         drawing.Edges.UpperBound(), drawing.Texts.UpperBound()}) {
            counts += (counts.empty() ? "" : " ") + std::to_string(count);
        }
        return counts;
    }

    static std::string SmallDrawing() {
        return "HEADER\n  SEPARATOR   ','\n  PROJECT\n    NAME  \"Klein\"\n  END PROJECT\n  FIELD_DATE 20240515\n"
               "END HEADER\n\nDEFINITIONS\n  LAYERS (LayerNo,Name)\n    0,  \"STNDRD\";\n    1,  \"TEKST\";\n"
               "  END LAYERS\nEND DEFINITIONS\n\nDATABASE\n" +
               SmallTables() + "END DATABASE\n";
    }
    static std::string SmallTables() {
        return "  POINTS (PointNo,PointID,East,North,Description)\n    1,\"A\",1.5,2.5,\"12\\\" buis\";\n"
               "    2,\"B\",\n    3.5,4.5,\"\";\n    EXTRAINFO (PointNo,Code)\n    2,\"X\";\n    END EXTRAINFO\n"
               "  END POINTS\n"
               "  LINES (LineNo,Code,Flags1)\n    1,\"K\",00000101;\n    EDGES (LineNo,StartPt,EndPt,LineType)\n"
               "      1,1,2,STRAIGHT;\n      EXTRAINFO (A)\n      1;\n      END EXTRAINFO\n    END EDGES\n  END LINES\n"
               "  POLYGONS (LineNo)\n    1;\n  END POLYGONS\n"
               "  TEXT\n    BOXES\n      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n"
               "        1,1,5,1,50.0;\n      END BOX_ON_POINT\n    END BOXES\n"
               "    ITEMS (TextItemNo,TextBoxNo,TextPropertyNo,LineNo,TextItem)\n      1,1,1,1,\"Straat\";\n"
               "      2,1,1,2,\"naam\";\n    END ITEMS\n  END TEXT\n";
    }
};

TEST_F(IdexFile, AWholeDrawingIsRead) {
    ASSERT_EQ(Read(SmallDrawing()), "");
    EXPECT_EQ(Counts(), "2 1 1 1");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "12' BUIS");
    EXPECT_EQ(Shown(drawing.Code(Point(2))), "X");
    EXPECT_EQ(Line(1).Flags1, 5);
    EXPECT_EQ(Edge(1).EndPt, 2);
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Straat naam");
    EXPECT_EQ(Shown(drawing.Code(TextAt(1))), "TEKST");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(IdexFile, ThatIsReadByItsNameGivesWhatItsBytesGive) {
    EXPECT_EQ(LogOfReading(folder.Write("test.idx", SmallDrawing())), "");
    EXPECT_EQ(Counts(), "2 1 1 1");
    EXPECT_EQ(drawing.Description(Point(1)), MakeFixedText<80>(u"12' BUIS"));
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Straat naam");
    EXPECT_TRUE(screen.messages.empty());

    translation.IdexFileName = folder.Write("test.idx", FileWith("POINTS (PointNo)\n1;\n-1;\nEND\n"));
    EXPECT_EQ(ErrorOf([this] { ReadIdexFile(translation); }), errors::subscriptOutOfRange);
    EXPECT_EQ(translation.inputLine, firstLineOfTables + 2);
    EXPECT_EQ(Counts(), "1 0 0 0");
}

TEST_F(IdexFile, ItsBytesInMemoryTakeThePlaceOfTheOneThatIsNamed) {
    translation.IdexFileName = folder / "missing.idx";
    ASSERT_EQ(Read(SmallDrawing()), "");
    EXPECT_EQ(Counts(), "2 1 1 1");
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_FALSE(translation.outcome.inputUnreadable);
}

TEST_F(IdexFile, LinesEndAtCrLfAtLfAndAtCr) {
    for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
        std::string bytes = SmallDrawing();
        for (std::size_t at = 0; (at = bytes.find('\n', at)) != std::string::npos; at += lineEnd.size()) {
            bytes.replace(at, 1, lineEnd);
        }
        ASSERT_EQ(Read(bytes), "");
        EXPECT_EQ(Counts(), "2 1 1 1");
        EXPECT_EQ(Shown(TextAt(1).Characters()), "Straat naam");
    }
}

TEST_F(IdexFile, LineNumbersOfErrorsCountWhateverEndsThem) {
    for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
        std::string bytes;
        for (const std::string_view line :
             {"HEADER", "END HEADER", "", "LAYERS ()", "END", "DATABASE", "", "POINTS (PointNo)", "-1;"}) {
            bytes.append(line).append(lineEnd);
        }
        EXPECT_EQ(Read(bytes), "error 9 in line 9");
    }
}

TEST_F(IdexFile, TheLastLineNeedsNoEnd) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOINTS (PointNo)\n1;\nEND"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
}

TEST_F(IdexFile, ALastByte1AIsNoCharacterOfIt) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\nPOINTS (PointNo)\n1;\nEND\n\x1A"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Read("HEADER\nNAME AB\x1A"), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "AB");
}

TEST_F(IdexFile, ThatBeginsWithAByteOrderMarkIsUtf8) {
    ASSERT_EQ(Read("\xEF\xBB\xBF" + FileWith("POINTS (PointNo,Description)\n1,\"café €\";\nEND\n"
                                             "TEXT\nBOX_ON_POINT (A)\n1;\nEND\n"
                                             "ITEMS (TextBoxNo,LineNo,TextItem)\n1,1,\"Zürich\";\nEND\n")),
              "");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "CAFÉ €");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "Zürich");
}

TEST_F(IdexFile, ANewOneTakesThePlaceOfTheOneBefore) {
    ASSERT_EQ(Read(SmallDrawing()), "");
    CountUnknownCode(translation.unknowns, MakeFixedText<8>(u"PX"));
    ASSERT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nDATABASE\n"), "");
    EXPECT_TRUE(IsEmpty());
    EXPECT_TRUE(translation.unknowns.Entries().empty());
    EXPECT_TRUE(drawing.DrawingDate.empty());
}

TEST_F(IdexFile, WithoutAHeaderIsNotRead) {
    for (const std::string_view bytes : {"", "\n", "x", "POINTS (PointNo)\n1;\nEND\n", "\x1A"}) {
        translation.outcome = {};
        translation.problems = {};
        EXPECT_EQ(LogOf(bytes), "FOUT:  Geen HEADER gevonden in het IDEX bestand\n") << bytes;
        EXPECT_TRUE(IsEmpty()) << bytes;
        EXPECT_TRUE(translation.outcome.wrongFormat) << bytes;
        EXPECT_EQ(translation.problems.errors, 1) << bytes;
    }
}

TEST_F(IdexFile, WithoutLayersStaysEmpty) {
    const std::string log = LogOf("HEADER\nFIELD_DATE 20240515\nEND HEADER\nDATABASE\nPOINTS (PointNo)\n1;\nEND\n");
    EXPECT_EQ(log,
              "FOUT:  Geen LAYERS gevonden in het IDEX bestand\n"
              "       Een bestand zonder LAYERS, zoals van een instrument, wordt gelezen met --instrument; het venster "
              "vraagt ernaar.\n");
    EXPECT_TRUE(IsEmpty());
    EXPECT_EQ(ToUtf8(drawing.DrawingDate), "15-05-2024");
    EXPECT_FALSE(translation.outcome.wrongFormat);
}

TEST_F(IdexFile, WithoutADatabaseKeepsItsLayers) {
    const std::string log =
        LogOf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n1,\"A\";\nEND\nPOINTS (PointNo)\n1;\nEND\n");
    EXPECT_EQ(log, "FOUT:  Geen DATABASE gevonden in het IDEX bestand\n");
    EXPECT_TRUE(IsEmpty());
    EXPECT_EQ(drawing.LayerNames.size(), 2U);
}

TEST_F(IdexFile, TheWordDatabaseMayStandAnywhereInItsLine) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nLAYERS ()\nEND\nhere the Database begins\nPOINTS (PointNo)\n1;\nEND\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
}

TEST_F(IdexFile, ThatIsMissingIsReportedAndLogged) {
    ASSERT_EQ(Read(SmallDrawing()), "");
    const Text name = folder / "missing.idx";
    const std::string path = ToUtf8(name);
    EXPECT_EQ(LogOfReading(name), "FOUT:  Error:53 - Bestand niet gevonden " + path + "\n");
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Error:53 - Bestand niet gevonden\n" + path});
    EXPECT_EQ(screen.boxes.at(0).buttons, Buttons::Ok);
    EXPECT_TRUE(translation.outcome.inputUnreadable);
    EXPECT_TRUE(IsEmpty());
    EXPECT_EQ(translation.inputLine, 0);
}

TEST_F(IdexFile, ThatIsAFolderIsReportedAndLogged) {
    const std::string path = folder.Path();
    EXPECT_EQ(LogOfReading(FromUtf8(path)), "FOUT:  Error:75 - Fout bij toegang tot pad of bestand " + path + "\n");
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Error:75 - Fout bij toegang tot pad of bestand\n" + path});
    EXPECT_TRUE(translation.outcome.inputUnreadable);
}

TEST_F(IdexFile, OnADriveThatIsNotThereIsReportedAndLogged) {
    EXPECT_EQ(LogOfReading(u"D:\\KAART.IDX"), "FOUT:  Error:71 - Station niet gereed D:\\KAART.IDX\n");
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Error:71 - Station niet gereed\nD:\\KAART.IDX"});
}

TEST_F(IdexFile, WithoutANameIsReported) {
    OpenLog();
    translation.IdexFileName.clear();
    ReadIdexFile(translation);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0], "Error:52 - Ongeldige bestandsnaam of ongeldig bestandsnummer\n");
    EXPECT_EQ(translation.problems.errors, 1);
}

TEST_F(IdexFile, ItsProgressIsCountedInUnitsOf128Bytes) {
    const std::string bytes = SmallDrawing();
    ASSERT_EQ(Read(bytes), "");
    EXPECT_EQ(screen.maxima, std::vector<std::int64_t>{static_cast<std::int64_t>(bytes.size()) / 128 + 1});
    ASSERT_EQ(Read(std::string(256, '\n')), "");
    EXPECT_EQ(screen.maxima.back(), 3);
}

TEST_F(IdexFile, APersonMayEndItsReading) {
    // The screen is asked before the first line already.
    screen.onPump = [] { throw TranslationAborted(); };
    EXPECT_THROW(Read(SmallDrawing()), TranslationAborted);
    EXPECT_TRUE(IsEmpty());
}

// Cut off anywhere, a drawing gives what stands before the cut: never more, never less than a shorter one, and an error
// in its last line when a table was open.
TEST_F(IdexFile, CutOffAtAnyByteItKeepsWhatWasReadBefore) {
    const std::string whole = SmallDrawing();
    std::vector<std::int32_t> before(4, 0);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        const std::string outcome = Read(cut);
        const std::vector<std::int32_t> now = {drawing.Points.UpperBound(), drawing.Lines.UpperBound(),
                                               drawing.Edges.UpperBound(), drawing.Texts.UpperBound()};
        for (std::size_t kind = 0; kind < now.size(); ++kind) {
            ASSERT_GE(now[kind], before[kind]) << cut;
            ASSERT_LE(now[kind], kind == 0 ? 2 : 1) << cut;
        }
        before = now;
        if (outcome.empty()) continue;
        const auto lines = std::count(cut.begin(), cut.end(), '\n') + (cut.ends_with('\n') ? 0 : 1);
        const std::string place = " in line " + std::to_string(lines);
        // A cut in the middle of a row may leave a number that is none, or one of no point.
        const bool isExpected =
            outcome == "error 62" + place || outcome == "error 13" + place || outcome == "error 9" + place;
        ASSERT_TRUE(isExpected) << outcome << " of\n" << cut;
    }
    EXPECT_EQ(Counts(), "2 1 1 1");
}

TEST_F(IdexFile, CutOffBehindALineOfATableItIsReadPastItsEnd) {
    const std::string whole = SmallDrawing();
    const std::size_t database = whole.find("DATABASE\n") + 9;
    std::vector<bool> isOpen;  // per line of the tables, whether one is open behind it
    int depth = 0;
    std::int64_t line = std::count(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(database), '\n');
    for (std::size_t begin = database; begin < whole.size();) {
        const std::size_t end = whole.find('\n', begin) + 1;
        ++line;
        const std::string row = whole.substr(begin, end - begin);
        const auto starts = [&row](std::string_view word) {
            return std::string_view(row).substr(row.find_first_not_of(' ')).starts_with(word);
        };
        // The end of the block of updates ends the points; of a text's parts the boxes and items are tables.
        if (starts("POINTS") || starts("LINES") || starts("EDGES") || starts("POLYGONS")) ++depth;
        if (starts("TEXT")) depth = 1;
        if (starts("END EXTRAINFO") && depth == 1) depth = 0;
        if (starts("END EDGES") || starts("END LINES") || starts("END POLYGONS") || starts("END ITEMS")) --depth;
        const std::string expected = depth > 0 ? "error 62 in line " + std::to_string(line) : "";
        ASSERT_EQ(Read(whole.substr(0, end)), expected) << row;
        begin = end;
    }
}

TEST_F(IdexFile, ARowOfTenMillionBytesIsReadLikeAnyOther) {
    constexpr int length = 10'000'000;
    const std::string longText = std::string().append(length, 'x');
    ASSERT_EQ(ReadTables("POINTS (PointNo,Description,East)\n1,\"" + longText + "\",1.5;\n2,\"B\",2.5;\nEND\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Shown(drawing.Description(Point(1))), std::string(80, 'X'));
    EXPECT_EQ(Point(1).East, 1.5);
    EXPECT_EQ(Point(2).East, 2.5);
}

TEST_F(IdexFile, ARowOfMillionsOfFieldsQuotesOrDigitsIsReadLikeAnyOther) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East)\n1,1.5," + std::string(5'000'000, ',') + ";\n2," +
                         std::string(5'000'000, '"') + ";\n3," + std::string(5'000'000, '0') + "7;\nEND\n"),
              "");
    ASSERT_EQ(drawing.Points.UpperBound(), 3);
    EXPECT_EQ(Point(1).East, 1.5);
    EXPECT_EQ(Point(2).East, 0);
    EXPECT_EQ(Point(3).East, 7);
    EXPECT_EQ(ReadTables("POINTS (PointNo,East)\n1," + std::string(5'000'000, '9') + ";\nEND\n"),
              ErrorAt(errors::overflow, 2));
}

TEST_F(IdexFile, BytesThatAreNoDrawingDoNoHarm) {
    std::string noise = "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\nEND\nDATABASE\nPOINTS (PointNo,PointID)\n";
    unsigned state = 7;
    for (int i = 0; i < 200'000; ++i) {
        state = state * 1664525U + 1013904223U;
        noise.push_back(static_cast<char>(state >> 24));
    }
    OpenLog();
    const std::string outcome = Read(noise);
    EXPECT_TRUE(outcome.starts_with("error ")) << outcome;
    // Zero bytes too.
    EXPECT_EQ(ReadTables(std::string("POINTS (PointNo,PointID)\n1,\"A\0B\";\n", 34) + "END\n"), "");
    EXPECT_EQ(Point(1).PointID(), MakeFixedText<9>(TextView(u"A\0B", 3)));
}

}  // namespace

}  // namespace korvande::testing
