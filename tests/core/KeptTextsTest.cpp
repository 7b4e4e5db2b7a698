#include "core/KeptTexts.h"

#include <gtest/gtest.h>

#include <string>

#include "core/FixedBytes.h"

namespace korvande::testing {

namespace {

using Key = FixedBytes<7>;

Key KeyOf(std::string_view text) {
    Key key{};
    key.Assign(text);
    return key;
}

TEST(KeptTexts, ATextIsKeptOnceAndKnownByItsNumber) {
    KeptTexts<Key> kept;
    EXPECT_EQ(kept.NumberOf(KeyOf("A")), 1U);
    EXPECT_EQ(kept.NumberOf(KeyOf("B")), 2U);
    EXPECT_EQ(kept.NumberOf(KeyOf("A")), 1U);
    EXPECT_EQ(kept.NumberOf(KeyOf("")), 3U);
    EXPECT_EQ(kept.Count(), 4U);
    EXPECT_EQ(kept[1].View(), "A      ");
    EXPECT_EQ(kept[2].View(), "B      ");
    EXPECT_TRUE(kept[3].IsBlank());
}

TEST(KeptTexts, NumberZeroIsTheTextThatWasNeverFilled) {
    KeptTexts<Key> kept;
    EXPECT_TRUE(kept[0].NeverFilled());
    EXPECT_EQ(kept.NumberOf(Key{}), 0U);
    kept.NumberOf(KeyOf("A"));
    EXPECT_EQ(kept.NumberOf(Key{}), 0U);
    EXPECT_EQ(kept.Count(), 2U);
}

TEST(KeptTexts, ManyTextsAreFoundAgain) {
    constexpr std::uint32_t many = 100'000;
    KeptTexts<Key> kept;
    for (std::uint32_t i = 1; i <= many; ++i) ASSERT_EQ(kept.NumberOf(KeyOf(std::to_string(i))), i);
    for (std::uint32_t i = many; i >= 1; --i) ASSERT_EQ(kept.NumberOf(KeyOf(std::to_string(i))), i);
    EXPECT_EQ(kept.Count(), many + 1);
    EXPECT_EQ(kept[many].TrimmedRight(), std::to_string(many));
}

TEST(KeptTexts, AResetForgetsThemAll) {
    KeptTexts<Key> kept;
    kept.NumberOf(KeyOf("A"));
    kept.NumberOf(KeyOf("B"));
    kept.Reset();
    EXPECT_EQ(kept.Count(), 1U);
    EXPECT_TRUE(kept[0].NeverFilled());
    EXPECT_EQ(kept.NumberOf(KeyOf("B")), 1U);
}

}  // namespace

}  // namespace korvande::testing
