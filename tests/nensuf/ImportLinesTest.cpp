#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportLines : public ImportTest {
 protected:
    // Switches the selection rectangle on: 10 to 20 metres east, 30 to 40 north.
    void Select() {
        Options& options = translation.options;
        options.chkSelectXY = true;
        options.txtMinX = u"10";
        options.txtMaxX = u"20 m";
        options.txtMinY = u"30.000";
        options.txtMaxY = u" 4E1";
    }
};

TEST_F(ImportLines, ALineBecomesALineStringOfStraightEdges) {
    Import(Line("B10", At(1000, 2000) + At(3000, 4000, 500) + At(5000, 6000)));
    EXPECT_EQ(Points(),
              "|KANT|1.000 2.000 0.000|0.0000\n|KANT|3.000 4.000 0.500|0.0000\n|KANT|5.000 6.000 0.000|0.0000\n");
    EXPECT_EQ(Lines(), "KANT\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n1: 2-3 STRAIGHT\n");
    EXPECT_EQ(LineDescription(1), "Kant verharding");
    EXPECT_EQ(PointDescription(2), "Kant verharding");
    ExpectAccount(ObjectKind::LineString, 1, 1);
    ExpectAccount(ObjectKind::Point, 0, 0);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportLines, EachLineIsALineStringOfItsOwn) {
    Import(Line("B10", At(1, 1) + At(2, 2)) + Line("B20", At(2, 2) + At(3, 3)));
    EXPECT_EQ(Lines(), "KANT\nMUUR\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n2: 3-4 STRAIGHT\n");
}

TEST_F(ImportLines, ALineMayRunOverManyRecords) {
    std::string fields;
    std::string edges;
    for (std::int64_t i = 1; i <= 100; ++i) {
        fields += Field('I', "2") + N("P" + std::to_string(i)) + At(i * 1000, i);
        if (i > 1) edges += "1: " + std::to_string(i - 1) + "-" + std::to_string(i) + " STRAIGHT\n";
    }
    Import(Line("B10", fields));
    EXPECT_EQ(Edges(), edges);
    EXPECT_EQ(Points().substr(Points().find("P100")), "P100|KANT|100.000 0.100 0.000|0.0000\n");
}

TEST_F(ImportLines, ANumberDirectlyBeforeItsXIsThePointsNumber) {
    Import(Line("B10", N("101") + At(1, 1) + N("102") + At(2, 2)));
    EXPECT_EQ(Points(), "101|KANT|0.001 0.001 0.000|0.0000\n102|KANT|0.002 0.002 0.000|0.0000\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
}

TEST_F(ImportLines, ANumberAnywhereElseIsNone) {
    Import(Line("B10", At(1, 1) + N("1") + Field('I', "2") + At(2, 2) + Field('X', 3) + N("3") + Field('Y', 3) +
                           N("4") + N("5") + At(4, 4)));
    EXPECT_EQ(Points(),
              "|KANT|0.001 0.001 0.000|0.0000\n|KANT|0.002 0.002 0.000|0.0000\n"
              "|KANT|0.003 0.003 0.000|0.0000\n5|KANT|0.004 0.004 0.000|0.0000\n");
}

TEST_F(ImportLines, ALineOfOnePointHasNoEdge) {
    Import(Line("B10", At(1, 1)));
    EXPECT_EQ(Lines(), "KANT\n");
    EXPECT_EQ(Edges(), "");
    ExpectAccount(ObjectKind::LineString, 1, 1);
}

TEST_F(ImportLines, ALineWithoutCoordinatesIsALineStringWithoutEdges) {
    Import(Line("B10", Field('I', "1")) + Line("B10", ""));
    EXPECT_EQ(Lines(), "KANT\nKANT\n");
    EXPECT_EQ(Points() + Edges(), "");
}

TEST_F(ImportLines, AYOrZBeforeTheFirstXFallsOnThePointBeforeTheGroup) {
    Import(Point("P10", At(1000, 2000)) + Line("B10", Field('Y', 7000) + Field('Z', 8000) + At(1, 1)));
    EXPECT_EQ(Points(), "|BOOM|1.000 7.000 8.000|0.0000\n|KANT|0.001 0.001 0.000|0.0000\n");
}

TEST_F(ImportLines, AYBeforeAnyPointIsLost) {
    Import(Line("B10", Field('Y', 7000) + Field('Z', 8000) + Field('X', 1000)));
    EXPECT_EQ(Points(), "|KANT|1.000 0.000 0.000|0.0000\n");
}

TEST_F(ImportLines, CoordinatesAreLeadingNumbers) {
    Import(Line("B10", Field('X', "12a34") + Field('Y', "abc") + Field('Z', "-1.5") + Field('X', "1E3") +
                           Field('Y', "+2 3") + Field('X', "") + Field('Y', "1,9")));
    EXPECT_EQ(Points(),
              "|KANT|0.012 0.000 -0.002|0.0000\n|KANT|1.000 0.002 0.000|0.0000\n|KANT|0.000 0.001 0.000|0.0000\n");
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportLines, AnArcInALineStringIsLoggedAndStaysStraight) {
    Import(Line("B10", Field('I', "1") + At(1, 1) + Field('I', "4") + At(2, 2) + Field('I', "2") + At(3, 3) +
                           Field('I', "        4") + At(4, 4) + Field('I', "14") + At(5, 5)));
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n1: 2-3 STRAIGHT\n1: 3-4 STRAIGHT\n1: 4-5 STRAIGHT\n");
    EXPECT_TRUE(screen.boxes.empty());
    const std::string line = "FOUT:  Boog in lijnstring wordt niet ondersteund\n";
    EXPECT_EQ(LogText(), line + line);
}

TEST_F(ImportLines, AMissing04GroupIsReportedAndTheRunGoesOn) {
    Import(Head("B10", "12") + Record("06A03TWeg") + Line("B20", At(1, 1) + At(2, 2)));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(ToUtf8(screen.boxes[0].text), "04 record ontbreekt");
    EXPECT_EQ(ToUtf8(screen.boxes[0].title), "");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(Lines(), "MUUR\n");
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 0);
    ExpectLeft(ObjectKind::LineString, LeftOut::MissingRecord);
    EXPECT_EQ(LogText(), "FOUT:  Lijn, 04 record ontbreekt\n");
}

TEST_F(ImportLines, AnUnknownLineIsDroppedWithItsCoordinates) {
    Import(Line("ONB", At(1, 1) + At(2, 2)) + Line("B10", At(3, 3) + At(4, 4)));
    EXPECT_EQ(Lines(), "KANT\n");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 1);
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 1);
    ExpectLeft(ObjectKind::LineString, LeftOut::UnknownCode);
}

TEST_F(ImportLines, AnUnknownLineIsImportedAsTheUnknownRowWhenAskedFor) {
    translation.options.chkImportUnknowns = true;
    Import(Line("ONB", At(1, 1) + At(2, 2)));
    EXPECT_EQ(Lines(), "STANDRD\n");
    EXPECT_EQ(LineDescription(1), "ONBEKEND LIJNOBJECT");
    EXPECT_EQ(Points(), "|STANDRD|0.001 0.001 0.000|0.0000\n|STANDRD|0.002 0.002 0.000|0.0000\n");
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 1);
    EXPECT_EQ(translation.unknowns.Entries().size(), 0U);
    ExpectAccount(ObjectKind::LineString, 1, 1);
}

TEST_F(ImportLines, TheExportBoxDecidesWhetherUnknownCodesAreListed) {
    translation.options.chkExportUnknowns = true;
    for (const bool imported : {false, true}) {
        translation.options.chkImportUnknowns = imported;
        Import(Line("ONB", At(1, 1)) + Line("onb", At(1, 1)) + Arc("ONB", At(1, 1)) + Point("ONB", At(1, 1)) +
               Symbol("ONB2", At(1, 1)) + TextGroups("ONBEKENDE", At(1, 1), "Weg"));
        std::string tally;
        for (const UnknownCodeRec& entry : translation.unknowns.Entries()) {
            tally += ToUtf8(entry.Code.View()) + "=" + std::to_string(entry.Count) + "|";
        }
        EXPECT_EQ(tally, "LONB    =2|Lonb    =1|PONB    =1|PONB2   =1|TONBEKEN=1|");
    }
}

TEST_F(ImportLines, TheSameUnknownCodeTwiceInARowIsSearchedOnce) {
    const std::int64_t before = translation.codes.lines.byLki.SearchCount();
    Import(Line("ONB", At(1, 1)) + Line("ONB", At(1, 1)));
    EXPECT_EQ(translation.codes.lines.byLki.SearchCount() - before, 1);
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 2);
}

TEST_F(ImportLines, OfRowsWithTheSameLkiCodeTheLastIsTaken) {
    AddRow(translation.codes.lines, u"LAATSTE", u"B10", u"Laatste");
    AddRow(translation.codes.lines, u"ANDERS", u"Q00", u"Zoals de onbekende");
    Import(Line("B10", At(1, 1)) + Line("Q00", At(1, 1)));
    EXPECT_EQ(Lines(), "LAATSTE\nANDERS\n");
}

TEST_F(ImportLines, TheUnknownRowItselfIsNotFoundByItsCode) {
    Import(Line("Q00", At(1, 1)));
    EXPECT_EQ(Lines(), "");
    EXPECT_EQ(translation.codes.lines.rows[0].Count, 1);
}

TEST_F(ImportLines, ACodeOfNineCharactersIsSoughtByItsFirstSeven) {
    AddRow(translation.codes.lines, u"LANG", u"1234567", u"Lang");
    Import(Line("123456789", At(1, 1)));
    EXPECT_EQ(Lines(), "LANG\n");
}

TEST_F(ImportLines, ATableWithoutRowsLeavesItsObjectsOut) {
    translation.options.chkImportUnknowns = true;
    translation.options.chkExportUnknowns = true;
    for (CodeTable* table : {&translation.codes.points, &translation.codes.lines, &translation.codes.texts}) {
        table->rows.clear();
        table->RowsChanged();
    }
    Import(Line("B10", At(1, 1)) + Arc("B10", At(1, 1) + At(2, 3) + At(3, 1)) + Point("P10", At(1, 1)) +
           Symbol("S01", At(1, 1), "A01") + TextGroups("Z10", At(1, 1), "Weg"));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), "");
    EXPECT_EQ(translation.unknowns.Entries().size(), 0U);
    ExpectLeft(ObjectKind::LineString, LeftOut::UnknownCode);
    ExpectLeft(ObjectKind::Arc, LeftOut::UnknownCode);
    ExpectLeft(ObjectKind::Point, LeftOut::UnknownCode, 2);
    ExpectLeft(ObjectKind::TextObject, LeftOut::UnknownCode);
}

TEST_F(ImportLines, TheRectangleTestsTheFirstPointOnly) {
    Select();
    Import(Line("B10", At(15000, 35000) + At(99000, 99000)) + Line("B20", At(9000, 35000) + At(15000, 35000)));
    EXPECT_EQ(Lines(), "KANT\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
    ExpectAccount(ObjectKind::LineString, 2, 1);
    ExpectLeft(ObjectKind::LineString, LeftOut::OutsideRectangle);
}

TEST_F(ImportLines, TheBordersOfTheRectangleBelongToIt) {
    Select();
    for (const std::string& inside : {At(10000, 30000), At(20000, 30000), At(10000, 40000), At(20000, 40000)}) {
        Import(Line("B10", inside));
        EXPECT_EQ(Lines(), "KANT\n") << inside;
    }
    for (const std::string& outside : {At(9999, 35000), At(20001, 35000), At(15000, 29999), At(15000, 40001)}) {
        Import(Line("B10", outside));
        EXPECT_EQ(Points() + Lines(), "") << outside;
    }
}

TEST_F(ImportLines, ADroppedLineLeavesNoTrace) {
    Select();
    Import(Line("B10", N("1") + At(1, 1) + At(2, 2) + At(3, 3)) + Line("B20", At(15000, 35000) + At(2, 2)));
    EXPECT_EQ(Points(), "|MUUR|15.000 35.000 0.000|0.0000\n|MUUR|0.002 0.002 0.000|0.0000\n");
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
    EXPECT_EQ(translation.codes.lines.rows[1].Count, 1);
}

TEST_F(ImportLines, ALineWithoutCoordinatesIsOutsideAnyRectangle) {
    translation.options.chkSelectXY = true;  // all of the grid, 0, 0 among it
    Import(Line("B10", ""));
    EXPECT_EQ(Lines(), "");
    ExpectLeft(ObjectKind::LineString, LeftOut::OutsideRectangle);
}

TEST_F(ImportLines, WithoutTheBoxTheRectangleTakesNoPart) {
    Select();
    translation.options.chkSelectXY = false;
    Import(Line("B10", At(1, 1)));
    EXPECT_EQ(Lines(), "KANT\n");
}

TEST_F(ImportLines, MetresBeyondAllNumbersEndTheImportToo) {
    Import(Line("B10", Field('X', "9E307")), FirstLine() + SecondLine("010255"));
    EXPECT_EQ(Points(), "");
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 4)\n");
}

TEST_F(ImportLines, CoordinatesBeyondAllNumbersEndTheImportInTheMiddleOfTheLine) {
    Import(Line("B10", At(1000, 1000) + At(2000, 2000) + Field('X', "9E999") + At(3000, 3000)) + Line("B20", At(1, 1)));
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
    EXPECT_EQ(Lines(), "KANT\n");
    ExpectAccount(ObjectKind::LineString, 1, 0);
    ExpectLeft(ObjectKind::LineString, LeftOut::Unfinished);
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 5)\n");
}

}  // namespace

}  // namespace korvande::testing
