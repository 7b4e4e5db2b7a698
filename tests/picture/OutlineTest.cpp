#include "picture/Outline.h"

#include <cmath>

#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

class OutlineTest : public PictureTest {
 protected:
    static constexpr double beside = 5;

    // A wall of a straight piece, half a circle about (15, 0) and another straight piece.
    Rows Wall() const {
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

TEST_F(OutlineTest, ThePieceBetweenTwoPlacesIsAsItGoesAndStraightWhereThereIsNone) {
    const DisplayList list = Picture(Wall());
    const SpatialIndex index(list);
    const auto at = [&](double east) { return *list.origin.From(east, 0); };
    const Outline arc = OutlineBetween(list, index, at(20), at(10), beside);
    ASSERT_EQ(arc.size(), 1U);
    EXPECT_GT(arc.front().size(), 10U);
    EXPECT_NEAR(BoxOf(arc).maxNorth - BoxOf(arc).minNorth, 5000, 10);
    EXPECT_EQ(OutlineBetween(list, index, at(0), at(10), beside).front().size(), 2U);
    const Outline none = OutlineBetween(list, index, at(0), at(30), beside);
    ASSERT_EQ(none.front().size(), 2U);
    EXPECT_NEAR(none.front()[1].east - none.front()[0].east, 30000, 1);
}

}  // namespace

}  // namespace korvande::testing
