#include "core/Text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace korvande::testing {

namespace {

constexpr std::string_view undefinedBytes = "\x81\x8D\x8F\x90\x9D";

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    return bytes;
}

TEST(Text, EveryWindows1252ByteComesBackFromItsCharacter) {
    EXPECT_EQ(ToWindows1252(FromWindows1252(AllBytes())), AllBytes());
}

TEST(Text, TheDefinedBytesFrom80To9FAreTheirCharacters) {
    std::string defined;
    for (int byte = 0x80; byte < 0xA0; ++byte) {
        if (undefinedBytes.find(static_cast<char>(byte)) == std::string_view::npos) {
            defined.push_back(static_cast<char>(byte));
        }
    }
    EXPECT_EQ(Windows1252ToUtf8(defined), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(Utf8ToWindows1252("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"), defined);
}

TEST(Text, TheFiveUndefinedBytesAreTheCodePointsOfTheSameValue) {
    for (const char byte : undefinedBytes) {
        const char16_t character = static_cast<unsigned char>(byte);
        EXPECT_EQ(FromWindows1252(std::string_view(&byte, 1)), Text(1, character));
        EXPECT_EQ(ToWindows1252(character), byte);
    }
}

TEST(Text, TheOtherBytesAreTheCodePointsOfTheSameValue) {
    for (int byte = 0; byte < 256; ++byte) {
        if (byte >= 0x80 && byte < 0xA0) continue;
        EXPECT_EQ(windows1252Characters[static_cast<std::size_t>(byte)], byte);
    }
}

TEST(Text, ACharacterWithoutAWindows1252ByteBecomesAQuestionMark) {
    EXPECT_EQ(ToWindows1252(Text(u"a\u0100b\u2260c\u0080d\uFFFDe")), "a?b?c?d?e");
}

TEST(Text, ASurrogatePairBecomesASingleQuestionMark) {
    EXPECT_EQ(ToWindows1252(Text(u"a\U0001F600b")), "a?b");
    EXPECT_EQ(ToWindows1252(Text{u'a', char16_t(0xD83D)}), "a?");
    EXPECT_EQ(ToWindows1252(Text{char16_t(0xDE00), char16_t(0xD83D), u'b'}), "??b");
}

TEST(Text, ALetterGetsItsCapitalAndEverythingElseStays) {
    const std::string small = Utf8ToWindows1252("abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþšœžÿ");
    const std::string large = Utf8ToWindows1252("ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŠŒŽŸ");
    ASSERT_EQ(small.size(), large.size());
    for (const char byte : AllBytes()) {
        const std::size_t place = small.find(byte);
        const char capital = place == std::string::npos ? byte : large[place];
        EXPECT_EQ(ToCapital(byte), capital) << "byte " << static_cast<int>(static_cast<unsigned char>(byte));
        EXPECT_EQ(ToCapitals(std::string_view(&byte, 1)), std::string(1, capital));
        EXPECT_EQ(ToCapitals(FromWindows1252({&byte, 1})), FromWindows1252({&capital, 1}));
    }
}

TEST(Text, SharpSAndMicroAndTheDivisionSignHaveNoCapital) {
    EXPECT_EQ(ToUtf8(ToCapitals(FromUtf8("ß µ ÷ ×"))), "ß µ ÷ ×");
}

TEST(Text, ACharacterOutsideWindows1252KeepsItsCase) {
    EXPECT_EQ(ToUtf8(ToCapitals(FromUtf8("ăŏ привет ?"))), "ăŏ привет ?");
}

TEST(Text, CharactersOfOneToFourUtf8BytesSurviveBothWays) {
    const std::vector<std::pair<std::string, Text>> pairs = {
        {std::string(1, '\0'), Text(1, u'\0')},
        {"\x7F", u"\u007F"},
        {"\xC2\x80", u"\u0080"},
        {"\xDF\xBF", u"\u07FF"},
        {"\xE0\xA0\x80", u"\u0800"},
        {"\xED\x9F\xBF", u"\uD7FF"},
        {"\xEE\x80\x80", u"\uE000"},
        {"\xEF\xBF\xBF", u"\uFFFF"},
        {"\xF0\x90\x80\x80", u"\U00010000"},
        {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
    };
    for (const auto& [utf8, text] : pairs) {
        EXPECT_EQ(FromUtf8(utf8), text);
        EXPECT_EQ(ToUtf8(text), utf8);
    }
}

TEST(Text, AByteThatIsNoUtf8BecomesALoneSurrogate) {
    EXPECT_EQ(FromUtf8("a\xFF"), (Text{u'a', char16_t(0xDCFF)}));
    EXPECT_EQ(FromUtf8("\xC3(").size(), 2U);
    EXPECT_EQ(FromUtf8("\xC0\xAF"), (Text{char16_t(0xDCC0), char16_t(0xDCAF)}));                        // overlong
    EXPECT_EQ(FromUtf8("\xE0\x80\x80").size(), 3U);                                                     // overlong
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), (Text{char16_t(0xDCED), char16_t(0xDCA0), char16_t(0xDC80)}));  // surrogate
    EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80").size(), 4U);  // above 10FFFF hex
    EXPECT_EQ(FromUtf8("\xF0\x9F\x98").size(), 3U);      // cut off
}

TEST(Text, AnyBytesSurviveTheWayToTextAndBack) {
    // Lead bytes, continuation bytes and the borders between them, so that broken sequences of every kind occur.
    constexpr std::string_view alphabet = "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC2\xDF\xE0\xE2\xED\xEF\xF0\xF4\xF5\xFF";
    std::mt19937 random(1);
    for (int round = 0; round < 100'000; ++round) {
        std::string bytes(random() % 12, '\0');
        for (char& byte : bytes) byte = alphabet[random() % alphabet.size()];
        ASSERT_EQ(ToUtf8(FromUtf8(bytes)), bytes) << "round " << round;
    }
}

TEST(Text, BrokenBytesInTwoTextsAreStillTheirBytesWhenJoined) {
    EXPECT_EQ(ToUtf8(FromUtf8("\xC3") + FromUtf8("\xA9")), "\xC3\xA9");
}

TEST(Text, ASurrogateWithoutItsHalfIsWrittenAsTheReplacementCharacter) {
    EXPECT_EQ(ToUtf8(Text{char16_t(0xD83D), u'a'}),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(ToUtf8(Text{char16_t(0xDE00)}), "\xEF\xBF\xBD");
}

TEST(Text, TrimmingTakesSpacesAwayAndNothingElse) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(TrimRight("  a b  "), "  a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim(u"  a b\u00A0 "), TextView(u"a b\u00A0"));
    EXPECT_EQ(TrimRight(u" a "), TextView(u" a"));
}

TEST(Text, PartsOfEveryKindAreJoined) {
    const std::string bytes = "\x80 ";
    EXPECT_EQ(ToUtf8(Concat(u"a", bytes, "b ", -12, std::size_t{7}, Text(u"é"))), "a€ b -127é");
    EXPECT_EQ(Concat(), Text());
}

TEST(Text, ATextCanBeAppendedToItself) {
    Text text = u"abc";
    AppendTo(text, TextView(text));
    AppendTo(text, TextView(text).substr(3));
    EXPECT_EQ(text, u"abcabcabc");
}

template <class Part>
concept CanBeAppended = requires(Text text, Part part) {
    AppendTo(text, part);
};

TEST(Text, ASingleCharacterIsNotTakenForANumber) {
    static_assert(CanBeAppended<int> && CanBeAppended<std::int64_t>);
    static_assert(!CanBeAppended<char> && !CanBeAppended<char16_t> && !CanBeAppended<bool>);
    EXPECT_EQ(Concat(u"a", 98), u"a98");
}

}  // namespace

}  // namespace korvande::testing
