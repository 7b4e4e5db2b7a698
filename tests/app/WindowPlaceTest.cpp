#include "app/WindowPlace.h"

#include <gtest/gtest.h>

#include <vector>

// Where a window stood is where it opens again, as long as that can be seen.
namespace korvande::testing {

namespace {

std::string Shown(const WindowPlace& place, const std::vector<ScreenArea>& screens) {
    const std::optional<WindowPlace> shown = PlaceInSight(place, screens);
    return shown ? ToUtf8(TextOfPlace(*shown)) : "none";
}

const std::vector<ScreenArea> one = {{0, 0, 1280, 1000}};
const std::vector<ScreenArea> two = {{0, 0, 1280, 1000}, {-1920, -100, 1920, 1050}};

TEST(WindowPlaceTest, APlaceIsReadBackAsItWasKept) {
    for (const char16_t* const text : {u"100 50 900 700 0", u"-1900 -20 640 480 1"}) {
        const std::optional<WindowPlace> place = PlaceFromText(text);
        ASSERT_TRUE(place);
        EXPECT_EQ(TextOfPlace(*place), text);
    }
    EXPECT_EQ(PlaceFromText(u"-5 6 700 800 1")->area.top, 6);
    EXPECT_TRUE(PlaceFromText(u"-5 6 700 800 1")->isMaximised);
}

TEST(WindowPlaceTest, RubbishIsNoPlace) {
    for (const char16_t* const text :
         {u"", u"a", u"1 2 700 800", u"1 2 700 800 0 0", u"1 2 700 800 2", u"1 2 700 800 -1", u"1  2 700 800 0",
          u"1 2 700 800 0 ", u" 1 2 700 800 0", u"1 2 10 800 0", u"1 2 700 0 0", u"1 2 -700 800 0", u"1 2 700 800000 0",
          u"1 99999999999 700 800 0", u"200000 2 700 800 0", u"1,2,700,800,0", u"1 2 700 800 x"}) {
        EXPECT_FALSE(PlaceFromText(text)) << ToUtf8(text);
    }
}

TEST(WindowPlaceTest, APlaceThatCanBeSeenStays) {
    EXPECT_EQ(Shown({{100, 50, 900, 700}, false}, one), "100 50 900 700 0");
    EXPECT_EQ(Shown({{-1900, -90, 900, 700}, true}, two), "-1900 -90 900 700 1");
}

TEST(WindowPlaceTest, AWindowOnAScreenThatIsGoneHasNoPlace) {
    EXPECT_EQ(Shown({{-1900, -90, 900, 700}, false}, one), "none");
    EXPECT_EQ(Shown({{100, 1000, 900, 700}, false}, one), "none") << "just below";
    EXPECT_EQ(Shown({{100, 50, 900, 700}, false}, {}), "none");
}

TEST(WindowPlaceTest, AWindowHalfOutOfSightComesBackIn) {
    EXPECT_EQ(Shown({{1200, 900, 900, 700}, false}, one), "380 300 900 700 0");
    EXPECT_EQ(Shown({{-850, -690, 900, 700}, false}, one), "0 0 900 700 0");
}

TEST(WindowPlaceTest, AWindowIsNoLargerThanItsScreen) {
    EXPECT_EQ(Shown({{10, 10, 2000, 1500}, true}, one), "0 0 1280 1000 1");
}

TEST(WindowPlaceTest, AWindowOnTwoScreensGoesToTheOneThatHasMostOfIt) {
    EXPECT_EQ(Shown({{-300, 10, 900, 700}, false}, two), "0 10 900 700 0");
    EXPECT_EQ(Shown({{-600, 10, 900, 700}, false}, two), "-900 10 900 700 0");
}

}  // namespace

}  // namespace korvande::testing
