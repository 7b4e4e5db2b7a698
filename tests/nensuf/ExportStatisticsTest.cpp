#include "nensuf/ExportStatistics.h"

#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportStatistics : public ExportTest {
 protected:
    // The log book of an export, from its statistics on.
    std::string LogOfExport() {
        ExportSufNen(translation);
        const std::string log = LogText();
        return log.substr(log.find(" Statistiek:"));
    }
};

TEST_F(ExportStatistics, AnEmptyDrawingHasZeroCountsAndEmptyLists) {
    EXPECT_EQ(LogOfExport(),
              " Statistiek:\n"
              " Punten:            0\n"
              " Lijnstrings:       0\n"
              " Lijnsegmenten:     0\n"
              " Teksten:           0\n"
              "\n"
              "Geëxporteerde lijnobjecten:\n"
              "\n"
              "Geëxporteerde puntobjecten:\n"
              "\n"
              "Geëxporteerde tekstelementen:\n"
              "\n"
              "\n"
              "Onbekende objecten werden niet geëxporteerd.\n"
              "\n"
              "\n");
}

TEST_F(ExportStatistics, EveryRowThatWasMetIsListedWithItsCount) {
    AddRow(translation.codes.lines, {u"MUUR", u"B02", types::line, u"Muur of kademuur"});
    AddBarePoints();
    for (int i = 0; i < 12; ++i) AddPoint({.code = u"PAAL"});
    AddPoint({.code = u"RAAR"});
    AddLine(u"KANT");
    AddLine(u"MUUR");
    AddSegment({});
    AddSegment({.line = 2});
    AddSegment({.line = 2});
    AddText({.text = u"a"});
    const std::string description = "Omschrijving" + std::string(31, ' ');
    EXPECT_EQ(LogOfExport(),
              " Statistiek:\n"
              " Punten:           15\n"
              " Lijnstrings:       2\n"
              " Lijnsegmenten:     3\n"
              " Teksten:           1\n"
              "\n"
              "Geëxporteerde lijnobjecten:\n"
              "KANT    = " +
                  description +
                  " 1 maal\n"
                  "MUUR    = Muur of kademuur" +
                  std::string(27, ' ') +
                  " 2 maal\n"
                  "\n"
                  "Geëxporteerde puntobjecten:\n"
                  "STANDRD = ONBEKEND PUNTOBJECT" +
                  std::string(24, ' ') +
                  " 1 maal\n"
                  "PAAL    = " +
                  description +
                  " 12 maal\n"
                  "        = " +
                  description +
                  " 2 maal\n"
                  "\n"
                  "Geëxporteerde tekstelementen:\n"
                  "TEKST   = " +
                  description +
                  " 1 maal\n"
                  "\n"
                  "\n"
                  "Onbekende objecten werden niet geëxporteerd.\n"
                  "\n"
                  "\n");
}

TEST_F(ExportStatistics, LineStringsAreCountedByTheirHighestNumber) {
    for (const TextView code : {u"KANT", u"", u"", u"", u"", u"", u"KANT"}) AddLine(code);
    EXPECT_EQ(SplitLines(LogOfExport())[2], " Lijnstrings:       7");
}

TEST_F(ExportStatistics, ACountOfMoreThanSixDigitsIsWrittenInFull) {
    translation.drawing.Lines.GrowTo(1234567);
    WriteExportStatistics(translation);
    EXPECT_EQ(SplitLines(LogText())[2], " Lijnstrings:  1234567");
}

TEST_F(ExportStatistics, ATableWithoutRowsGetsGeenAtColumnFive) {
    translation.codes.lines.rows.clear();
    translation.codes.lines.RowsChanged();
    const std::string log = LogOfExport();
    EXPECT_NE(log.find("\nGeëxporteerde lijnobjecten:\n    GEEN\n\nGeëxporteerde puntobjecten:\n\n"), std::string::npos)
        << log;
}

TEST_F(ExportStatistics, WithUnknownObjectsTheirOverviewFollows) {
    translation.options.chkExportUnknowns = true;
    AddPoint({.code = u"RAAR"});
    AddPoint({.code = u"RAAR"});
    AddText({.text = u"a", .code = u"VREEMD"});
    const std::string log = LogOfExport();
    EXPECT_EQ(log.substr(log.find("Geëxporteerde tekstelementen:")),
              "Geëxporteerde tekstelementen:\n"
              "STANDRD = ONBEKEND TEKSTOBJECT" +
                  std::string(23, ' ') +
                  " 1 maal\n"
                  "\n"
                  "Overzicht onbekende objecten:\n"
                  "\n"
                  "\n"
                  "Puntobjecten:      RAAR   (2)\n"
                  "\n"
                  "\n"
                  "Tekstelementen:    VREEMD (1)\n"
                  "\n"
                  "\n");
    EXPECT_EQ(log.find("werden niet"), std::string::npos);
}

TEST_F(ExportStatistics, WithUnknownObjectsOnAndNoneMetOnlyTwoEmptyLinesFollow) {
    translation.options.chkExportUnknowns = true;
    const std::string log = LogOfExport();
    EXPECT_EQ(log.substr(log.find("Geëxporteerde tekstelementen:")), "Geëxporteerde tekstelementen:\n\n\n");
}

}  // namespace
}  // namespace korvande::testing
