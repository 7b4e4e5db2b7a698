#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class IdexPointUpdates : public IdexTest {
 protected:
    // Reads four points, two of them with the number 20, and updates them by these rows.
    std::string Update(std::string_view rows, std::string_view extraInfo = "EXTRAINFO (PointNo,Code)") {
        std::string tables =
            "POINTS (PointNo,PointID,East,Code)\n"
            "10,\"A\",1,\"OUD\";\n"
            "20,\"B\",2,\"OUD\";\n"
            "20,\"C\",3,\"OUD\";\n"
            "30,\"D\",4,\"OUD\";\n";
        tables.append(extraInfo).append("\n").append(rows);
        return ReadTables(tables + "END EXTRAINFO\nEND POINTS\n");
    }

    std::string Codes() const {
        std::string codes;
        for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
            codes += (codes.empty() ? "" : " ") + Shown(drawing.Code(Point(index)));
        }
        return codes;
    }
};

TEST_F(IdexPointUpdates, ARowChangesTheFirstPointWithItsNumber) {
    ASSERT_EQ(Update("20,\"nieuw\";\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 4);
    EXPECT_EQ(Codes(), "OUD NIEUW OUD OUD");
    EXPECT_EQ(Point(2).PointNo, 20);
    EXPECT_EQ(drawing.PointIndex[20], 2);
}

TEST_F(IdexPointUpdates, ColumnsThatItsListLacksBecomeEmptyOrZero) {
    ASSERT_EQ(Update("10,\"NIEUW\";\n"), "");
    EXPECT_TRUE(Point(1).PointID().IsBlank());
    EXPECT_EQ(Point(1).East, 0);
    EXPECT_EQ(Shown(Point(2).PointID()), "B");
    EXPECT_EQ(Point(2).East, 2);
}

TEST_F(IdexPointUpdates, TheLineOfTheKeywordIsNoPoint) {
    ASSERT_EQ(Update(""), "");
    EXPECT_EQ(Codes(), "OUD OUD OUD OUD");
}

TEST_F(IdexPointUpdates, AnUnknownNumberAddsAPoint) {
    ASSERT_EQ(Update("99,\"NIEUW\";\n99,\"WEER\";\n"), "");
    EXPECT_EQ(Codes(), "OUD OUD OUD OUD WEER");
    EXPECT_EQ(Point(5).PointNo, 99);
    EXPECT_EQ(drawing.PointIndex[99], 5);
}

TEST_F(IdexPointUpdates, AnEmptyNumberAddsAPointThatIsNumberedByItsPlace) {
    ASSERT_EQ(Update(",\"NIEUW\";\n,\"WEER\";\n"), "");
    EXPECT_EQ(Codes(), "OUD OUD OUD OUD NIEUW WEER");
    EXPECT_EQ(Point(5).PointNo, 5);
    EXPECT_EQ(Point(6).PointNo, 6);
    EXPECT_EQ(drawing.PointIndex[6], 6);
}

TEST_F(IdexPointUpdates, AnEmptyNumberFindsAPointNumberedZeroAndNumbersItByItsPlace) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,Code)\n7,\"A\";\n0,\"B\";\n0,\"C\";\n"
                         "EXTRAINFO (PointNo,Code)\n,\"NIEUW\";\n,\"WEER\";\n,\"EXTRA\";\n2,\"TWEE\";\nEND\n"),
              "");
    EXPECT_EQ(Codes(), "A TWEE WEER EXTRA");
    EXPECT_EQ(Point(2).PointNo, 2);
    EXPECT_EQ(Point(3).PointNo, 3);
    EXPECT_EQ(Point(4).PointNo, 4);
}

TEST_F(IdexPointUpdates, APointAddedByARowIsFoundByTheNext) {
    ASSERT_EQ(Update("5,\"VIJF\";\n,\"ZES\";\n6,\"OOK ZES\";\n5,\"OOK 5\";\n"), "");
    EXPECT_EQ(Codes(), "OUD OUD OUD OUD OOK 5 OOK ZES");
    EXPECT_EQ(drawing.Points.UpperBound(), 6);
}

TEST_F(IdexPointUpdates, TheListMayFollowTheKeywordDirectlyAndGoOnInTheNextLine) {
    ASSERT_EQ(Update("\"NIEUW\",10;\n", "\textrainfo(Code,\nPointNo)"), "");
    EXPECT_EQ(Codes(), "NIEUW OUD OUD OUD");
}

TEST_F(IdexPointUpdates, RowsMayStandOnTwoLines) {
    ASSERT_EQ(Update("10,\n\"NIE\\\"UW\";\n", "EXTRAINFO (PointNo,Description)"), "");
    EXPECT_EQ(Shown(drawing.Description(Point(1))), "NIE'UW");
}

TEST_F(IdexPointUpdates, TheyGoOnToTheEndOfTheTableWhichTheEndOfTheBlockIs) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,Code)\n10,\"A\";\nEXTRAINFO (PointNo,Code)\n10,\"B\";\nEND EXTRAINFO\n"
                         "20,\"C\";\nEND POINTS\n"),
              "");
    EXPECT_EQ(Codes(), "B");
}

TEST_F(IdexPointUpdates, ASecondListTakesThePlaceOfTheFirst) {
    ASSERT_EQ(Update("10,\"B\";\nEXTRAINFO (Code,PointNo)\n\"C\",20;\n"), "");
    EXPECT_EQ(Codes(), "B C OUD OUD");
}

TEST_F(IdexPointUpdates, PointsOfAnEarlierTableAreFound) {
    ASSERT_EQ(ReadTables("POINTS (PointNo,Code)\n10,\"A\";\n20,\"B\";\nEND\n"
                         "POINTS (PointNo,Code)\n30,\"C\";\nEXTRAINFO (PointNo,Code)\n20,\"D\";\n10,\"E\";\nEND\n"),
              "");
    EXPECT_EQ(Codes(), "C D E");
}

TEST_F(IdexPointUpdates, ARowThatFailsChangesNothing) {
    EXPECT_EQ(Update("10,-1,\"NIEUW\";\n20,1E999,\"NIEUW\";\n", "EXTRAINFO (PointNo,East,Code)"),
              ErrorAt(errors::overflow, 8));
    EXPECT_EQ(Codes(), "NIEUW OUD OUD OUD");
    EXPECT_EQ(Point(2).East, 2);
    EXPECT_EQ(Update("-5,\"NIEUW\";\n"), ErrorAt(errors::subscriptOutOfRange, 7));
    EXPECT_EQ(Codes(), "OUD OUD OUD OUD");
}

// The described rule, point by point, as the yardstick for the fast search.
TEST_F(IdexPointUpdates, ManyOfThemGiveWhatASearchForEachWouldGive) {
    struct Expected {
        int number;
        int code;
    };
    std::vector<Expected> points;
    std::string rows;
    unsigned state = 1;
    const auto next = [&state](unsigned limit) {
        state = state * 1664525U + 1013904223U;
        return static_cast<int>((state >> 16) % limit);
    };
    for (int i = 0; i < 200; ++i) {
        points.push_back({next(100), i});
        rows += std::to_string(points.back().number) + "," + std::to_string(i) + ";\n";
    }
    rows += "EXTRAINFO (PointNo,Code)\n";
    for (int i = 200; i < 600; ++i) {
        const int number = next(150);
        const bool isEmpty = next(4) == 0;
        const auto found = std::find_if(points.begin(), points.end(),
                                        [&](const Expected& point) { return point.number == (isEmpty ? 0 : number); });
        const int index = static_cast<int>(found - points.begin()) + 1;
        if (found == points.end()) points.push_back({});
        points[static_cast<std::size_t>(index - 1)] = {isEmpty ? index : number, i};
        rows += (isEmpty ? std::string() : std::to_string(number)) + "," + std::to_string(i) + ";\n";
    }
    ASSERT_EQ(ReadTables("POINTS (PointNo,Code)\n" + rows + "END\n"), "");
    ASSERT_EQ(drawing.Points.UpperBound(), static_cast<std::int32_t>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointRec& point = Point(static_cast<std::int32_t>(i) + 1);
        EXPECT_EQ(point.PointNo, points[i].number) << i;
        EXPECT_EQ(Shown(drawing.Code(point)), std::to_string(points[i].code)) << i;
    }
}

}  // namespace

}  // namespace korvande::testing
