#include "tests/nensuf/ImportTest.h"
#include "tests/nensuf/ProblemLists.h"

namespace korvande::testing {

namespace {

// The header has two lines, so that the first group begins in line 3.
class ImportObjectProblems : public ImportTest {
 protected:
    std::string LossOfGroups(std::string_view groups, std::string_view header = NenHeader()) {
        translation.problems = {};
        translation.account = {};
        Import(groups, header);
        return LossOf(translation);
    }
    std::string WantedOfGroups(std::string_view groups) {
        EXPECT_EQ(LossOfGroups(groups), "");
        return WantedOf(translation);
    }
    void ExpectDamage(bool isDamage = true) { EXPECT_EQ(translation.problems.HasDamage(), isDamage); }
};

const std::string three = At(0, 10000) + At(10000, 0) + At(0, -10000);

TEST_F(ImportObjectProblems, CoordinatesInTheHeadOfAnObjectAreTold) {
    EXPECT_EQ(LossOfGroups(Group("03", Field('M', "P10") + Field('G', "01") + At(1, 1)) + Geometry(At(2, 2))),
              "1 punt van een groep overgeslagen (op regel 3)\n");
}

TEST_F(ImportObjectProblems, ObjectsLeftOutAreToldByTheirReasonWithTheirLine) {
    EXPECT_EQ(LossOfGroups(Group("03", Field('G', "12")) + Geometry(three)),
              "1 lijnstring zonder code of soort (op regel 3)\n");
    ExpectLeft(ObjectKind::LineString, LeftOut::NoCode);
    EXPECT_EQ(LossOfGroups(Point("P10", N("1"))),
              "1 punt zonder coördinaten in het record (op regel 3)\n"
              "1 puntnummer zonder punt overgeslagen (op regel 4)\n");
    EXPECT_EQ(LossOfGroups(Head("B10", "14") + Geometry(three)),
              "1 object van een soort die niet wordt vertaald (op regel 3)\n");
    ExpectDamage(false);
    EXPECT_EQ(WantedOfGroups(Point("ONB", At(1, 1)) + Line("ONB", At(1, 1)) + Point("ONB", At(1, 1))),
              "2 punten met een onbekende code (de eerste op regel 3)\n"
              "1 lijnstring met een onbekende code (op regel 5)\n");
}

TEST_F(ImportObjectProblems, AGroupThatNamesNoKindIsDamage) {
    EXPECT_EQ(
        LossOfGroups(Group("03", Field('M', "P10")) + Geometry(three) + Group("05", Field('K', "P10") + At(1, 1))),
        "2 objecten zonder code of soort (de eerste op regel 3)\n");
    ExpectDamage();
    ExpectLeft(ObjectKind::Other, LeftOut::NotTranslated, 2);
}

TEST_F(ImportObjectProblems, WhatLiesOutsideTheRectangleIsWanted) {
    translation.options.chkSelectXY = true;
    translation.options.txtMinX = translation.options.txtMinY = u"0";
    translation.options.txtMaxX = translation.options.txtMaxY = u"5";
    EXPECT_EQ(WantedOfGroups(Point("P10", At(1, 1)) + Point("P10", At(9000, 1)) + Line("B10", At(9000, 1) + At(1, 1)) +
                             Arc("B10", three + At(0, 0) + At(1, 1))),
              "1 punt buiten de rechthoek (op regel 5)\n1 lijnstring buiten de rechthoek (op regel 7)\n"
              "2 bogen buiten de rechthoek (de eerste op regel 9)\n");
}

TEST_F(ImportObjectProblems, AnObjectWithoutItsRecordIsToldBesideTheErrorOfTheLogBook) {
    EXPECT_EQ(LossOfGroups(Head("P10", "01") + Line("B10", At(1, 1) + At(2, 2)) + Placement("111", "Z10", At(1, 1))),
              "1 lijnstring waarvan een record ontbreekt (op regel 4)\n"
              "1 punt waarvan een record ontbreekt (op regel 3)\n"
              "1 tekst waarvan een record ontbreekt (op regel 6)\n");
    ExpectDamage();
    EXPECT_EQ(LogText(), "FOUT:  Punt, 04 record ontbreekt\nFOUT:  Tekst, 06 record ontbreekt\n");
}

TEST_F(ImportObjectProblems, AnArcOfTooFewPointsIsToldBesideTheErrorOfTheLogBook) {
    EXPECT_EQ(LossOfGroups(Arc("B10", three + At(1, 1))), "1 onvolledige boog (op regel 3)\n");
    EXPECT_EQ(LogText(), "FOUT:  Ongeldige boog\n");
}

TEST_F(ImportObjectProblems, AMutationFileIsToldOnce) {
    const std::string first = FirstLine("0NEN1878    G202405202405       0101S05");
    EXPECT_EQ(LossOfGroups(Point("P10", At(1, 1)), first + SecondLine("010215")),
              "het bestand is een mutatiebestand (kenmerk G), gelezen als gewoon bestand (op regel 1)\n");
    ExpectDamage(false);
    for (const std::string good : {"0NEN1878    V", "0NEN1878", "0NEN1878     202405"}) {
        EXPECT_EQ(LossOfGroups("", FirstLine(good) + SecondLine("010215")), "") << good;
    }
}

TEST_F(ImportObjectProblems, ObjectsMarkedAsToBeDeletedOrChangedAreToldAndImported) {
    EXPECT_EQ(LossOfGroups(Head("B10", "120114") + Geometry(At(1, 1) + At(2, 2)) + Head("P10", "010113") +
                           Geometry(At(1, 1)) + Group("05", Field('F', "132") + At(1, 1)) +
                           Placement("141", "Z10", At(1, 1)) + TextRecord("Weg")),
              "1 lijnstring gemarkeerd als te verwijderen of te wijzigen, en toch overgenomen (op regel 3)\n"
              "1 punt gemarkeerd als te verwijderen of te wijzigen, en toch overgenomen (op regel 5)\n"
              "1 tekst gemarkeerd als te verwijderen of te wijzigen, en toch overgenomen (op regel 8)\n");
    ExpectDamage(false);
    ExpectAccount(ObjectKind::LineString, 1, 1);
    ExpectAccount(ObjectKind::Point, 1, 1);
    ExpectAccount(ObjectKind::TextObject, 1, 1);
    for (const std::string good : {"010111", "0101", " 10 01", "01010 ", "010100"}) {
        EXPECT_EQ(LossOfGroups(Head("P10", good) + Geometry(At(1, 1)) + Symbol("P10", At(1, 1)) +
                               Placement("0 2", "P10", At(1, 1))),
                  "")
            << good;
    }
}

TEST_F(ImportObjectProblems, AnObjectIsMarkedByAnyOfItsFieldsAndToldOnce) {
    const std::string firstOfTwo = Group("03", "MP10      " + Field('G', "010113") + Field('G', "010111"));
    EXPECT_EQ(LossOfGroups(firstOfTwo + Geometry(At(1, 1)) +
                           Group("05", Field('F', "131") + Field('F', "111") + Field('K', "Z10") + At(1, 1)) +
                           TextRecord("Weg")),
              "1 punt gemarkeerd als te verwijderen of te wijzigen, en toch overgenomen (op regel 3)\n"
              "1 tekst gemarkeerd als te verwijderen of te wijzigen, en toch overgenomen (op regel 5)\n");
}

TEST_F(ImportObjectProblems, AKindThatIsNoWholeNumberIsNone) {
    for (const std::string kind : {".5", "x1", "-3"}) {
        EXPECT_EQ(LossOfGroups(Head("P10", kind) + Geometry(At(1, 1))),
                  LossOfGroups(Head("P10", "00") + Geometry(At(1, 1))))
            << kind;
    }
}

TEST_F(ImportObjectProblems, ACoordinateThatIsNotWhollyANumberIsToldWhateverTheObject) {
    for (const std::string bad : {"12l023", "abc", "", "1,5", "12 3", "1-2", "123456 78", "1234567a9", "-"}) {
        const std::string place = Field('X', bad) + Field('Y', 5);
        EXPECT_EQ(LossOfGroups(Point("P10", place) + Line("B10", At(1, 1) + Field('X', 1) + Field('Y', bad)) +
                               Arc("B10", three + Field('Z', bad)) + TextGroups("Z10", place, "Weg")),
                  "4 coördinaten die geen getal zijn (de eerste op regel 4)\n")
            << bad;
        ExpectDamage();
    }
    for (const std::string good :
         {"1", "123456789", "  12", "12   ", "-5", "+5", "1.5", "1E2", " -12345 ", "000000012"}) {
        EXPECT_EQ(LossOfGroups(Point("P10", Field('X', good) + Field('Y', 1))), "") << good;
    }
}

TEST_F(ImportObjectProblems, TheCoordinatesOfAnUnknownObjectAreNotTold) {
    EXPECT_EQ(LossOfGroups(Point("ONB", Field('X', "a") + Field('Y', 1)) + Line("ONB", Field('X', "a"))), "");
}

TEST_F(ImportObjectProblems, AnXOrYWithoutTheOtherIsTold) {
    const std::string x = Field('X', 1);
    const std::string y = Field('Y', 1);
    for (const std::string& fields : {x, x + x + y, y + x + y, x + y + y, At(1, 1) + x}) {
        EXPECT_EQ(LossOfGroups(Line("B10", fields)), "1 X zonder Y of Y zonder X (op regel 4)\n") << fields;
        EXPECT_EQ(LossOfGroups(Point("P10", fields)), "1 X zonder Y of Y zonder X (op regel 4)\n") << fields;
        ExpectDamage();
    }
    EXPECT_EQ(LossOfGroups(Arc("B10", three + y)), "1 X zonder Y of Y zonder X (op regel 5)\n");
}

TEST_F(ImportObjectProblems, ALineStringWithoutCoordinatesIsToldThoughItStays) {
    EXPECT_EQ(LossOfGroups(Line("B10", Field('Q', "  1  1  1"))),
              "1 lijnstring zonder coördinaten in het record (op regel 3)\n");
    ExpectAccount(ObjectKind::LineString, 1, 1);
    EXPECT_EQ(LossOfGroups(Line("B10", At(1, 1))), "");
}

TEST_F(ImportObjectProblems, PointsBeyondThoseThatAnObjectTakesAreTold) {
    const std::string two = At(1, 1) + At(2, 2);
    EXPECT_EQ(LossOfGroups(Point("P10", two) + Symbol("P10", two) + TextGroups("Z10", two + two + At(5, 5), "Weg")),
              "");
    EXPECT_EQ(LossOfGroups(Point("P10", two + two)), "2 punten van een groep overgeslagen (de eerste op regel 5)\n");
    ExpectDamage(false);
    EXPECT_EQ(LossOfGroups(Symbol("P10", two + At(3, 3))), "1 punt van een groep overgeslagen (op regel 4)\n");
    EXPECT_EQ(LossOfGroups(TextGroups("Z10", two + two + two, "Weg")),
              "1 punt van een groep overgeslagen (op regel 5)\n");
}

TEST_F(ImportObjectProblems, NumbersThatCameTwiceAreWantedAndToldWithTheLineOfTheirPoint) {
    EXPECT_EQ(WantedOfGroups(Point("P10", N("7") + At(1, 1)) + Line("B10", N("7") + At(1, 1) + N("8") + At(2, 2)) +
                             Point("P10", N("8") + At(1, 1)) + Point("P10", At(1, 1))),
              "2 puntnummers gewist omdat ze al voorkwamen (de eerste op regel 6)\n");
}

TEST_F(ImportObjectProblems, NumbersOfArcsAreWantedAndTold) {
    EXPECT_EQ(WantedOfGroups(Arc("B10", N("1") + At(0, 10000) + N("") + At(10000, 0) + N("3") + At(0, -10000))),
              "2 puntnummers van bogen niet overgenomen (de eerste op regel 4)\n");
}

TEST_F(ImportObjectProblems, ANumberThatNoPointTakesIsTold) {
    const std::string told = "1 puntnummer zonder punt overgeslagen (op regel 4)\n";
    EXPECT_EQ(LossOfGroups(Line("B10", At(1, 1) + N("2"))), told);
    ExpectDamage(false);
    EXPECT_EQ(LossOfGroups(Line("B10", N("2") + Field('I', "1") + At(1, 1))), told);
    EXPECT_EQ(LossOfGroups(Point("P10", N("1") + N("2") + At(1, 1))), told);
    EXPECT_EQ(LossOfGroups(Point("P10", At(1, 1) + N("2"))), told);
    EXPECT_EQ(LossOfGroups(Line("B10", At(1, 1) + N("")) + Point("P10", N("1") + Field('I', "1") + At(1, 1))), "");
}

TEST_F(ImportObjectProblems, ATextThatLosesItsEndIsTold) {
    const std::string place = Placement("111", "Z10", At(1, 1));
    const std::string told = "1 tekst afgekapt op 47 tekens (op regel 4)\n";
    EXPECT_EQ(LossOfGroups(TextGroups("Z10", At(1, 1), std::string(47, 'x'))), "");
    EXPECT_EQ(LossOfGroups(TextGroups("Z10", At(1, 1), std::string(48, 'x'))), told);
    ExpectDamage(false);
    EXPECT_EQ(LossOfGroups(place + Record("06A40TWeg", "00") + Record("06verder")), told);
    EXPECT_EQ(LossOfGroups(place + Record("06A57TWeg")), told);
    EXPECT_EQ(LossOfGroups(place + Record("06A56TWeg")), "");
    EXPECT_EQ(LossOfGroups(place + Record("06A09TWeg", "00") + Group("05", Field('F', "112") + At(1, 1)) +
                           Point("P10", At(1, 1))),
              "1 punt zonder code of soort (op regel 5)\n");
}

TEST_F(ImportObjectProblems, ThePlaceNameThatLosesItsFirstCharactersIsWanted) {
    const std::string place = Placement("111", "Z01", At(1, 1));
    EXPECT_EQ(WantedOfGroups(place + Record("06A20T0000001Molveren")),
              "1 plaatsnaam (Z01) zonder zijn eerste tekens (op regel 4)\n");
    EXPECT_EQ(WantedOfGroups(place + Record("06A20T       Molveren")), "");
}

TEST_F(ImportObjectProblems, EverythingReadKnowsItsLine) {
    Import(Point("P10", At(1, 1)) + Line("B10", At(1, 1) + At(2, 2) + At(3, 3) + At(4, 4)) + Record("kort") +
           Arc("B20", three) + TextGroups("Z10", At(1, 1) + At(2, 2), "Weg"));
    const Drawing& drawing = translation.drawing;
    std::string lines;
    for (int i = 1; i <= drawing.Points.UpperBound(); ++i) lines += std::to_string(drawing.Points[i].InputLine) + " ";
    EXPECT_EQ(lines, "4 6 6 6 7 10 10 10 11 11 ");
    lines.clear();
    for (int i = 1; i <= drawing.Lines.UpperBound(); ++i) lines += std::to_string(drawing.Lines[i].InputLine) + " ";
    EXPECT_EQ(lines, "5 9 11 ");
    lines.clear();
    for (int i = 1; i <= drawing.Edges.UpperBound(); ++i) lines += std::to_string(drawing.Edges[i].InputLine) + " ";
    EXPECT_EQ(lines, "6 6 7 10 10 11 ");
    EXPECT_EQ(drawing.Texts[1].InputLine, 11);
}

}  // namespace

}  // namespace korvande::testing
