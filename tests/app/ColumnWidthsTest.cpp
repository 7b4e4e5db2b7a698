#include "app/ColumnWidths.h"

#include <numeric>

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class ColumnWidthsTest : public AppTest {};

constexpr ColumnWidths least = {60, 60, 66, 150, 30, 30, 30};

TEST_F(ColumnWidthsTest, TheyAreRememberedForEachGrid) {
    RememberWidths(u"gridPoints", {0, 80, 0, 300, 0, 0, 41});
    EXPECT_EQ(RememberedWidths(u"gridPoints"), (ColumnWidths{0, 80, 0, 300, 0, 0, 41}));
    EXPECT_EQ(RememberedWidths(u"gridLines"), ColumnWidths{});
}

TEST_F(ColumnWidthsTest, AValueThatMakesNoSenseIsNone) {
    const Text value = u"ColumnWidths gridPoints";
    TestRegistry::Set(u"Software\\TERAMUND\\KORVANDE", value, u"80 x -5 3 99999 70");
    EXPECT_EQ(RememberedWidths(u"gridPoints"), (ColumnWidths{80, 0, 0, 0, 0, 70, 0}));
}

TEST_F(ColumnWidthsTest, TheDescriptionTakesTheRoomThatIsLeft) {
    EXPECT_EQ(WidthsInRoom({}, least, 600), (ColumnWidths{60, 60, 66, 324, 30, 30, 30}));
    EXPECT_EQ(WidthsInRoom({}, least, 100), least);
}

TEST_F(ColumnWidthsTest, ChosenWidthsStay) {
    EXPECT_EQ(WidthsInRoom({100, 0, 0, 0, 0, 0, 0}, least, 600), (ColumnWidths{100, 60, 66, 284, 30, 30, 30}));
    EXPECT_EQ(WidthsInRoom({0, 0, 0, 200, 0, 0, 0}, least, 600), (ColumnWidths{60, 60, 66, 200, 30, 30, 30}));
}

}  // namespace

}  // namespace korvande::testing
