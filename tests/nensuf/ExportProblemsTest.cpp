#include "tests/nensuf/ExportTest.h"
#include "tests/nensuf/ProblemLists.h"

namespace korvande::testing {

namespace {

class ExportProblems : public ExportTest {
 protected:
    ExportProblems() { translation.options.chkExport3D = false; }

    std::string Loss() {
        ExportSufNen(translation);
        return LossOf(translation);
    }
    std::string Wanted() {
        EXPECT_EQ(Loss(), "");
        return WantedOf(translation);
    }

    // What is told of one point at this place.
    std::string LossAt(double east, double north = 0, double elevation = 0, TextView code = u"PAAL") {
        ResetDrawing(translation.drawing);
        translation.problems = {};
        AddPoint({.code = code, .east = east, .north = north, .elevation = elevation});
        translation.drawing.Points[1].InputLine = 12;
        return Loss();
    }

    // Two points and a segment of this type, read from line 30.
    void AddSegmentOf(TextView type) {
        if (translation.drawing.Points.UpperBound() == 0) AddBarePoints();
        AddLine(u"KANT");
        AddSegment({.type = type, .line = translation.drawing.Lines.UpperBound()});
        translation.drawing.Edges[translation.drawing.Edges.UpperBound()].InputLine = 30;
    }

    // Leaves the two points of lines and texts out of the lists.
    static std::string WithoutPoints(std::string lines) {
        constexpr std::string_view told = "2 punten van het type DUMMY\n";
        const std::size_t at = lines.find(told);
        return at == std::string::npos ? lines : lines.erase(at, told.size());
    }
};

TEST_F(ExportProblems, ADrawingThatIsWrittenWholeTellsNothing) {
    AddPoint({.code = u"PAAL"});
    AddPoint({.code = u"PAAL", .east = -100});
    AddLine(u"KANT");
    AddSegment({});
    AddText({.text = u"Weg"});
    EXPECT_EQ(Loss(), "");
    EXPECT_EQ(WantedOf(translation), "");
}

TEST_F(ExportProblems, ObjectsLeftOutAreToldByTheirReasonWithTheirLine) {
    AddRow(translation.codes.points, {u"LIJNTJE", u"L", types::line});
    AddPoint({.code = u"ONB"});
    AddPoint({.code = u"LIJNTJE"});
    AddPoint({.code = u""});
    AddText({.text = u"   "});
    Drawing& drawing = translation.drawing;
    for (int i = 1; i <= 3; ++i) drawing.Points[i].InputLine = 20 + i;
    drawing.Texts[1].InputLine = 40;
    EXPECT_EQ(
        Wanted(),
        "1 punt met een onbekende code (op regel 21)\n1 punt van een type dat niet wordt geschreven (op regel 22)\n"
        "1 punt van het type DUMMY (op regel 23)\n1 lege tekst (op regel 40)\n");
    EXPECT_EQ(translation.account[ObjectKind::Point].LeftOutTotal(), 3);
}

TEST_F(ExportProblems, ASegmentOfALineTypeThatIsNotWrittenIsToldWithTheType) {
    AddSegmentOf(u"SPLINE");
    AddSegmentOf(u"'STRAIGHT'");
    AddSegmentOf(u"SPLINE");
    AddSegmentOf(u"");
    EXPECT_EQ(Loss(),
              "2 lijnsegmenten van lijntype SPLINE, dat niet wordt geschreven (de eerste op regel 30)\n"
              "1 lijnsegment van lijntype 'STRAIGHT', dat niet wordt geschreven (op regel 30)\n"
              "1 lijnsegment van lijntype (leeg), dat niet wordt geschreven (op regel 30)\n");
    EXPECT_FALSE(translation.problems.HasDamage());
}

TEST_F(ExportProblems, AReferenceToNothingIsToldOnceBesideItsErrors) {
    AddBarePoints();
    AddLine(u"KANT");
    AddSegment({.end = 3});
    AddSegment({.line = 2});
    AddText({.text = u"Weg", .anchor = 9});
    translation.drawing.Edges[1].InputLine = 7;
    EXPECT_EQ(Loss(),
              "2 lijnsegmenten met een verwijzing naar niets (de eerste op regel 7)\n1 tekst met een verwijzing naar "
              "niets\n");
    EXPECT_EQ(translation.problems.errors, 3);
}

TEST_F(ExportProblems, ArcsAndCurvesAreWantedAndToldForEachSegment) {
    AddSegmentOf(u"ARC_CENT");
    AddSegmentOf(u"CURVE_3RD");
    AddSegmentOf(u"CIRCLE_CENT");
    AddSegmentOf(u"CURVE_4RD");
    EXPECT_EQ(WithoutPoints(Wanted()),
              "2 lijnsegmenten van bogen, per segment geschreven (de eerste op regel 30)\n"
              "2 lijnsegmenten van krommen, geschreven als rechten (de eerste op regel 30)\n");
}

TEST_F(ExportProblems, ACoordinateThatDoesNotFitNineColumnsIsTold) {
    for (const double fits : {999'999.999, 999'999.9994, -99'999.999, -99'999.9994, 0.0}) {
        EXPECT_EQ(LossAt(fits, fits), "") << fits;
    }
    for (const double cut : {999'999.9996, 1e6, -99'999.9996, -1e5, 5e12}) {
        EXPECT_EQ(LossAt(cut), "1 coördinaat van een punt die niet in negen posities past (op regel 12)\n") << cut;
        EXPECT_EQ(LossAt(cut, cut),
                  "2 coördinaten van punten die niet in negen posities passen (de eerste op regel 12)\n");
    }
    EXPECT_FALSE(translation.problems.HasDamage());
}

TEST_F(ExportProblems, AHeightThatDoesNotFitIsToldOnlyWhenItIsWritten) {
    EXPECT_EQ(LossAt(0, 0, 1e6), "");
    translation.options.chkExport3D = true;
    EXPECT_EQ(LossAt(0, 0, 1e6), "1 coördinaat van een punt die niet in negen posities past (op regel 12)\n");
    EXPECT_EQ(LossAt(0, 0, 1), "");
}

TEST_F(ExportProblems, ThePlaceThatASymbolIsTurnedToIsToldWhenItDoesNotFit) {
    AddRow(translation.codes.points, {u"MAST", u"S01", types::symbol});
    translation.options.chkExportSymRotation = false;
    EXPECT_EQ(LossAt(999'999.5, 0, 0, u"MAST"),
              "1 coördinaat van een punt die niet in negen posities past (op regel 12)\n");
    EXPECT_EQ(LossAt(999'999.5, 0, 0, u"PAAL"), "");
}

TEST_F(ExportProblems, TheCoordinatesOfSegmentsAndTextsAreToldAsTheirs) {
    AddPoint({.code = u"", .east = 1e6});
    AddPoint({.code = u"", .east = 999'999.5});
    AddLine(u"KANT");
    AddSegment({});
    AddText({.text = u"Weg", .direction = 0, .anchor = 2});
    EXPECT_EQ(Loss(),
              "1 coördinaat van een lijnsegment die niet in negen posities past\n"
              "1 coördinaat van een tekst die niet in negen posities past\n");
}

TEST_F(ExportProblems, AQualityOfMoreThanOneDigitIsToldForEachObjectWritten) {
    AddRow(translation.codes.points, {.liscad = u"GOED", .lki = u"G", .type = types::point, .p = 9, .i = 0, .b = 9});
    AddRow(translation.codes.points, {.liscad = u"TIEN", .lki = u"G", .type = types::point, .p = 10});
    AddRow(translation.codes.lines, {.liscad = u"MIN", .lki = u"B", .type = types::line, .b = -1});
    AddRow(translation.codes.texts, {.liscad = u"ELF", .lki = u"Z", .type = u"", .i = 11});
    for (const TextView code : {u"GOED", u"TIEN", u"TIEN"}) AddPoint({.code = code});
    AddLine(u"MIN");
    AddSegment({});
    AddText({.text = u"Weg", .code = u"ELF"});
    EXPECT_EQ(Loss(),
              "2 punten met een P, I of B van meer dan een cijfer\n"
              "1 lijnsegment met een P, I of B van meer dan een cijfer\n");
    EXPECT_FALSE(translation.problems.HasDamage());
}

TEST_F(ExportProblems, ATextOfMoreThan40CharactersIsTold) {
    AddPoint({.code = u"PAAL"});
    AddText({.text = Text(40, u'x')});
    EXPECT_EQ(Loss(), "");
    AddText({.text = Text(41, u'x')});
    AddText({.text = Text(41, u'x'), .code = u"\u00FFZ01"});
    translation.drawing.Texts[2].InputLine = 50;
    EXPECT_EQ(Loss(), "2 teksten afgekapt op 40 tekens (de eerste op regel 50)\n");
}

TEST_F(ExportProblems, ACharacterOfTheControlTableThatWindows1252LacksIsToldForEachObjectWritten) {
    AddRow(translation.codes.points, {u"OMEGA", u"G", types::point, u"Paal \u03A9"});
    AddRow(translation.codes.points, {u"VRAAG", u"G?", types::point, u"Paal?"});
    AddRow(translation.codes.lines, {u"GOED", u"B", types::line, u"Lijn \u03A9"});
    AddRow(translation.codes.texts, {u"ALFA", u"\u03B1", u""});
    for (const TextView code : {u"OMEGA", u"OMEGA", u"VRAAG"}) AddPoint({.code = code});
    AddLine(u"GOED");
    AddSegment({});
    AddText({.text = u"Weg", .code = u"ALFA"});
    const std::string rest = " met in de controletabel een teken dat Windows-1252 niet heeft, geschreven als \"?\"\n";
    EXPECT_EQ(Loss(), "2 punten" + rest + "1 tekst" + rest);
    EXPECT_FALSE(translation.problems.HasDamage());
}

TEST_F(ExportProblems, ACodeOfTheControlTableThatWindows1252LacksDoesNotStandForAQuestionMark) {
    AddRow(translation.codes.points, {u"\u03A9", u"G", types::point});
    AddRow(translation.codes.lines, {u"\u03A9", u"B", types::line});
    AddRow(translation.codes.texts, {u"\u03A9", u"Z", u""});
    AddPoint({.code = u"?"});
    AddPoint({.code = u"?"});
    AddLine(u"?");
    AddSegment({});
    AddText({.text = u"Weg", .code = u"?"});
    EXPECT_EQ(
        Wanted(),
        "2 punten met een onbekende code\n1 lijnsegment met een onbekende code\n1 tekst met een onbekende code\n");
}

}  // namespace

}  // namespace korvande::testing
