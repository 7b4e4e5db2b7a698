#include "picture/Outline.h"

#include <cmath>

#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

class OutlineTest : public PictureTest {
 protected:
    static constexpr double beside = 5;

    // A wall of a straight piece, half a circle about (15, 0) and another straight piece.
    static Rows Wall() {
        return {
            "1,\"A\",0,0,\"HULP\",0,\"\"\n2,\"B\",10,0,\"HULP\",0,\"\"\n3,\"M\",15,0,\"HULP\",0,\"\"\n4,\"C\",20,0,"
            "\"HULP\",0,\"\"\n5,\"D\",30,0,\"HULP\",0,\"\"\n",
            "1,\"MUUR\",0\n", "1,1,2,STRAIGHT\n1,2,3,ARC_CENT\n1,3,4,ARC_CENT\n1,4,5,STRAIGHT\n"};
    }
};

TEST_F(OutlineTest, ALineStringIsFollowedFromEndToEndAlsoOnItsArcs) {
    const DisplayList list = Picture(Wall());
    const Outline outline = OutlineOf(list, {PictureKind::LineString, 0}, beside);
    ASSERT_EQ(outline.size(), 1U);
    const auto& line = outline.front();
    ASSERT_GT(line.size(), 20U);
    EXPECT_NEAR(line.back().east - line.front().east, 30000, 1);
    const Position centre{line.front().east + 15000, line.front().north};
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        EXPECT_NEAR(std::hypot(line[i].east - centre.east, line[i].north - centre.north), 5000, 2);
        // Nor is the middle between two of them farther from the arc than was asked.
        const Position middle{(line[i].east + line[i + 1].east) / 2, (line[i].north + line[i + 1].north) / 2};
        if (i + 2 < line.size()) {
            EXPECT_GT(std::hypot(middle.east - centre.east, middle.north - centre.north), 5000 - beside - 2);
        }
    }
}

TEST_F(OutlineTest, ALongLineStringIsWholeFromAnyOfItsParts) {
    std::string points;
    std::string edges;
    for (int i = 1; i <= 201; ++i) {
        points += std::to_string(i) + ",\"P\"," + std::to_string(i) + ",0,\"HULP\",0,\"\"\n";
        if (i > 1) edges += "1," + std::to_string(i - 1) + "," + std::to_string(i) + ",STRAIGHT\n";
    }
    const DisplayList list = Picture({points, "1,\"MUUR\",0\n", edges});
    ASSERT_GT(list.lines.size(), 2U);
    for (std::uint32_t part = 0; part < list.lines.size(); ++part) {
        const Outline outline = OutlineOf(list, {PictureKind::LineString, part}, beside);
        ASSERT_EQ(outline.size(), 1U) << part;
        EXPECT_EQ(outline.front().size(), 201U) << part;
        EXPECT_EQ(BoxOf(outline).maxEast - BoxOf(outline).minEast, 200000) << part;
    }
}

TEST_F(OutlineTest, APointIsAPlaceAndATextAFrameAroundItsLetters) {
    const DisplayList list = Picture({"1,\"A\",3,4,\"MV\",0,\"\"\n", "", "", "1,1,0,\"HUIS\"\n"});
    const Outline point = OutlineOf(list, {PictureKind::Point, 0}, beside);
    ASSERT_EQ(point.size(), 1U);
    ASSERT_EQ(point.front().size(), 1U);
    EXPECT_EQ(Metres(list, PlaceAt(point.front().front())), "3.000 4.000");
    const Outline text = OutlineOf(list, {PictureKind::TextObject, 0}, beside);
    ASSERT_EQ(text.front().size(), 5U);
    EXPECT_GT(BoxOf(text).maxEast - BoxOf(text).minEast, 1500);
    EXPECT_LE(BoxOf(text).maxNorth - BoxOf(text).minNorth, 1000);
}

TEST_F(OutlineTest, ALineStringIsFoundByItsNumber) {
    Rows rows = Wall();
    rows.lines = "3,\"MUUR\",0\n7,\"GEVEL\",0\n";
    rows.edges = "3,1,2,STRAIGHT\n7,2,5,STRAIGHT\n";
    const DisplayList list = Picture(rows);
    const auto widthOf = [&](std::int32_t lineNo) {
        const PictureBox box = BoxOf(OutlineOfLine(list, lineNo, beside));
        return box.IsEmpty() ? -1 : box.maxEast - box.minEast;
    };
    EXPECT_EQ(widthOf(3), 10000);
    EXPECT_EQ(widthOf(7), 20000);
    for (const std::int32_t lineNo : {0, 2, 5, 8}) EXPECT_EQ(widthOf(lineNo), -1) << lineNo;
}

TEST_F(OutlineTest, AnArcTurnsInItsDirectionAndACircleIsWhole) {
    const PicturePlace start{0, 5000};
    const PicturePlace centre{0, 0};
    const PicturePlace end{5000, 0};
    const PictureBox quarter = BoxOf(OutlineOfArc(start, centre, end, false, beside));
    EXPECT_EQ(quarter.minEast, 0);
    EXPECT_EQ(quarter.minNorth, 0);
    const PictureBox rest = BoxOf(OutlineOfArc(start, centre, end, true, beside));
    EXPECT_NEAR(rest.minEast, -5000, 5);
    EXPECT_NEAR(rest.minNorth, -5000, 5);
    const Outline circle = OutlineOfArc(start, centre, start, false, beside);
    ASSERT_EQ(circle.size(), 1U);
    EXPECT_NEAR(BoxOf(circle).minNorth, -5000, 5);
    EXPECT_NEAR(BoxOf(circle).minEast, -5000, 5);
    EXPECT_NEAR(BoxOf(circle).maxEast, 5000, 5);
    for (const Position& place : circle.front()) EXPECT_NEAR(std::hypot(place.east, place.north), 5000, 1);
}

TEST_F(OutlineTest, ACurveOfALineStringIsAsItGoesAndStraightWhereItHasNone) {
    Rows rows = Wall();
    rows.lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n";
    rows.points += "6,\"E\",10,10,\"HULP\",0,\"\"\n";
    // A curve that comes back to its start, so that two of its pieces leave the same place; and a straight line.
    rows.edges = "1,1,2,CURVE_3RD\n1,2,6,CURVE_3RD\n1,6,1,CURVE_3RD\n1,1,4,CURVE_3RD\n2,1,2,STRAIGHT\n";
    const DisplayList list = Picture(rows);
    const auto at = [&](double east, double north) { return *list.origin.From(east, north); };
    CurveOutlines curves;
    const Outline curve = curves.Between(list, 1, at(0, 0), at(10, 0), beside);
    ASSERT_EQ(curve.size(), 1U);
    EXPECT_GT(curve.front().size(), 10U);
    EXPECT_LT(BoxOf(curve).minNorth, at(0, 0).north - 500);
    EXPECT_EQ(Metres(list, PlaceAt(curve.front().front())), "0.000 0.000");
    EXPECT_EQ(Metres(list, PlaceAt(curve.front().back())), "10.000 0.000");
    const Outline other = curves.Between(list, 1, at(0, 0), at(20, 0), beside);
    EXPECT_GT(other.front().size(), 10U);
    EXPECT_EQ(Metres(list, PlaceAt(other.front().back())), "20.000 0.000");
    EXPECT_EQ(curves.Between(list, 2, at(0, 0), at(10, 0), beside).front().size(), 2U);
    EXPECT_EQ(curves.Between(list, 1, at(10, 0), at(20, 0), beside).front().size(), 2U);
    EXPECT_GT(curves.Between(list, 1, at(10, 0), at(10, 10), beside).front().size(), 10U);
}

}  // namespace

}  // namespace korvande::testing
