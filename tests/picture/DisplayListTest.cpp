#include "picture/DisplayList.h"

#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

class DisplayLists : public PictureTest {};

TEST_F(DisplayLists, PointsAreShownByTheTypeOfTheirCode) {
    const DisplayList list = Picture({.points = "1,\"A\",121000.0005,487000.9994,\"BOOM\",12.5,\"\"\n"
                                                "2,\"B\",121001,487001,\"LAMP\",399.9,\"\"\n"
                                                "3,\"C\",121002,487002,\"GP\",0,\"\"\n"
                                                "4,\"D\",121003,487003,\"MV\",0,\"\"\n"
                                                "5,\"E\",121004,487004,\"HULP\",0,\"\"\n"
                                                "6,\"F\",121005,487005,\"VREEMD\",0,\"\"\n"
                                                "7,\"G\",121006,487006,\"BOOM\",0,\"\"\n"});
    EXPECT_EQ(PointsOf(list),
              "BOOM Symbol 121000.001 487000.999 12.5\nLAMP Rotated 121001.000 487001.000 399.9\n"
              "GP ControlPoint 121002.000 487002.000 0\nMV Plain 121003.000 487003.000 0\n"
              "HULP NotWritten 121004.000 487004.000 0\nVREEMD Plain 121005.000 487005.000 0 unknown\n"
              "BOOM Symbol 121006.000 487006.000 0\n");
    EXPECT_EQ(CodesOf(list),
              "P BOOM = S01 A01, LOOFBOOM, known, 2\nP LAMP = S02 B01, LANTAARN, known, 1\n"
              "P GP = E01, GRONDSLAGPUNT, known, 1\nP MV = Q21, MAAIVELD, known, 1\n"
              "P HULP = Q25, HULPPUNT, known, not written, 1\nP VREEMD = Q20, , unknown, 1\n");
    EXPECT_EQ(Metres(list, {list.extent.minEast, list.extent.minNorth}), "121000.001 487000.999");
    EXPECT_EQ(Metres(list, {list.extent.maxEast, list.extent.maxNorth}), "121006.000 487006.000");
}

TEST_F(DisplayLists, LineStringsAreShownWithTheirArcsTrueToCentreAndTurningDirection) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"HULP\",0,\"\"\n"
                                                "3,\"\",10,5,\"HULP\",0,\"\"\n4,\"\",15,5,\"HULP\",0,\"\"\n",
                                      .lines = "1,\"MUUR\",0\n2,\"GEVEL\",10000\n",
                                      .edges = "1,1,2,STRAIGHT\n1,2,3,ARC_CENT\n1,3,4,ARC_CENT\n"
                                               "2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,1,2,STRAIGHT\n2,2,3,SPIRAAL\n"});
    EXPECT_EQ(LinesOf(list),
              "MUUR 1: M 0.000 0.000 L 10.000 0.000 A> 10.000 5.000 15.000 5.000\n"
              "GEVEL 2: M 10.000 0.000 A< 10.000 5.000 15.000 5.000 M 0.000 0.000 L 10.000 0.000 L 10.000 5.000\n");
    // Clockwise three quarters, anticlockwise one quarter.
    EXPECT_EQ(Metres(list, {list.extent.minEast, list.extent.minNorth}), "0.000 0.000");
    EXPECT_EQ(Metres(list, {list.extent.maxEast, list.extent.maxNorth}), "15.000 10.000");
    EXPECT_EQ(list.points.size(), 0);
    EXPECT_EQ(list.segments, 7);
}

TEST_F(DisplayLists, ACircleIsTwoHalfCircles) {
    const DisplayList list =
        Picture({.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",3,4,\"HULP\",0,\"\"\n3,\"\",6,8,\"HULP\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n",
                 .edges = "1,1,2,CIRCLE_CENT\n1,2,1,CIRCLE_CENT\n1,1,2,CIRCLE_CENT\n1,2,3,CIRCLE_CENT\n"
                          "1,3,1,STRAIGHT\n"});
    EXPECT_EQ(LinesOf(list),
              "MUUR 1: M 0.000 0.000 A> 3.000 4.000 6.000 8.000 A> 3.000 4.000 0.000 0.000 "
              "A> 3.000 4.000 6.000 8.000 A> 3.000 4.000 0.000 0.000 M 6.000 8.000 L 0.000 0.000\n");
    EXPECT_EQ(Metres(list, {list.extent.minEast, list.extent.minNorth}), "-2.000 -1.000");
    EXPECT_EQ(Metres(list, {list.extent.maxEast, list.extent.maxNorth}), "8.000 9.000");
}

TEST_F(DisplayLists, ACurveGoesThroughItsPointsAndAlongAStraightLineWhereTheyAreOnOne) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",3,6,\"HULP\",0,\"\"\n"
                                                "3,\"\",6,12,\"HULP\",0,\"\"\n4,\"\",9,0,\"HULP\",0,\"\"\n",
                                      .lines = "1,\"MUUR\",0\n2,\"MUUR\",0\n",
                                      .edges = "1,1,2,CURVE_3RD\n1,2,3,CURVE_3RD\n2,1,4,CURVE_4RD\n"});
    EXPECT_EQ(LinesOf(list),
              "MUUR 1: M 0.000 0.000 C 1.000 2.000 2.000 4.000 3.000 6.000 C 4.000 8.000 5.000 10.000 6.000 12.000\n"
              "MUUR 2: M 0.000 0.000 L 9.000 0.000\n");
}

TEST_F(DisplayLists, ALongLineStringIsSeveralPartsThatGoOnFromEachOther) {
    Rows rows{.points = "", .lines = "1,\"MUUR\",0\n"};
    for (int i = 1; i <= 131; ++i) {
        rows.points += std::to_string(i) + ",\"\"," + std::to_string(i) + ",0,\"HULP\",0,\"\"\n";
        if (i > 1) rows.edges += "1," + std::to_string(i - 1) + "," + std::to_string(i) + ",STRAIGHT\n";
    }
    const DisplayList list = Picture(rows);
    ASSERT_EQ(list.lines.size(), 3);
    EXPECT_EQ(list.codes.size(), 1);
    EXPECT_EQ(list.codes[0].count, 1);
    EXPECT_EQ(list.segments, 130);
    const PictureLine& second = list.lines[1];
    EXPECT_EQ(second.placeCount, 65);
    EXPECT_EQ(list.steps[second.firstPlace], PictureStep::Resume);
    EXPECT_EQ(list.places[second.firstPlace], list.places[second.firstPlace - 1]);
    EXPECT_EQ(list.lines[2].placeCount, 3);
    EXPECT_EQ(Metres(list, list.places.back()), "131.000 0.000");
}

TEST_F(DisplayLists, TextsAreShownAtTheirAnchorWithTheirDirection) {
    const DisplayList list =
        Picture({.points = "7,\"\",1,2,\"HULP\",0,\"\"\n9,\"\",3,4,\"BOOM\",0,\"\"\n",
                 .texts = "7,5,33.25,\"Kerk\"\n9,12,400,\"  a b \"\n8,1,0,\"nergens\"\n7,1,0,\"  \"\n"});
    EXPECT_EQ(TextsOf(list), "NAAM 1.000 2.000 33.25 5 4\nNAAM 3.000 4.000 400 0 3\n");
    EXPECT_EQ(PointsOf(list), "BOOM Symbol 3.000 4.000 0\n");  // the DUMMY is the place of a text
    EXPECT_EQ(list.notShown, 2);
}

TEST_F(DisplayLists, ATextMadeOfAPointIsKnownByItsLkiCode) {
    options.chkExportPointnoAsText = true;
    options.txtPnoTxtLKI = u"Z30";
    const DisplayList list = Picture({.points = "1,\"P1\",1,2,\"MV\",0,\"\"\n"});
    EXPECT_EQ(TextsOf(list), "ÿZ30 1.000 2.000 0 9 2\n");
    EXPECT_EQ(CodesOf(list), "T ÿZ30 = Z30, Tekst uit de punten, known, 1\nP MV = Q21, MAAIVELD, known, 1\n");
}

TEST_F(DisplayLists, WhatRefersToNothingOrLiesBeyondReachIsCountedAndNotShown) {
    const DisplayList list =
        Picture({.points = "1,\"\",121000,487000,\"BOOM\",0,\"\"\n2,\"\",121001,487000,\"BOOM\",0,\"\"\n"
                           "3,\"\",9e9,487000,\"BOOM\",0,\"\"\n6,\"\",1e30,0,\"BOOM\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n",
                 .edges = "1,1,2,STRAIGHT\n1,2,3,STRAIGHT\n1,2,5,STRAIGHT\n7,1,2,STRAIGHT\n"});
    EXPECT_EQ(PointsOf(list), "BOOM Symbol 121000.000 487000.000 0\nBOOM Symbol 121001.000 487000.000 0\n");
    EXPECT_EQ(LinesOf(list), "MUUR 1: M 121000.000 487000.000 L 121001.000 487000.000\n");
    EXPECT_EQ(list.notShown, 4);  // two points, a segment to one of them, one to nothing
    EXPECT_EQ(list.extent.maxEast - list.extent.minEast, 1000);
}

TEST_F(DisplayLists, AnEmptyDrawingHasAnEmptyPicture) {
    const DisplayList list = Picture({.points = ""});
    EXPECT_TRUE(list.extent.IsEmpty());
    EXPECT_TRUE(list.points.empty() && list.lines.empty() && list.texts.empty() && list.codes.empty());
}

TEST_F(DisplayLists, LineStringsWithoutSegmentsAreNotShown) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"BOOM\",0,\"\"\n2,\"\",1,0,\"BOOM\",0,\"\"\n",
                                      .lines = "1,\"MUUR\",0\n5,\"GEVEL\",0\n",
                                      .edges = "5,1,2,STRAIGHT\n"});
    EXPECT_EQ(LinesOf(list), "GEVEL 5: M 0.000 0.000 L 1.000 0.000\n");
}

TEST_F(DisplayLists, OfAnExchangeFileOnlyItsOwnObjectsAreShown) {
    // A known and an unknown line, a tree, an unknown point, and a text with its two places.
    options.chkExportUnknowns = true;
    const std::string idex = Idex({.points = "1,\"\",1,1,\"BOOM\",0,\"\"\n2,\"\",2,1,\"HULP\",0,\"\"\n"
                                             "3,\"\",3,1,\"HULP\",0,\"\"\n4,\"\",4,1,\"VREEMD\",0,\"\"\n",
                                   .lines = "1,\"MUUR\",0\n2,\"ANDERS\",0\n",
                                   .edges = "1,2,3,STRAIGHT\n2,3,4,STRAIGHT\n",
                                   .texts = "2,5,100,\"Kerk\"\n"});
    for (const auto& [write, read] : {std::pair(idexToNen, nenToIdex), std::pair(idexToSuf, sufToIdex)}) {
        TranslateFiles(BeginInMemory(write, idex));
        const std::string exchange = last->outputBytes;
        const DisplayList list = Picture(read, exchange);
        EXPECT_EQ(PointsOf(list), "BOOM Symbol 1.000 1.000 0\nQ20 Plain 4.000 1.000 0 unknown\n");
        EXPECT_EQ(LinesOf(list), "MUUR 1: M 2.000 1.000 L 3.000 1.000\nQ00 2: M 3.000 1.000 L 4.000 1.000\n");
        EXPECT_EQ(TextsOf(list), "NAAM 2.000 1.000 100 1 4\n");
        EXPECT_EQ(CodesOf(list),
                  "T NAAM = Z04, NAAM, known, 1\nL MUUR = B05, MUUR, known, 1\nL Q00 = Q00, , unknown, 1\n"
                  "P BOOM = S01 A01, LOOFBOOM, known, 1\nP Q20 = Q20, , unknown, 1\n");
        EXPECT_EQ(list.notShown, 0);
    }
}

TEST_F(DisplayLists, UnknownCodesOfAnExchangeFileStayApart) {
    options.chkExportUnknowns = true;
    TranslateFiles(BeginInMemory(idexToNen, Idex({.points = "1,\"\",1,1,\"EEN\",0,\"\"\n2,\"\",2,1,\"TWEE\",0,\"\"\n",
                                                  .lines = "1,\"DRIE\",0\n2,\"VIER\",0\n",
                                                  .edges = "1,1,2,STRAIGHT\n2,2,1,STRAIGHT\n"})));
    // The code that the first of each was written with becomes another one.
    std::string exchange = last->outputBytes;
    for (const auto& [code, other] : {std::pair("MQ20", "MQ29"), std::pair("MQ00", "MQ09")}) {
        const std::size_t place = exchange.find(code);
        ASSERT_NE(place, std::string::npos) << code;
        exchange.replace(place, 4, other);
    }
    const DisplayList list = Picture(nenToIdex, exchange);
    EXPECT_EQ(PointsOf(list), "Q29 Plain 1.000 1.000 0 unknown\nQ20 Plain 2.000 1.000 0 unknown\n");
    EXPECT_EQ(LinesOf(list), "Q09 1: M 1.000 1.000 L 2.000 1.000\nQ00 2: M 2.000 1.000 L 1.000 1.000\n");
}

TEST_F(DisplayLists, NothingIsCountedInTheCodeTables) {
    Picture({.points = "1,\"\",1,1,\"BOOM\",0,\"\"\n", .lines = "1,\"MUUR\",0\n", .edges = "1,1,1,STRAIGHT\n"});
    for (const CodeTable* table : {&last->codes.points, &last->codes.lines, &last->codes.texts}) {
        for (const CodeRow& row : table->rows) EXPECT_EQ(row.Count, 0);
    }
}

TEST_F(DisplayLists, ASegmentTakesAtMostSixtyBytes) {
    // The worst: every segment alone, and every end a point of its own as well.
    Rows rows{.points = "", .lines = "", .edges = ""};
    constexpr int segments = 2000;
    for (int i = 1; i <= segments; ++i) {
        const std::string number = std::to_string(i);
        rows.points += number + ",\"\"," + std::to_string(i % 50) + "," + std::to_string(i / 50) + ",\"HULP\",0,\"\"\n";
        rows.lines += number + ",\"MUUR\",0\n";
        rows.edges += number + "," + number + "," + std::to_string(i % segments + 1) + ",STRAIGHT\n";
    }
    const DisplayList list = Picture(rows);
    EXPECT_EQ(list.segments, segments);
    EXPECT_LE(BytesOf(list), std::size_t{60} * segments);
    EXPECT_EQ(BytesOf(list), segments * (16 + 2 * 9) + list.codes.capacity() * sizeof(PictureCode));
}

}  // namespace

}  // namespace korvande::testing
