#include "tests/idex/IdexWriterTest.h"

#include "idex/modExportIDEX.h"
#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"
#include "translation/Files.h"

namespace korvande::testing {

void AddPoint(Drawing& drawing, const PointOf& point) {
    PointRec& record = drawing.Points.Append();
    record.PointNo = drawing.Points.UpperBound();
    record.SetPointID(point.id);
    record.East = point.east;
    record.North = point.north;
    record.Elevation = point.elevation;
    drawing.SetCode(record, point.code);
    drawing.SetDescription(record, point.description);
    record.SymDir = point.direction;
}

void AddLine(Drawing& drawing, TextView code, std::int32_t flags1, std::int32_t flags2) {
    LineRec& record = drawing.Lines.Append();
    drawing.SetCode(record, code);
    drawing.SetDescription(record, TextView());
    record.Flags1 = flags1;
    record.Flags2 = flags2;
}

void AddEdge(Drawing& drawing, std::int32_t line, std::int32_t start, std::int32_t end, TextView type) {
    EdgeRec& record = drawing.Edges.Append();
    record.LineNo = line;
    record.StartPt = start;
    record.EndPt = end;
    drawing.SetLineType(record, type);
}

void AddText(Drawing& drawing, std::int32_t anchor, TextView text, std::int16_t position, float direction) {
    TextRec& record = drawing.Texts.Append();
    record.AnchorPointNo = anchor;
    record.SetCharacters(text);
    drawing.SetCode(record, TextView());
    record.AnchorPosition = position;
    record.HzDirection = direction;
}

void OpenMemory(Translation& translation) {
    translation.outputTo = OutputTo::Memory;
    translation.outputBytes.clear();
    OpenOutput(translation, {});
}

std::string WriteOf(Translation& translation) {
    OpenMemory(translation);
    WriteIdexFile(translation);
    EXPECT_FALSE(translation.output.IsOpen());
    return translation.outputBytes;
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
    translation.ProjectName = u"Kaart";
    AddPoint(drawing, {u"12", 155000.5, 463000.25, 1.5, u"100", u"Boom", 50});
    AddPoint(drawing, {u"", 155010, 463010, 0, u"", u"", 0});
    AddLine(drawing, u"K01", 5, 1);
    AddEdge(drawing, 1, 1, 2);
    AddText(drawing, 2, u"Straat", 3, 25.5F);
    AddText(drawing, 1, u"12", 9);
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

TEST_F(IdexWriter, AFileHoldsWhatIsWrittenIntoMemory) {
    const Text name = folder / "out.idx";
    OpenOutput(translation, name);
    WriteIdexFile(translation);
    EXPECT_FALSE(translation.output.IsOpen());
    EXPECT_EQ(FileBytes(name), WithCrLf(emptyFile));
}

TEST_F(IdexWriter, ADrawingWithPointsOnlyHasNoOtherTable) {
    AddPoint(drawing, {u"1", 1, 2, 3, u"A", u"B", 4});
    EXPECT_EQ(WriteTables(),
              "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
              "    1,\"1\",1.0000         ,2.0000         ,3.0000         ,\"A\",\"B\",4.0000   ;\n"
              "  END POINTS\n"
              "  END LINES\n");
}

TEST_F(IdexWriter, LinesWithoutEdgesHaveNoEdgesTable) {
    AddLine(drawing, u"A");
    EXPECT_EQ(WriteTables(),
              "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
              "  END POINTS\n"
              "\n"
              "  LINES (LineNo,Code,Flags1,Flags2)\n"
              "    1,\"A\",00000000 00000000,00000000 00000000;\n"
              "  END LINES\n");
}

TEST_F(IdexWriter, EdgesWithoutLinesHaveNoLinesTable) {
    AddPoint(drawing, {});
    AddEdge(drawing, 7, 1, 1, u"CURVE");
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
    translation.ProjectDate = date;
    translation.ProjectName = u"  Stad  ";
    EXPECT_NE(WriteLines().find("  PROJECT\n"
                                "    NAME          \"Stad\"\n"
                                "    CREATION_DATE 01-02-2003/00:00:00.0\n"
                                "  END PROJECT\n"),
              std::string::npos);
}

TEST_F(IdexWriter, PointsAreNumberedByTheirPlace) {
    AddPoint(drawing, {u"A"});
    AddPoint(drawing, {u"B"});
    drawing.Points[1].PointNo = 900;
    const std::string tables = WriteTables();
    EXPECT_NE(tables.find("\n    1,\"A\","), std::string::npos);
    EXPECT_NE(tables.find("\n    2,\"B\","), std::string::npos);
}

TEST_F(IdexWriter, TheStatusTellsOfTheStepsAndTheProgressOfTheirRows) {
    AddPoint(drawing, {});
    AddPoint(drawing, {});
    AddLine(drawing, u"A");
    AddEdge(drawing, 1, 1, 2);
    AddText(drawing, 1, u"T");
    Write();
    EXPECT_EQ(screen.statuses,
              (std::vector<std::string>{"Wegschrijven Header", "Wegschrijven punten", "Wegschrijven lijnstrings",
                                        "Wegschrijven lijnsegmenten", "Wegschrijven teksten"}));
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{2, 1, 1, 2}));
}

TEST_F(IdexWriter, TheStatusTellsOfNoTableThatIsEmpty) {
    AddPoint(drawing, {});
    Write();
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Wegschrijven Header", "Wegschrijven punten"}));
    screen.statuses.clear();
    AddText(drawing, 1, u"T");
    Write();
    EXPECT_EQ(screen.statuses,
              (std::vector<std::string>{"Wegschrijven Header", "Wegschrijven punten", "Wegschrijven teksten"}));
}

TEST_F(IdexWriter, APersonMayEndTheWriting) {
    AddPoint(drawing, {});
    screen.onPump = [] { throw TranslationAborted(); };
    OpenMemory(translation);
    EXPECT_THROW(WriteIdexFile(translation), TranslationAborted);
}

TEST_F(IdexWriter, WithoutAnOutputNothingIsDone) {
    AddPoint(drawing, {});
    OpenLog();
    WriteIdexFile(translation);
    EXPECT_EQ(LogText(), "");
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(screen.statuses.empty());
}

TEST_F(IdexWriter, AFullDiskIsAnErrorHoweverMuchThereIsToWrite) {
    for (const int count : {1, 5'000}) {
        ResetDrawing(drawing);
        for (int i = 0; i < count; ++i) AddPoint(drawing, {});
        translation.account[ObjectKind::Point].kept = count;
        OpenOutput(translation, u"/dev/full");
        EXPECT_EQ(ErrorOf([this] { WriteIdexFile(translation); }), errors::diskFull) << count;
        EXPECT_TRUE(translation.output.HasFailed()) << count;
        EXPECT_EQ(translation.account[ObjectKind::Point].written, 0) << count;
        translation.output.Abandon();
    }
}

TEST_F(IdexWriter, WhatWasKeptIsAccountedForAsWritten) {
    AddPoint(drawing, {});
    translation.account[ObjectKind::Point].read = 3;
    translation.account[ObjectKind::Point].kept = 1;
    translation.account.Leave(ObjectKind::Point, LeftOut::UnknownCode, 2);
    Write();
    EXPECT_EQ(translation.account[ObjectKind::Point].written, 1);
    EXPECT_TRUE(translation.account.Balances());
}

TEST_F(IdexWriter, RowsAreWrittenWithoutAskingForMemory) {
    const auto blocksFor = [this](int count) {
        ResetDrawing(drawing);
        for (int i = 1; i <= count; ++i) {
            AddPoint(drawing,
                     {u"123456789", 155000.123 + i, 463000.5, 1.5, u"STRAATM", u"Een vrij lange omschrijving", 50});
            AddLine(drawing, u"KANTVER", i, 1);
            AddEdge(drawing, i, 1, i);
            AddText(drawing, i, u"Burgemeester van der Veldenstraat", 3, 12.5F);
        }
        OpenOutput(translation, folder / "out.idx");
        return AllocationsOf([this] { WriteIdexFile(translation); }).blocks;
    };
    blocksFor(100);  // whatever is made once in a program
    const std::size_t few = blocksFor(2'000);
    EXPECT_LT(blocksFor(20'000), few + 10);
}

}  // namespace

}  // namespace korvande::testing
