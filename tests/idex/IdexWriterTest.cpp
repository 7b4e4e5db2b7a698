#include "tests/idex/IdexWriterTest.h"

#include "idex/modExportIDEX.h"
#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

void AddPoint(const PointOf& point) {
    PointRec& record = TheDrawing().Points.Append();
    record.PointNo = TheDrawing().Points.UpperBound();
    record.PointID = point.id;
    record.East = point.east;
    record.North = point.north;
    record.Elevation = point.elevation;
    record.Code = point.code;
    record.Description = point.description;
    record.SymDir = point.direction;
}

void AddLine(TextView code, std::int32_t flags1, std::int32_t flags2) {
    LineRec& record = TheDrawing().Lines.Append();
    record.Code = code;
    record.Description = u"";
    record.Flags1 = flags1;
    record.Flags2 = flags2;
}

void AddEdge(std::int32_t line, std::int32_t start, std::int32_t end, TextView type) {
    EdgeRec& record = TheDrawing().Edges.Append();
    record.LineNo = line;
    record.StartPt = start;
    record.EndPt = end;
    record.LineType = type;
}

void AddText(std::int32_t anchor, TextView text, std::int16_t position, float direction) {
    TextRec& record = TheDrawing().Texts.Append();
    record.AnchorPointNo = anchor;
    record.Text = text;
    record.Code = u"";
    record.AnchorPosition = position;
    record.HzDirection = direction;
}

std::string IdexWriterTest::Write() {
    OpenOutput(outputName);
    WriteIdexFile();
    EXPECT_FALSE(TheRun().output.IsOpen());
    return FileBytes(outputName);
}

std::string IdexWriterTest::WriteLines() {
    std::string bytes = Write();
    std::erase(bytes, '\r');
    return bytes;
}

std::string IdexWriterTest::WriteTables() {
    const std::string file = WriteLines();
    constexpr std::string_view start = "\nDATABASE\n";
    constexpr std::string_view end = "END DATABASE\n";
    const std::size_t begin = file.find(start) + start.size();
    EXPECT_TRUE(file.ends_with(end));
    return file.substr(begin, file.size() - end.size() - begin);
}

namespace {

constexpr std::string_view emptyFile =
    "HEADER\n"
    "  VERSION     1.20\n"
    "  SYSTEM      \"NEN1878 - LISCAD 7.00\"\n"
    "  SEPARATOR   ','\n"
    "  TERMINATOR  ';'\n"
    "  UNITS\n"
    "    ANGULAR   GRADS\n"
    "    LINEAR    METRE\n"
    "    TEMP      CELSIUS\n"
    "    PRESS     HPA\n"
    "    TIME      DMY\n"
    "  END UNITS\n"
    "  PROJECT\n"
    "    NAME          \"\"\n"
    "  END PROJECT\n"
    "END HEADER\n"
    "\n"
    "\n"
    "DEFINITIONS\n"
    "  LAYERS (LayerNo,Name,Flags)\n"
    "    0,  \"STNDRD\",   00000001;\n"
    "  END LAYERS\n"
    "END DEFINITIONS\n"
    "\n"
    "\n"
    "DATABASE\n"
    "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
    "  END POINTS\n"
    "  END LINES\n"
    "END DATABASE\n";

class IdexWriter : public IdexWriterTest {};

TEST_F(IdexWriter, ADrawingWithoutObjectsHasAHeaderDefinitionsAndAnEmptyPointsTable) {
    EXPECT_EQ(Write(), WithCrLf(emptyFile));
}

TEST_F(IdexWriter, EveryTableOfAWholeDrawingIsWritten) {
    TheRun().ProjectName = u"Kaart";
    AddPoint({u"12", 155000.5, 463000.25, 1.5, u"100", u"Boom", 50});
    AddPoint({u"", 155010, 463010, 0, u"", u"", 0});
    AddLine(u"K01", 5, 1);
    AddEdge(1, 1, 2);
    AddText(2, u"Straat", 3, 25.5F);
    AddText(1, u"12", 9);
    constexpr std::string_view before = "DATABASE\n";
    std::string expected(emptyFile.substr(0, emptyFile.find(before) + before.size()));
    expected.replace(expected.find("\"\"\n"), 3, "\"Kaart\"\n");
    expected +=
        "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
        "    1,\"12\",155000.5000    ,463000.2500    ,1.5000         ,\"100\",\"Boom\",50.0000  ;\n"
        "    2,\"\",155010.0000    ,463010.0000    ,0.0000         ,\"\",\"\",0.0000   ;\n"
        "  END POINTS\n"
        "\n"
        "  LINES (LineNo,Code,Flags1,Flags2)\n"
        "    1,\"K01\",00000000 00000101,00000000 00000001;\n"
        "\n"
        "    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)\n"
        "      1,1, \"12\",2, \"\",STRAIGHT    ;\n"
        "    END EDGES\n"
        "  END LINES\n"
        "\n"
        "  TEXT\n"
        "    PROPERTIES (TextPropertyNo)\n"
        "        1;\n"
        "    END PROPERTIES\n"
        "\n"
        "    BOXES\n"
        "      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n"
        "          1, 2 , 3 , 0,  25.500 ;\n"
        "          2, 1 , 9 , 0,  0.000  ;\n"
        "      END BOX_ON_POINT\n"
        "    END BOXES\n"
        "\n"
        "    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)\n"
        "          1, 1 , 1, 1,\"Straat\";\n"
        "          2, 2 , 1, 1,\"12\";\n"
        "    END ITEMS\n"
        "  END TEXT\n"
        "\n"
        "END DATABASE\n";
    EXPECT_EQ(Write(), WithCrLf(expected));
}

TEST_F(IdexWriter, ADrawingWithPointsOnlyHasNoOtherTable) {
    AddPoint({u"1", 1, 2, 3, u"A", u"B", 4});
    EXPECT_EQ(WriteTables(),
              "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
              "    1,\"1\",1.0000         ,2.0000         ,3.0000         ,\"A\",\"B\",4.0000   ;\n"
              "  END POINTS\n"
              "  END LINES\n");
}

TEST_F(IdexWriter, LinesWithoutEdgesHaveNoEdgesTable) {
    AddLine(u"A");
    EXPECT_EQ(WriteTables(),
              "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
              "  END POINTS\n"
              "\n"
              "  LINES (LineNo,Code,Flags1,Flags2)\n"
              "    1,\"A\",00000000 00000000,00000000 00000000;\n"
              "  END LINES\n");
}

TEST_F(IdexWriter, EdgesWithoutLinesHaveNoLinesTable) {
    AddPoint({});
    AddEdge(7, 1, 1, u"CURVE");
    EXPECT_EQ(WriteTables(),
              "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
              "    1,\"\",0.0000         ,0.0000         ,0.0000         ,\"\",\"\",0.0000   ;\n"
              "  END POINTS\n"
              "\n"
              "    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)\n"
              "      7,1, \"\",1, \"\",CURVE       ;\n"
              "    END EDGES\n"
              "  END LINES\n");
}

TEST_F(IdexWriter, TheProjectDateIsThereWhenItIsSet) {
    DateTime date;
    date.year = 2003;
    date.month = 2;
    date.day = 1;
    TheRun().ProjectDate = date;
    TheRun().ProjectName = u"  Stad  ";
    EXPECT_NE(WriteLines().find("  PROJECT\n"
                                "    NAME          \"Stad\"\n"
                                "    CREATION_DATE 01-02-2003/00:00:00.0\n"
                                "  END PROJECT\n"),
              std::string::npos);
}

TEST_F(IdexWriter, PointsAreNumberedByTheirPlace) {
    AddPoint({u"A"});
    AddPoint({u"B"});
    TheDrawing().Points[1].PointNo = 900;
    const std::string tables = WriteTables();
    EXPECT_NE(tables.find("\n    1,\"A\","), std::string::npos);
    EXPECT_NE(tables.find("\n    2,\"B\","), std::string::npos);
}

TEST_F(IdexWriter, TheStatusTellsOfTheStepsAndTheProgressOfTheirRows) {
    AddPoint({});
    AddPoint({});
    AddLine(u"A");
    AddEdge(1, 1, 2);
    AddText(1, u"T");
    Write();
    EXPECT_EQ(screen.statuses,
              (std::vector<std::string>{"Wegschrijven Header", "Wegschrijven punten", "Wegschrijven lijnstrings",
                                        "Wegschrijven lijnsegmenten", "Wegschrijven teksten"}));
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{2, 1, 1, 2}));
}

TEST_F(IdexWriter, APersonMayEndTheWriting) {
    AddPoint({});
    screen.onPump = [] { throw TranslationAborted(); };
    OpenOutput(outputName);
    EXPECT_THROW(WriteIdexFile(), TranslationAborted);
}

TEST_F(IdexWriter, WithoutAnOutputNothingIsDone) {
    AddPoint({});
    OpenLog();
    WriteIdexFile();
    EXPECT_EQ(LogText(), "");
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(screen.statuses.empty());
}

TEST_F(IdexWriter, AFullDiskIsAnErrorHoweverMuchThereIsToWrite) {
    for (const int count : {1, 5'000}) {
        ResetDrawing();
        for (int i = 0; i < count; ++i) AddPoint({});
        TheAccount()[ObjectKind::Point].kept = count;
        OpenOutput(u"/dev/full");
        EXPECT_EQ(ErrorOf([] { WriteIdexFile(); }), errors::diskFull) << count;
        EXPECT_TRUE(TheRun().output.HasFailed()) << count;
        EXPECT_EQ(TheAccount()[ObjectKind::Point].written, 0) << count;
        TheRun().output.Abandon();
    }
}

TEST_F(IdexWriter, WhatWasKeptIsAccountedForAsWritten) {
    AddPoint({});
    TheAccount()[ObjectKind::Point].read = 3;
    TheAccount()[ObjectKind::Point].kept = 1;
    TheAccount().Leave(ObjectKind::Point, LeftOut::UnknownCode, 2);
    Write();
    EXPECT_EQ(TheAccount()[ObjectKind::Point].written, 1);
    EXPECT_TRUE(TheAccount().Balances());
}

TEST_F(IdexWriter, RowsAreWrittenWithoutAskingForMemory) {
    const auto blocksFor = [this](int count) {
        ResetDrawing();
        for (int i = 1; i <= count; ++i) {
            AddPoint({u"123456789", 155000.123 + i, 463000.5, 1.5, u"STRAATM", u"Een vrij lange omschrijving", 50});
            AddLine(u"KANTVER", i, 1);
            AddEdge(i, 1, i);
            AddText(i, u"Burgemeester van der Veldenstraat", 3, 12.5F);
        }
        OpenOutput(outputName);
        return AllocationsOf([] { WriteIdexFile(); }).blocks;
    };
    blocksFor(100);  // whatever is made once in a program
    const std::size_t few = blocksFor(2'000);
    EXPECT_LT(blocksFor(20'000), few + 10);
}

}  // namespace

}  // namespace korvande::testing
