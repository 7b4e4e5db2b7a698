#include "tests/picture/ComparisonTest.h"

#include "core/Picture.h"

namespace korvande::testing {

std::string KindTold(const Difference& difference) {
    constexpr const char* kinds[] = {"changed ", "missing ", "added "};
    constexpr const char* objects[] = {"point", "segment", "arc", "circle", "text", "line", "vertex"};
    return std::string(kinds[static_cast<int>(difference.kind)]) + objects[static_cast<int>(difference.object)];
}

std::string Told(const Difference& difference) {
    std::string text = KindTold(difference) + " " + ToUtf8(difference.code);
    if (difference.object != ComparedKind::LineString) {
        text +=
            " " + FormatPicture(difference.place.east, "0.000") + " " + FormatPicture(difference.place.north, "0.000");
    }
    if (!difference.what.empty()) text += ": " + ToUtf8(difference.what);
    return text + (difference.reason.empty() ? "" : " [" + ToUtf8(difference.reason) + "]") + "\n";
}

namespace {

TEST_F(Comparisons, ADrawingEqualsItself) {
    const Comparison comparison = Compared(idexToNen, Idex(drawing), idexToNen, Idex(drawing));
    EXPECT_TRUE(comparison.AreEqual());
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Point), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Segment), "2 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Arc), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Circle), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::TextObject), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::LineString), "2 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Vertex), "4 0 0 0");
}

TEST_F(Comparisons, NumbersByWhichAFileRefersAndItsOrderMakeNoDifference) {
    Rows other{.points =
                   "50,\"105\",50,50,\"HULP\",0,\"\"\n20,\"102\",10,0,\"HULP\",0,\"\"\n30,\"\",10,5,\"HULP\",0,\"\"\n"
                   "40,\"104\",15,5,\"HULP\",0,\"\"\n10,\"101\",0,0,\"BOOM\",10,\"\"\n",
               .lines = "7,\"GEVEL\",0\n9,\"MUUR\",0\n",
               .edges =
                   "9,20,40,STRAIGHT\n9,10,20,STRAIGHT\n7,20,30,CIRCLE_CENT\n7,30,20,CIRCLE_CENT\n"
                   "7,20,30,ARC_CENT\n7,30,40,ARC_CENT\n",
               .texts = "50,1,100,\"Kerk\"\n"};
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, SegmentsThatTwoLineStringsShareBelongToTheSameOneInBoth) {
    drawing.lines = "1,\"MUUR\",0\n2,\"MUUR\",0\n";
    drawing.texts = {};
    Rows other = drawing;
    drawing.edges = "1,1,2,STRAIGHT\n1,2,4,STRAIGHT\n2,2,4,STRAIGHT\n2,4,5,STRAIGHT\n";
    other.edges = "1,2,4,STRAIGHT\n1,4,5,STRAIGHT\n2,1,2,STRAIGHT\n2,2,4,STRAIGHT\n";
    EXPECT_EQ(Differences(drawing, other), "");
    // Drawn one way by the one and the other way by the other.
    drawing.edges = "1,2,4,STRAIGHT\n2,4,2,STRAIGHT\n";
    other.edges = "1,4,2,STRAIGHT\n2,2,4,STRAIGHT\n";
    EXPECT_EQ(Differences(drawing, other), "");
    // The same line twice, of which IDEX tells more.
    drawing.lines = "1,\"MUUR\",0\n2,\"MUUR\",10\n";
    other.lines = "1,\"MUUR\",10\n2,\"MUUR\",0\n";
    drawing.edges = other.edges = "1,2,4,STRAIGHT\n2,2,4,STRAIGHT\n";
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, ArcsAndCirclesBetweenTheSamePlacesAreToldApartByTheirCentres) {
    drawing.points =
        "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"HULP\",0,\"\"\n3,\"\",5,2,\"HULP\",0,\"\"\n4,\"\",5,7,\"HULP\",0,"
        "\"\"\n";
    drawing.texts = {};
    Rows other = drawing;
    drawing.edges =
        "1,1,3,ARC_CENT\n1,3,2,ARC_CENT\n2,1,4,ARC_CENT\n2,4,2,ARC_CENT\n1,1,3,CIRCLE_CENT\n1,3,1,CIRCLE_CENT\n"
        "2,1,4,CIRCLE_CENT\n2,4,1,CIRCLE_CENT\n";
    drawing.lines = other.lines = "1,\"MUUR\",0\n2,\"MUUR\",0\n";
    other.edges =
        "1,1,4,ARC_CENT\n1,4,2,ARC_CENT\n2,1,3,ARC_CENT\n2,3,2,ARC_CENT\n1,1,4,CIRCLE_CENT\n1,4,1,CIRCLE_CENT\n"
        "2,1,3,CIRCLE_CENT\n2,3,1,CIRCLE_CENT\n";
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, OfSeveralPointsAtOnePlaceThoseThatSayTheSameBelongTogether) {
    drawing.points =
        "1,\"A\",0,0,\"LAMP\",10,\"\"\n2,\"A\",0,0,\"LAMP\",20,\"\"\n3,\"A\",0,0,\"LAMP\",30,\"\"\n"
        "4,\"A\",5,0,\"MV\",0,\"EIK\"\n5,\"A\",5,0,\"MV\",0,\"BEUK\"\n";
    drawing.lines = drawing.edges = drawing.texts = {};
    Rows other = drawing;
    other.points =
        "1,\"A\",0,0,\"LAMP\",30,\"\"\n2,\"A\",0,0,\"LAMP\",20,\"\"\n"
        "4,\"A\",5,0,\"MV\",0,\"BEUK\"\n5,\"A\",5,0,\"MV\",0,\"EIK\"\n";
    const Comparison comparison = Compared(idexToNen, Idex(drawing), idexToNen, Idex(other));
    EXPECT_EQ(AllTold(comparison), "missing point LAMP 0.000 0.000\n");
    EXPECT_EQ(comparison.differences.at(0).firstIndex, 1);
}

TEST_F(Comparisons, TheNameOfACentreIsComparedWhereBothFormatsHaveOne) {
    Rows other = drawing;
    other.points.replace(other.points.find("3,\"\","), 5, "3,\"M\",");
    EXPECT_EQ(Differences(drawing, other), "changed vertex  10.000 5.000: puntnummer geen > M\n");
    // The end of another line has one in every format.
    options.chkExportPointnoAsField = options.chkThreePointArcs = true;
    options.chkImportUnknowns = true;
    EXPECT_EQ(AllTold(Compared(idexToNen, Idex(other), nenToIdex, Translated(idexToNen, Idex(other)))).find("vertex"),
              std::string::npos);
    other.edges += "1,3,5,STRAIGHT\n";
    std::string nen = Translated(idexToNen, Idex(other));
    const std::size_t name = nen.find("NM        ");
    ASSERT_NE(name, std::string::npos) << nen;
    nen.replace(name, 2, "NX");
    EXPECT_NE(AllTold(Compared(idexToNen, Idex(other), nenToIdex, nen)).find("vertex  10.000 5.000: puntnummer M > X"),
              std::string::npos);
}

TEST_F(Comparisons, OfManyNamesAtOnePlaceTheFirstAreTold) {
    for (int i = 0; i < 9; ++i) {
        const std::string number = std::to_string(10 + i);
        drawing.points.append(number).append(",\"N").append(number).append("\",15,5,\"HULP\",0,\"\"\n");
        drawing.edges.append("1,2,").append(number).append(",STRAIGHT\n");
    }
    Rows other = drawing;
    for (int i = 0; i < 9; ++i) {
        const std::size_t place = other.points.find("\"N1");
        ASSERT_NE(place, std::string::npos);
        other.points.replace(place, 5, "\"\"");
    }
    EXPECT_EQ(Differences(drawing, other),
              "changed vertex  15.000 5.000: puntnummer N10, N11, N12, N13, N14 en nog 4 > geen\n");
}

TEST_F(Comparisons, WhatAPointSaysIsCompared) {
    Rows other = drawing;
    other.points =
        "1,\"109\",0.0004,0,\"BOOM\",10.2,\"EIK\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
        "4,\"\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed point BOOM 0.000 0.000: puntnummer 101 > 109; richting 10.0 > 10.2; omschrijving geen > EIK\n"
              "changed vertex  15.000 5.000: puntnummer 104 > geen\n");
}

TEST_F(Comparisons, ADirectionWithinATenthOfAGradIsTheSame) {
    Rows other = drawing;
    other.texts = "5,1,100.1,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
    other.texts = "5,1,100.11,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "changed text NAAM 50.000 50.000: richting 100.0 > 100.11\n");
    drawing.texts = "5,1,399.97,\"Kerk\"\n";
    other.texts = "5,1,0.02,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, AMillimetreIsADifference) {
    Rows other = drawing;
    other.points =
        "1,\"101\",0.001,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
        "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other),
              "missing point BOOM 0.000 0.000\nadded point BOOM 0.001 0.000\n"
              "missing segment MUUR 0.000 0.000\nadded segment MUUR 0.001 0.000\n");
}

TEST_F(Comparisons, LinesAreComparedWhicheverWayTheyWereDrawn) {
    Rows other = drawing;
    other.edges =
        "1,2,1,STRAIGHT\n1,2,4,CURVE_3RD\n2,4,3,ARC_CENT\n2,3,2,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed segment MUUR 0.000 0.000: in omgekeerde volgorde\n"
              "changed segment MUUR 10.000 0.000: lijntype STRAIGHT > CURVE_3RD\n"
              "changed arc GEVEL 10.000 0.000: draairichting; in omgekeerde volgorde\n");
    // Backwards and turning the other way it is the same arc.
    other.edges = drawing.edges;
    other.lines = "1,\"MUUR\",0\n2,\"GEVEL\",10000\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed arc GEVEL 10.000 0.000: draairichting\nchanged line GEVEL: vlaggen 1 0 > 16\n");
}

TEST_F(Comparisons, AnArcAboutAnotherCentreIsAChange) {
    Rows other = drawing;
    other.points =
        "1,\"101\",0,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10.001,4.999,\"HULP\",0,\"\"\n"
        "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
    other.points.replace(other.points.find("10.001"), 6, "10.002");
    EXPECT_EQ(Differences(drawing, other),
              "changed arc GEVEL 10.000 0.000: middelpunt 10.000 5.000 > 10.002 4.999\n"
              "changed circle GEVEL 10.000 0.000: middelpunt 10.000 5.000 > 10.002 4.999\n");
}

TEST_F(Comparisons, AnotherCodeAtTheSamePlaceIsAChange) {
    Rows other = drawing;
    other.lines = "1,\"GEVEL\",0\n2,\"GEVEL\",0\n";
    EXPECT_EQ(
        Differences(drawing, other),
        "changed segment MUUR 0.000 0.000: code MUUR > GEVEL\nchanged segment MUUR 10.000 0.000: code MUUR > GEVEL\n");
}

TEST_F(Comparisons, AsManyObjectsAtOnePlaceAreEqualAsBothHave) {
    drawing.points += "6,\"\",70,70,\"MV\",0,\"\"\n7,\"\",70,70,\"MV\",0,\"\"\n8,\"\",70,70,\"GP\",0,\"\"\n";
    Rows other = drawing;
    other.points += "9,\"\",70,70,\"MV\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other), "added point MV 70.000 70.000\n");
    EXPECT_EQ(Differences(other, drawing), "missing point MV 70.000 70.000\n");
}

TEST_F(Comparisons, LineStringsThatWereCutUpOrJoinedAreTold) {
    Rows other = drawing;
    other.lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n3,\"MUUR\",0\n4,\"GEVEL\",0\n";
    other.edges =
        "1,1,2,STRAIGHT\n3,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    EXPECT_EQ(Differences(drawing, other),
              "added line GEVEL [lijnstring zonder segmenten]\n"
              "changed line MUUR: in 2 lijnstrings [elk segment wordt een eigen object]\n");
    EXPECT_EQ(Differences(other, drawing),
              "missing line GEVEL\nchanged line MUUR: samengevoegd met een andere lijnstring\n"
              "changed line MUUR: samengevoegd met een andere lijnstring\n");
}

TEST_F(Comparisons, WhatRefersToNothingIsComparedToo) {
    drawing.points += "9,\"\",1,1,\"MV\",0,\"\"\n";
    drawing.edges += "1,2,7,STRAIGHT\n9,1,2,STRAIGHT\n";
    drawing.texts += "8,1,0,\"Weg\"\n";
    EXPECT_EQ(Differences(drawing, drawing), "");
    Rows other = drawing;
    other.edges =
        "1,1,2,STRAIGHT\n1,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    other.texts = "5,1,100,\"Kerk\"\n";
    EXPECT_EQ(
        Differences(drawing, other),
        "missing segment MUUR 10.000 0.000 [verwijst naar niets]\nmissing segment  0.000 0.000 [verwijst naar niets]\n"
        "missing text NAAM 0.000 0.000: \"Weg\" [verwijst naar niets]\n");
}

TEST_F(Comparisons, ExchangeFilesWithoutAControlTableAreComparedByTheirOwnCodes) {
    const std::string nen = Translated(idexToNen, Idex(drawing));
    LoadEmptyProject(project);
    std::string other = nen;
    EXPECT_TRUE(Compared(nenToIdex, nen, nenToIdex, other).AreEqual());
    const std::size_t code = other.find("03MB05");
    ASSERT_NE(code, std::string::npos);
    other.replace(code, 6, "03MB06");
    EXPECT_EQ(AllTold(Compared(nenToIdex, nen, nenToIdex, other)),
              "changed segment B05 0.000 0.000: code B05 > B06 [de code staat niet in de controletabel]\n");
}

TEST_F(Comparisons, ATextMadeOfAPointIsItselfInTheExchangeFile) {
    options.chkExportPointnoAsText = options.chkExportPointnoAsField = true;
    options.txtPnoTxtLKI = u"Z04";
    const std::string idex = Idex({.points = "1,\"101\",0,0,\"BOOM\",0,\"\"\n"});
    EXPECT_EQ(AllTold(Compared(idexToNen, idex, nenToIdex, Translated(idexToNen, idex))), "");
}

TEST_F(Comparisons, TheReasonIsToldWhereTheDrawingsAndTheTablesKnowIt) {
    options.chkExportPointnoAsField = true;
    Rows rows{.points =
                  "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"VREEMD\",0,\"\"\n3,\"\",1234567,0,\"MV\",0,\"\"\n"
                  "4,\"\",20,0,\"LAMP\",50,\"\"\n",
              .lines = "1,\"PERC\",0\n2,\"MUUR\",0\n",
              .edges = "1,2,4,STRAIGHT\n2,2,4,SPIRAAL\n2,4,2,CURVE_3RD\n",
              .texts = "4,1,0,\"" + std::string(45, 'x') + "\"\n"};
    const std::string idex = Idex(rows);
    const std::string whole = AllTold(Compared(idexToNen, idex, nenToIdex, Translated(idexToNen, idex)));
    EXPECT_EQ(whole,
              "missing point HULP 0.000 0.000 [type DUMMY in de controletabel wordt niet geschreven]\n"
              "missing point VREEMD 10.000 0.000 [de code staat niet in de controletabel]\n"
              "missing point MV 1234567.000 0.000 [de coördinaat past niet in negen posities]\n"
              "changed point LAMP 20.000 0.000: richting 50.0 > 0.0 [een 03-groep heeft geen richting]\n"
              "added point MV 234567.000 0.000\n"
              "missing segment PERC 10.000 0.000 [type DUMMY in de controletabel wordt niet geschreven]\n"
              "missing segment MUUR 10.000 0.000 [lijntype SPIRAAL wordt niet geschreven]\n"
              "changed segment MUUR 20.000 0.000: lijntype CURVE_3RD > STRAIGHT [een kromme wordt recht geschreven]\n"
              "changed text NAAM 20.000 0.000: tekst \"" +
                  std::string(45, 'x') + "\" > \"" + std::string(40, 'x') +
                  "\" [een tekst wordt op 40 tekens afgekapt]\n");
}

}  // namespace

}  // namespace korvande::testing
