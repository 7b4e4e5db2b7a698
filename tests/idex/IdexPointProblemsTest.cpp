#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexPointProblems : public IdexTest {
 protected:
    // Reads a POINTS table of these rows, the first of which is line 9.
    std::string ReadPoints(std::string_view rows, std::string_view behind = {}) {
        return ReadTables("POINTS (PointNo,PointID,East,North,Elevation,Code)\n" + std::string(rows) + "END POINTS\n" +
                          std::string(behind));
    }
};

TEST_F(IdexPointProblems, PointsWithoutAnEastOrANorthAreTold) {
    ASSERT_EQ(ReadPoints("1,\"\",5,5,,\"\";\n2,\"\", ,5,0,\"\";\n3,\"\",5,\"\",0,\"\";\n4,\"\",,,,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 4);
    EXPECT_EQ(Lost(), Told{"3 punten zonder coördinaten (de eerste op regel 10)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexPointProblems, BlanksBetweenQuotesAreNoCoordinate) {
    ASSERT_EQ(ReadPoints("1,\"\",\" \",5,0,\"\";\n2,\"\",5,\"\t\",0,\"\";\n"), "");
    EXPECT_EQ(Lost(), Told{"2 punten zonder coördinaten (de eerste op regel 9)"});
}

TEST_F(IdexPointProblems, PointsOfATableWithoutANorthAreTold) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,East,Code)\n1,5,\"\";\n2,6,\"\";\nEND\n"), "");
    EXPECT_EQ(Lost(), (Told{"kolom NORTH in POINTS ontbreekt (op regel 8)",
                            "2 punten zonder coördinaten (de eerste op regel 9)"}));
}

TEST_F(IdexPointProblems, PointsWithoutCoordinatesAreLeftOutWhenTheOptionSaysSo) {
    translation.options.chkWithoutZeroes = true;
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,,\"\";\n2,\"B\",,,0,\"\";\n3,\"C\",7,5,0,\"\";\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(2).PointNo, 3);
    EXPECT_EQ(Point(2).InputLine, 11);
    EXPECT_EQ(drawing.PointIndex[2], 0);
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(Wanted(), Told{"1 punt zonder coördinaten weggelaten (op regel 10)"});
    const KindAccount& account = translation.account[ObjectKind::Point];
    EXPECT_EQ(account.read, 1);
    EXPECT_EQ(account.leftOut[static_cast<std::size_t>(LeftOut::NoPlace)], 1);
}

TEST_F(IdexPointProblems, AnEdgeOnAPointThatWasLeftOutRefersToNone) {
    translation.options.chkWithoutZeroes = true;
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,,\"\";\n9,\"B\",,,0,\"\";\n",
                         "LINES (LineNo,Code)\n1,\"A\";\nEDGES (LineNo,StartPt,EndPt,LineType)\n1,1,9,STRAIGHT;\n"
                         "END EDGES\nEND LINES\n"),
              "");
    EXPECT_EQ(Edge(1).StartPt, 1);
    EXPECT_EQ(Edge(1).EndPt, 0);
}

TEST_F(IdexPointProblems, PointsWithoutNumbersKeepTheirsWhenOneIsLeftOut) {
    translation.options.chkWithoutZeroes = true;
    ASSERT_EQ(ReadTables("POINTS (East,North,Code)\n5,5,\"\";\n,,\"\";\n7,7,\"\";\nEND\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 2);
    EXPECT_EQ(Point(2).East, 7);
    EXPECT_EQ(Point(2).PointNo, 3);
    EXPECT_EQ(drawing.PointIndex[2], 0);
}

TEST_F(IdexPointProblems, NumbersThatOccurTwiceAreTold) {
    ASSERT_EQ(ReadPoints("1,\"\",5,5,0,\"\";\n2,\"\",5,5,0,\"\";\n1,\"\",6,6,0,\"\";\n1,\"\",7,7,0,\"\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 4);
    EXPECT_EQ(Lost(), Told{"2 puntnummers die al voorkwamen (de eerste op regel 11)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexPointProblems, ASecondTableThatOverwritesPointsIsTold) {
    ASSERT_EQ(ReadPoints("1,\"\",5,5,0,\"\";\n2,\"\",5,5,0,\"\";\n3,\"\",5,5,0,\"\";\n",
                         "POINTS (PointNo,East,North,Code)\n1,6,6,\"\";\n4,6,6,\"\";\nEND\n"),
              "");
    EXPECT_EQ(drawing.Points.UpperBound(), 3);
    EXPECT_EQ(Lost(), Told{"2 punten vervangen door een volgende tabel POINTS (de eerste op regel 13)"});
}

TEST_F(IdexPointProblems, ANumberOfAPointThatWasReplacedComesForTheFirstTime) {
    ASSERT_EQ(ReadPoints("1,\"\",5,5,0,\"\";\n2,\"\",5,5,0,\"\";\n",
                         "POINTS (PointNo,East,North,Code)\n7,6,6,\"\";\n1,6,6,\"\";\nEND\n"),
              "");
    EXPECT_EQ(drawing.PointIndex[1], 2);
    EXPECT_EQ(Lost(), Told{"2 punten vervangen door een volgende tabel POINTS (de eerste op regel 12)"});
}

TEST_F(IdexPointProblems, ATableThatOverwritesPointsIsToldThoughAnErrorEndsIt) {
    EXPECT_EQ(ReadPoints("1,\"\",5,5,0,\"\";\n", "POINTS (PointNo,East,North,Code)\n1,6,6,\"\";\n-1,6,6,\"\";\nEND\n"),
              "error 9 in line 13");
    EXPECT_EQ(Lost(), (Told{"de rest van het bestand is niet gelezen, vanaf regel 13",
                            "1 punt vervangen door een volgende tabel POINTS (op regel 11)"}));
}

TEST_F(IdexPointProblems, AnEmptySecondTableIsNotTold) {
    ASSERT_EQ(ReadPoints("1,\"\",5,5,0,\"\";\n", "POINTS (PointNo,East,North,Code)\nEND\n"), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexPointProblems, ARowThatUpdatesWithEveryColumnTellsNothing) {
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,2,\"X\";\nEXTRAINFO (PointNo,PointID,East,North,Elevation,Code)\n"
                         "1,\"A\",6,6,2,\"X\";\nEND EXTRAINFO\n"),
              "");
    EXPECT_EQ(Point(1).East, 6);
    EXPECT_EQ(Point(1).InputLine, 11);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexPointProblems, ARowThatUpdatesAndTakesValuesAwayIsToldOnce) {
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,2,\"X\";\n2,\"\",0,0,0,\"\";\nEXTRAINFO (PointNo,Description)\n"
                         "1,\"extra\";\n2,\"extra\";\nEND EXTRAINFO\n"),
              "");
    EXPECT_EQ(Point(1).East, 0);
    EXPECT_EQ(Lost(),
              Told{"1 punt waarvan een rij van EXTRAINFO zonder alle kolommen waarden heeft gewist (op regel 12)"});
}

TEST_F(IdexPointProblems, ARowThatUpdatesIsToldWhicheverValueItTakesAway) {
    const std::vector<std::string> values = {"\"A\"", "5", "6", "7", "8", "\"X\"", "\"Y\""};
    const auto row = [&values](std::size_t left, std::string_view instead) {
        std::string fields = "1";
        for (std::size_t at = 0; at < values.size(); ++at) fields.append(",").append(at == left ? instead : values[at]);
        return fields + ";\n";
    };
    const std::string list = "(PointNo,PointID,East,North,Elevation,SymDir,Code,Description)\n";
    const auto read = [&](std::string_view before, std::string_view update) {
        translation.problems = {};
        return ReadTables("POINTS " + list + std::string(before) + "EXTRAINFO " + list + std::string(update) + "END\n");
    };
    const std::string whole = row(values.size(), {});
    for (std::size_t left = 0; left < values.size(); ++left) {
        ASSERT_EQ(read(whole, row(left, "\"\"")), "");
        EXPECT_EQ(Lost(),
                  Told{"1 punt waarvan een rij van EXTRAINFO zonder alle kolommen waarden heeft gewist (op regel 11)"})
            << values[left];
        const std::string without = row(left, left == 0 || left > 4 ? "\"\"" : "0");
        ASSERT_EQ(read(without, row(left, "")), "");
        EXPECT_TRUE(Lost().empty()) << values[left];
    }
    ASSERT_EQ(read(whole, whole), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexPointProblems, ARowThatUpdatesIsReadWhateverTheOption) {
    translation.options.chkWithoutZeroes = true;
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,2,\"X\";\nEXTRAINFO (PointNo,Description)\n1,\"extra\";\nEND EXTRAINFO\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "EXTRA");
}

TEST_F(IdexPointProblems, AGeneratedTextIsOfTheLineOfItsPoint) {
    translation.options.chkExportPointnoAsText = true;
    translation.options.chkExportHeightAsText = true;
    ASSERT_EQ(ReadPoints("1,\"A\",5,5,2,\"X\";\n"), "");
    ASSERT_EQ(drawing.Texts.UpperBound(), 2);
    EXPECT_EQ(TextAt(1).InputLine, 9);
    EXPECT_EQ(TextAt(2).InputLine, 9);
}

}  // namespace

}  // namespace korvande::testing
