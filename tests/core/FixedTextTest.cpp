#include "core/FixedText.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/core/Allocations.h"

namespace korvande::testing {

namespace {

template <std::size_t N>
FixedText<N> NeverAssigned() {
    return {};
}

TEST(FixedText, AShorterValueIsPaddedWithBlanks) {
    const auto text = MakeFixedText<7>(u"ab");
    EXPECT_EQ(text.View(), TextView(u"ab     "));
    EXPECT_EQ(text.TrimmedRight(), TextView(u"ab"));
}

TEST(FixedText, ALongerValueIsCut) {
    EXPECT_EQ(MakeFixedText<9>(u"1234567890").View(), TextView(u"123456789"));
    EXPECT_EQ(MakeFixedText<7>(Text(500, u'x')).View(), TextView(u"xxxxxxx"));
}

TEST(FixedText, AValueOfTheWidthIsKeptWhole) { EXPECT_EQ(MakeFixedText<3>(u"abc").View(), TextView(u"abc")); }

TEST(FixedText, AShorterValueLeavesNothingOfALongerOneBefore) {
    auto text = MakeFixedText<5>(u"abcde");
    text = u"x";
    EXPECT_EQ(text.View(), TextView(u"x    "));
    text.Assign("abcde");
    text.Assign("y");
    EXPECT_EQ(text.View(), TextView(u"y    "));
}

TEST(FixedText, ZeroedMemoryIsATextThatWasNeverFilled) {
    const auto text = NeverAssigned<4>();
    EXPECT_TRUE(text.NeverFilled());
    EXPECT_EQ(text.View(), TextView(u"\0\0\0\0", 4));
    EXPECT_FALSE(text.IsBlank());
}

TEST(FixedText, TheEmptyTextFillsWithBlanks) {
    auto text = NeverAssigned<4>();
    text = u"";
    EXPECT_FALSE(text.NeverFilled());
    EXPECT_TRUE(text.IsBlank());
    EXPECT_EQ(text.View(), TextView(u"    "));

    auto fromBytes = NeverAssigned<4>();
    fromBytes.Assign({});
    EXPECT_EQ(fromBytes, text);
}

TEST(FixedText, BytesAreWindows1252) {
    FixedText<4> text{};
    text.Assign("\x80\xFF");
    EXPECT_EQ(text.View(), TextView(u"€ÿ  "));
    text.Assign("12345");
    EXPECT_EQ(text.View(), TextView(u"1234"));
}

TEST(FixedText, BytesCanBePutIntoCapitals) {
    FixedText<6> text{};
    text.Assign("a\xE9\xFF\xDF\x9A", Letters::Capitals);
    EXPECT_EQ(text.View(), TextView(u"AÉŸßŠ "));
}

TEST(FixedText, TrimmingLeavesBlanksInside) {
    const auto text = MakeFixedText<10>(u"  a b");
    EXPECT_EQ(text.Trimmed(), TextView(u"a b"));
    EXPECT_EQ(text.TrimmedRight(), TextView(u"  a b"));
}

TEST(FixedText, ItsOwnTrimmedValueCanBeAssigned) {
    auto text = MakeFixedText<6>(u"  abcd");
    text = text.Trimmed();
    EXPECT_EQ(text.View(), TextView(u"abcd  "));
}

TEST(FixedText, TwoAreEqualOnTheirPaddedValues) {
    EXPECT_EQ(MakeFixedText<7>(u"A01"), MakeFixedText<7>(u"A01    "));
    EXPECT_NE(MakeFixedText<7>(u"A01"), MakeFixedText<7>(u"a01"));
    EXPECT_NE(MakeFixedText<7>(u""), NeverAssigned<7>());
}

TEST(FixedText, ItIsTrivialAndTakesTwoBytesACharacterAndNoHeap) {
    static_assert(std::is_trivial_v<FixedText<80>> && sizeof(FixedText<80>) == 160);
    FixedText<80> text{};
    EXPECT_EQ(AllocationsOf([&] { text.Assign("straatnaambord aan een gevel"); }).blocks, 0U);
    EXPECT_EQ(text.TrimmedRight(), TextView(u"straatnaambord aan een gevel"));
}

}  // namespace

}  // namespace korvande::testing
