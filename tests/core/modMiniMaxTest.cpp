#include "core/modMiniMax.h"

#include <gtest/gtest.h>

#include <limits>

namespace korvande::testing {

namespace {

TEST(MinInt, TheSmallerOneIsTaken) {
    EXPECT_EQ(MinInt(1, 2), 1);
    EXPECT_EQ(MinInt(2, 1), 1);
    EXPECT_EQ(MinInt(-5, -5), -5);
    EXPECT_EQ(MinInt(std::numeric_limits<std::int16_t>::max(), std::numeric_limits<std::int16_t>::min()), -32768);
}

TEST(MaxLong, TheLargerOneIsTaken) {
    EXPECT_EQ(MaxLong(1, 2), 2);
    EXPECT_EQ(MaxLong(2, 1), 2);
    EXPECT_EQ(MaxLong(-5, -5), -5);
    EXPECT_EQ(MaxLong(std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()), 2147483647);
}

}  // namespace

}  // namespace korvande::testing
