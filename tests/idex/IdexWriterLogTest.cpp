#include "idex/modExportIDEX.h"
#include "tests/core/ErrorOf.h"
#include "tests/idex/IdexWriterTest.h"
#include "translation/Files.h"

namespace korvande::testing {

namespace {

class IdexWriterLog : public IdexWriterTest {
 protected:
    // What writing the drawing appends to the log book.
    std::string LogOfWriting() {
        OpenLog();
        Write();
        return LogText();
    }

    static void AddRow(CodeTable& table, TextView liscad, TextView description, std::int32_t count) {
        CodeRow row{};
        row.LiscadCode = liscad;
        row.LkiCode = u"LKI";
        row.Type = u"";
        row.Description = description;
        table.rows.push_back(row);
        if (count > 0) CountUse(table, static_cast<std::int32_t>(table.rows.size()) - 1, count);
    }

    static std::string Used(std::string code, std::string description, std::size_t characters, std::string_view count) {
        code.resize(7, ' ');
        description.resize(description.size() + 43 - characters, ' ');
        return code + " = " + description + " " + std::string(count) + " maal\n";
    }

    static std::string Statistics(std::string_view counts, std::string_view lines, std::string_view points,
                                  std::string_view texts) {
        std::string log = "\nIDEX statistiek:\n";
        log.append(counts);
        log.append("\nGeïmporteerde lijnobjecten:\n").append(lines);
        log.append("\nGeïmporteerde puntobjecten:\n").append(points);
        log.append("\nGeïmporteerde tekstelementen:\n").append(texts);
        return log + "\n\nOnbekende objecten werden niet geimporteerd.\n\n\n";
    }

    static constexpr std::string_view none = "    GEEN\n";
    static constexpr std::string_view noCounts =
        "IDEX punten:         0 \nIDEX lijnen:         0 \nIDEX lijnsegmenten:  0 \nIDEX teksten:        0 \n";
};

TEST_F(IdexWriterLog, AnEmptyDrawingGivesCountsOfZeroAndTablesThatWereNotUsed) {
    EXPECT_EQ(LogOfWriting(), Statistics(noCounts, none, none, none) + "\n\n");
}

TEST_F(IdexWriterLog, TheLinesOfTheLogBookEndInCrLf) {
    OpenLog();
    Write();
    translation.log.Close();
    EXPECT_TRUE(FileBytes(logName).starts_with("\r\nIDEX statistiek:\r\nIDEX punten:         0 \r\n"));
    // In Windows-1252.
    EXPECT_NE(FileBytes(logName).find("\r\nGe\xEFmporteerde lijnobjecten:\r\n"), std::string::npos);
}

TEST_F(IdexWriterLog, TheObjectsOfTheDrawingAreCountedAndLinesUpToTheHighest) {
    for (int i = 0; i < 12; ++i) AddPoint(drawing, {});
    drawing.Lines.GrowTo(4);
    AddEdge(drawing, 1, 1, 2);
    AddEdge(drawing, 1, 2, 3);
    AddText(drawing, 1, u"T");
    const std::string counts =
        "IDEX punten:         12 \nIDEX lijnen:         4 \nIDEX lijnsegmenten:  2 \nIDEX teksten:        1 \n";
    EXPECT_EQ(LogOfWriting(), Statistics(counts, none, none, none) + "\n\n");
}

TEST_F(IdexWriterLog, EveryRowThatWasUsedIsListedWithHowOften) {
    CountUse(translation.codes.lines, 0, 2);
    AddRow(translation.codes.lines, u"KANT", u"Kant verharding", 13);
    AddRow(translation.codes.lines, u"HEK", u"Hek", 0);
    AddRow(translation.codes.points, u"BOOM", u"Café-boom", 1234567);
    AddRow(translation.codes.points, u"PAAL", u"Paal", 1);
    const std::string unknown = ToUtf8(translation.codes.lines.rows[0].LiscadCode.View()) + " = " +
                                ToUtf8(translation.codes.lines.rows[0].Description.View()) + " 2 maal\n";
    EXPECT_EQ(LogOfWriting(), Statistics(noCounts, unknown + Used("KANT", "Kant verharding", 15, "13"),
                                         Used("BOOM", "Café-boom", 9, "1234567") + Used("PAAL", "Paal", 4, "1"), none) +
                                  "\n\n");
}

TEST_F(IdexWriterLog, ATableThatLostEveryRowSaysNone) {
    translation.codes.texts.rows.clear();
    translation.codes.texts.RowsChanged();
    EXPECT_EQ(LogOfWriting(), Statistics(noCounts, none, none, none) + "\n\n");
}

TEST_F(IdexWriterLog, UnknownObjectsAreListedAtItsEnd) {
    for (int i = 0; i < 3; ++i) CountUnknownCode(translation.unknowns, MakeFixedText<8>(u"PX01"));
    CountUnknownCode(translation.unknowns, MakeFixedText<8>(u"LX02"));
    EXPECT_EQ(LogOfWriting(), Statistics(noCounts, none, none, none) +
                                  "\nOverzicht onbekende objecten:\n\n\n"
                                  "Lijnobjecten:      X02    (1)\n\n\n"
                                  "Puntobjecten:      X01    (3)\n\n\n");
}

TEST_F(IdexWriterLog, TheStatisticsAreThereAlsoWhenTheFileCannotBeClosed) {
    AddPoint(drawing, {});
    OpenLog();
    OpenOutput(translation, u"/dev/full");
    EXPECT_EQ(ErrorOf([this] { WriteIdexFile(translation); }), errors::diskFull);
    EXPECT_NE(LogText().find("IDEX punten:         1 \n"), std::string::npos);
}

}  // namespace

}  // namespace korvande::testing
