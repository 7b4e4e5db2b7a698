#include "picture/SpatialIndex.h"

#include <algorithm>
#include <random>
#include <set>
#include <tuple>

#include "picture/HitTest.h"
#include "picture/ObjectInfo.h"
#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

// A list of random points, texts and two-point lines in a square of 100 m.
DisplayList RandomList(unsigned seed, std::size_t count) {
    std::mt19937 engine(seed);
    const auto below = [&engine](std::uint32_t bound) { return static_cast<std::int32_t>(engine() % bound); };
    DisplayList list;
    list.codes.resize(3);
    for (std::size_t i = 0; i < count; ++i) {
        const PicturePlace at{below(100'000) - 50'000, below(100'000) - 50'000};
        list.points.push_back({.at = at});
        list.texts.push_back({.at = {at.north, at.east}, .code = 1, .length = static_cast<std::uint16_t>(below(20))});
        list.lines.push_back({static_cast<std::uint32_t>(list.places.size()), 2, 2, 0});
        list.places.push_back({at.east / 2, at.north});
        list.places.push_back({at.east / 2 + below(3000), at.north - below(3000)});
        list.steps.insert(list.steps.end(), {PictureStep::Begin, PictureStep::Straight});
        list.extent.Add(at);
        for (const PictureBox& box : {BoxOf(list.texts.back()), BoxOf(list, list.lines.back())})
            list.extent.AddBox(box);
    }
    return list;
}

using Refs = std::multiset<std::pair<PictureKind, std::uint32_t>>;

TEST(SpatialIndexes, FindWhatOverlapsARectangleAndNothingElse) {
    for (const std::size_t count : {0U, 1U, 5U, 6U, 100U, 1366U, 3000U}) {
        const DisplayList list = RandomList(static_cast<unsigned>(count), count);
        const SpatialIndex index(list);
        std::mt19937 engine(7);
        for (int i = 0; i < 50; ++i) {
            PictureBox box;
            box.Add({static_cast<std::int32_t>(engine() % 120'000) - 60'000,
                     static_cast<std::int32_t>(engine() % 120'000) - 60'000});
            if (i % 3 > 0) box = BoxAbout({box.minEast, box.minNorth}, i * i * 30);
            Refs found;
            index.Find(list, box, [&](PictureRef ref) { found.emplace(ref.kind, ref.place); });
            Refs expected;
            for (std::uint32_t place = 0; place < count; ++place) {
                for (const auto kind : {PictureKind::Point, PictureKind::LineString, PictureKind::TextObject}) {
                    if (BoxOf(list, PictureRef{kind, place}).Overlaps(box)) expected.emplace(kind, place);
                }
            }
            ASSERT_EQ(found, expected) << count << " of each, rectangle " << i;
        }
    }
}

TEST(SpatialIndexes, TakeLittleMoreThanFourBytesForEachObject) {
    const DisplayList list = RandomList(1, 20'000);
    EXPECT_LE(SpatialIndex(list).Bytes(), std::size_t{60'000} * 51 / 10);
}

TEST(SpatialIndexes, ManyObjectsAtOnePlaceAreAllFound) {
    DisplayList list;
    list.codes.resize(1);
    list.points.assign(5000, {});
    list.extent.Add(PicturePlace{});
    std::size_t found = 0;
    SpatialIndex(list).Find(list, BoxAbout({}, 1), [&](PictureRef) { ++found; });
    EXPECT_EQ(found, 5000);
}

class HitTests : public PictureTest {
 protected:
    // What is found at metres east and north within a reach in metres, as "L 2" or "-".
    std::string At(const DisplayList& list, double east, double north, double reach,
                   const std::vector<bool>& isHidden = {}) {
        const SpatialIndex index(list);
        const auto found = ObjectAt(list, index, *list.origin.From(east, north), reach * 1000, isHidden);
        if (!found) return "-";
        return std::string(1, "PLT"[static_cast<int>(found->kind)]) + " " + std::to_string(found->place);
    }

    Rows drawing{.points =
                     "1,\"101\",0,0,\"BOOM\",0,\"Eik\"\n2,\"\",10,0,\"HULP\",0,\"\"\n3,\"\",10,10,\"HULP\",0,\"\"\n"
                     "4,\"\",20,10,\"HULP\",0,\"\"\n5,\"\",50,50,\"HULP\",0,\"\"\n9,\"\",40,0,\"VREEMD\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n",
                 .edges = "1,1,2,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n",
                 .texts = "5,1,100,\"Kerk\"\n"};
};

TEST_F(HitTests, FindTheNearestWithinReach) {
    const DisplayList list = Picture(drawing);
    EXPECT_EQ(At(list, 5, 0.4, 0.5), "L 0");
    EXPECT_EQ(At(list, 5, 0.6, 0.5), "-");
    EXPECT_EQ(At(list, 39.7, 0, 0.5), "P 1");
    EXPECT_EQ(At(list, 30, 0, 11), "P 1");
}

TEST_F(HitTests, AnArcIsFoundWhereItGoesAndNotAtItsCentre) {
    const DisplayList list = Picture(drawing);
    // From (10, 0) about (10, 10) clockwise to (20, 10): through the west and the north.
    EXPECT_EQ(At(list, 0.1, 10, 0.5), "L 1");
    EXPECT_EQ(At(list, 10, 19.8, 0.5), "L 1");
    EXPECT_EQ(At(list, 10 + 7.07, 10 - 7.07, 0.5), "-");
    EXPECT_EQ(At(list, 10, 10, 5), "-");
    EXPECT_EQ(At(list, 20.2, 9.9, 0.5), "L 1");
}

TEST_F(HitTests, APointComesBeforeALineStringThatIsNearer) {
    const DisplayList list = Picture(drawing);
    EXPECT_EQ(At(list, 0.3, 0, 0.5), "P 0");
    EXPECT_EQ(At(list, 0.3, 0, 0.2), "L 0");
}

TEST_F(HitTests, ATextIsFoundAlongItsDirection) {
    const DisplayList list = Picture(drawing);
    // "Kerk" goes north from its bottom left at (50, 50).
    EXPECT_EQ(At(list, 49.7, 51, 0.1), "T 0");
    EXPECT_EQ(At(list, 51, 50.2, 0.1), "-");
    EXPECT_EQ(At(list, 50.3, 49, 0.1), "-");
}

TEST_F(HitTests, WhatIsHiddenIsNotFound) {
    const DisplayList list = Picture(drawing);
    std::vector<bool> isHidden(list.codes.size(), false);
    isHidden[list.points[0].code] = true;
    EXPECT_EQ(At(list, 0.3, 0, 0.5, isHidden), "L 0");
}

TEST_F(HitTests, AnObjectTellsWhatItIs) {
    const DisplayList list = Picture(drawing);
    const Drawing& read = last->drawing;
    const ObjectInfo tree = Describe(read, list, {PictureKind::Point, 0});
    EXPECT_EQ(ToUtf8(Concat(tree.code, u"|", tree.lkiCode, u"|", tree.description, u"|", tree.number)),
              "BOOM|S01 A01|EIK|101");
    EXPECT_TRUE(tree.isKnown);
    EXPECT_EQ(tree.inputLine, 8);
    const ObjectInfo unknown = Describe(read, list, {PictureKind::Point, 1});
    EXPECT_EQ(ToUtf8(Concat(unknown.code, u"|", unknown.lkiCode, u"|", unknown.description, u"|", unknown.number)),
              "VREEMD|Q20||9");
    EXPECT_FALSE(unknown.isKnown);
    const ObjectInfo line = Describe(read, list, {PictureKind::LineString, 1});
    EXPECT_EQ(ToUtf8(Concat(line.code, u"|", line.lkiCode, u"|", line.description, u"|", line.number)),
              "GEVEL|B01|GEVEL|2");
    EXPECT_EQ(line.inputLine, 17);
    const ObjectInfo text = Describe(read, list, {PictureKind::TextObject, 0});
    EXPECT_EQ(ToUtf8(Concat(text.code, u"|", text.lkiCode, u"|", text.description, u"|", text.number)),
              "NAAM|Z04|Kerk|");
}

}  // namespace

}  // namespace korvande::testing
