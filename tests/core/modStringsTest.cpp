#include "core/modStrings.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

namespace korvande::testing {

namespace {

TEST(StripQuotes, AQuoteAtEachEndGoes) {
    EXPECT_EQ(StripQuotes("\"abc\""), "abc");
    EXPECT_EQ(StripQuotes("  \"abc\"  "), "abc");
    EXPECT_EQ(StripQuotes("\"abc"), "abc");
    EXPECT_EQ(StripQuotes("abc\""), "abc");
    EXPECT_EQ(StripQuotes("abc"), "abc");
}

TEST(StripQuotes, NothingButQuotesIsEmpty) {
    EXPECT_EQ(StripQuotes(""), "");
    EXPECT_EQ(StripQuotes("   "), "");
    EXPECT_EQ(StripQuotes("\""), "");
    EXPECT_EQ(StripQuotes("\"\""), "");
}

TEST(StripQuotes, AQuoteInsideBecomesASingleOne) {
    EXPECT_EQ(StripQuotes("\"a\"b\""), "a'b");
    EXPECT_EQ(StripQuotes("\"\"\""), "'");
    EXPECT_EQ(StripQuotes("\"\"a\"\""), "'a'");
    EXPECT_EQ(StripQuotes("a\"\"b"), "a''b");
}

TEST(StripQuotes, BlanksInsideTheQuotesStay) { EXPECT_EQ(StripQuotes(" \" a \" "), " a "); }

TEST(StripQuotes, TextsInMemoryFollowTheSameRules) {
    EXPECT_EQ(StripQuotes(TextView(u" \"a\"é \" ")), u"a'é ");
    EXPECT_EQ(StripQuotes(TextView(u"\"")), u"");
}

TEST(QuoteText, TheStrippedTextStandsBetweenQuotes) {
    EXPECT_EQ(QuoteText(u"C:\\a b.idx"), u"\"C:\\a b.idx\"");
    EXPECT_EQ(QuoteText(u" \"C:\\a\" "), u"\"C:\\a\"");
    EXPECT_EQ(QuoteText(u"a\"b"), u"\"a'b\"");
    EXPECT_EQ(QuoteText(u""), u"\"\"");
}

TEST(CommaToPoint, ADecimalCommaBecomesAPoint) {
    EXPECT_EQ(CommaToPoint("1.234,5"), "1234.5");
    EXPECT_EQ(CommaToPoint("12,5"), "12.5");
    EXPECT_EQ(CommaToPoint("1.234.567,5"), "1234567.5");
    EXPECT_EQ(CommaToPoint("1,2,3"), "1.2.3");
}

TEST(CommaToPoint, ATextWithoutCommaStays) {
    EXPECT_EQ(CommaToPoint("12.5"), "12.5");
    EXPECT_EQ(CommaToPoint("1.234.567"), "1.234.567");
    EXPECT_EQ(CommaToPoint(""), "");
}

TEST(PointToComma, ADecimalPointBecomesAComma) {
    EXPECT_EQ(PointToComma("1,234.5"), "1234,5");
    EXPECT_EQ(PointToComma("12.5"), "12,5");
    EXPECT_EQ(PointToComma("12,5"), "12,5");
    EXPECT_EQ(PointToComma("1,234"), "1,234");
    EXPECT_EQ(PointToComma(""), "");
}

TEST(RemoveAll, EveryOccurrenceGoes) {
    EXPECT_EQ(RemoveAll("a-b-c-", "-"), "abc");
    EXPECT_EQ(RemoveAll("abc", "x"), "abc");
    EXPECT_EQ(RemoveAll("", "x"), "");
}

TEST(RemoveAll, AnOccurrenceThatARemovalBringsAboutGoesToo) {
    EXPECT_EQ(RemoveAll("aabbc", "ab"), "c");
    EXPECT_EQ(RemoveAll("xx<<>>", "<>"), "xx");
}

TEST(RemoveAll, AnEmptyPartLeavesTheText) { EXPECT_EQ(RemoveAll("abc", ""), "abc"); }

TEST(RemoveAll, ItIsWhatScanningAgainFromTheStartGives) {
    std::mt19937 random(1);
    const auto letters = [&](std::size_t length) {
        std::string text(length, '\0');
        for (char& letter : text) letter = static_cast<char>('a' + random() % 2);
        return text;
    };
    for (int round = 0; round < 50'000; ++round) {
        const std::string text = letters(random() % 20);
        const std::string part = letters(1 + random() % 4);
        std::string expected = text;
        while (expected.find(part) != std::string::npos) expected.erase(expected.find(part), part.size());
        ASSERT_EQ(RemoveAll(text, part), expected) << text << " without " << part;
    }
}

TEST(ReplaceAll, EveryOccurrenceIsReplacedFromLeftToRight) {
    EXPECT_EQ(ReplaceAll("a.b.c", ".", "--"), "a--b--c");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("abc", "b", ""), "ac");
    EXPECT_EQ(ReplaceAll(TextView(u"1\r2\r"), u"\r", u"\r\n"), u"1\r\n2\r\n");
}

TEST(ReplaceAll, AReplacementIsNotReplacedAgain) {
    EXPECT_EQ(ReplaceAll("a", "a", "aa"), "aa");
    EXPECT_EQ(ReplaceAll("\"x\"", "\"", "\"\""), "\"\"x\"\"");
    EXPECT_EQ(ReplaceAll("ab", "ab", "abab"), "abab");
}

TEST(ReplaceAll, AnEmptyTextToFindLeavesTheText) { EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc"); }

TEST(PadLeft, AShorterTextIsFilledOnTheLeft) {
    EXPECT_EQ(PadLeft("7", 3, "0"), "007");
    EXPECT_EQ(PadLeft("7", 3), "  7");
    EXPECT_EQ(PadLeft("", 2), "  ");
}

TEST(PadLeft, ALongerTextLosesItsLeft) {
    EXPECT_EQ(PadLeft("12345", 3), "345");
    EXPECT_EQ(PadLeft("123", 3), "123");
    EXPECT_EQ(PadLeft("123", 0), "");
}

TEST(PadRight, AShorterTextIsFilledOnTheRight) {
    EXPECT_EQ(PadRight("12.3456", 15), "12.3456        ");
    EXPECT_EQ(PadRight("7", 3, "0"), "700");
    EXPECT_EQ(PadRight("", 2), "  ");
}

TEST(PadRight, ALongerTextLosesItsRight) {
    EXPECT_EQ(PadRight("12345", 3), "123");
    EXPECT_EQ(PadRight("123", 3), "123");
    EXPECT_EQ(PadRight("123", 0), "");
}

TEST(Padding, OnlyTheFirstCharacterOfTheFillCountsAndAnEmptyOneIsABlank) {
    EXPECT_EQ(PadLeft("7", 4, "*-"), "***7");
    EXPECT_EQ(PadRight("7", 4, "*-"), "7***");
    EXPECT_EQ(PadLeft("7", 3, ""), "  7");
    EXPECT_EQ(PadRight("7", 3, ""), "7  ");
}

TEST(BinaryToFlags, DigitsAreReadWithTheMostSignificantFirst) {
    EXPECT_EQ(BinaryToFlags("00000000 00000101"), 5);
    EXPECT_EQ(BinaryToFlags("00000101"), 5);
    EXPECT_EQ(BinaryToFlags("1"), 1);
    EXPECT_EQ(BinaryToFlags("1 0"), 2);
    EXPECT_EQ(BinaryToFlags(" 1 1 "), 3);
}

TEST(BinaryToFlags, OnlyAOneCountsButEveryOtherCharacterHoldsAPlace) {
    EXPECT_EQ(BinaryToFlags(""), 0);
    EXPECT_EQ(BinaryToFlags("2"), 0);
    EXPECT_EQ(BinaryToFlags("1x"), 2);
    EXPECT_EQ(BinaryToFlags("\"1\""), 2);
}

TEST(BinaryToFlags, All32BitsAreReadAndHigherOnesDropped) {
    EXPECT_EQ(BinaryToFlags("1" + std::string(31, '0')), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(BinaryToFlags(std::string(32, '1')), -1);
    EXPECT_EQ(BinaryToFlags("1" + std::string(32, '0')), 0);
    EXPECT_EQ(BinaryToFlags(std::string(1000, '1')), -1);
}

TEST(FlagsToBinary, SixteenDigitsAreWrittenInTwoGroups) {
    EXPECT_EQ(FlagsToBinary(5), "00000000 00000101");
    EXPECT_EQ(FlagsToBinary(0), "00000000 00000000");
    EXPECT_EQ(FlagsToBinary(256), "00000001 00000000");
    EXPECT_EQ(FlagsToBinary(65535), "11111111 11111111");
}

TEST(FlagsToBinary, ValuesOutside16BitsAreNotFaithful) {
    EXPECT_EQ(FlagsToBinary(65536), "11111111 11111111");
    EXPECT_EQ(FlagsToBinary(std::numeric_limits<std::int32_t>::max()), "11111111 11111111");
    EXPECT_EQ(FlagsToBinary(-1), "00000000 00000000");
    EXPECT_EQ(FlagsToBinary(std::numeric_limits<std::int32_t>::min()), "00000000 00000000");
}

TEST(FlagsToBinary, TheDigitsCanBeWrittenInPlace) {
    std::array<char, 18> place{};
    place.back() = 'x';
    EXPECT_EQ(WriteFlags(place.data(), 261) - place.data(), 17);
    EXPECT_EQ(std::string(place.begin(), place.end()), "00000001 00000101x");
}

TEST(FlagsToBinary, ReadingGivesTheFlagsBack) {
    for (std::int32_t flags = 0; flags < 65536; ++flags) ASSERT_EQ(BinaryToFlags(FlagsToBinary(flags)), flags);
}

TEST(TransposeAnchorPosition, RowsAndColumnsChangePlaces) {
    constexpr std::string_view from = "123456789";
    constexpr std::string_view to = "147258369";
    for (std::size_t i = 0; i < from.size(); ++i) {
        EXPECT_EQ(TransposeAnchorPosition(from.substr(i, 1)), to[i]);
        const char once = TransposeAnchorPosition(from.substr(i, 1));
        EXPECT_EQ(TransposeAnchorPosition({&once, 1}), from[i]);
    }
}

TEST(TransposeAnchorPosition, TheLastCharacterCounts) {
    EXPECT_EQ(TransposeAnchorPosition("112"), '4');
    EXPECT_EQ(TransposeAnchorPosition(" 9 "), '1');
}

TEST(TransposeAnchorPosition, WhatIsNoPositionCountsAsOne) {
    for (const std::string_view text : {"", "0", " ", "-", "/", ":", "A", "z", "\xFF"}) {
        EXPECT_EQ(TransposeAnchorPosition(text), '1') << "'" << text << "'";
    }
}

}  // namespace

}  // namespace korvande::testing
