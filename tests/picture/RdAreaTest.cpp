#include "picture/RdArea.h"

#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

class RdArea : public PictureTest {
 protected:
    // The picture of a point at each of these places.
    DisplayList At(const std::vector<std::string>& places) {
        std::string points;
        int number = 0;
        for (const std::string& place : places) {
            points += std::to_string(++number) + ",\"A\"," + place + ",\"MV\",0,\"\"\n";
        }
        return Picture({.points = points});
    }
};

TEST_F(RdArea, ReachesFromZeroTo300AndFrom300To625Kilometres) {
    EXPECT_EQ(RdPlaceOf(At({"0,300000"})), RdPlace::Inside);
    EXPECT_EQ(RdPlaceOf(At({"300000,625000"})), RdPlace::Inside);
    EXPECT_EQ(RdPlaceOf(At({"-0.001,300000"})), RdPlace::Outside);
    EXPECT_EQ(RdPlaceOf(At({"300000.001,400000"})), RdPlace::Outside);
    EXPECT_EQ(RdPlaceOf(At({"121000,625000.001"})), RdPlace::Outside);
    EXPECT_EQ(RdPlaceOf(At({"121000,299999.999"})), RdPlace::Outside);
}

TEST_F(RdArea, OnePlaceOutsideIsEnough) {
    const DisplayList list = At({"121000,487000", "121010,487010", "0,0"});
    EXPECT_EQ(RdPlaceOf(list), RdPlace::Outside);
    EXPECT_EQ(RdSentence(list), u"buiten RD (X 0.000 tot 121010.000, Y 0.000 tot 487010.000)");
}

TEST_F(RdArea, ADrawingThatWouldFitTheOtherWayRoundIsToldSo) {
    const DisplayList list = At({"487000,121000", "487010,121010"});
    EXPECT_EQ(RdPlaceOf(list), RdPlace::Swapped);
    EXPECT_EQ(RdSentence(list),
              u"buiten RD (X 487000.000 tot 487010.000, Y 121000.000 tot 121010.000); X en Y verwisseld?");
}

TEST_F(RdArea, ADrawingCoversAllItsPoints) {
    At({"121000,487000", "121010,486990", "120990,487005"});
    const auto extent = ExtentOf(last->drawing);
    ASSERT_TRUE(extent);
    EXPECT_EQ((std::vector<double>{extent->minX, extent->minY, extent->maxX, extent->maxY}),
              (std::vector<double>{120990, 486990, 121010, 487005}));
    EXPECT_FALSE(ExtentOf(Drawing()));
}

TEST_F(RdArea, ADrawingOfNothingLiesNowhereElse) {
    EXPECT_EQ(RdPlaceOf(DisplayList()), RdPlace::Inside);
    EXPECT_EQ(RdSentence(At({"121000,487000"})), u"");
}

}  // namespace

}  // namespace korvande::testing
