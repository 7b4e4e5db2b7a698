#include "core/FixedBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace korvande::testing {

namespace {

using Name = FixedBytes<5>;

// The same text in bytes and in 16-bit characters, put there in the same way.
template <class... Written>
void ExpectSame(const Written&... text) {
    Name bytes{};
    bytes.Assign(text...);
    FixedText<5> wide{};
    if constexpr (sizeof...(text) == 1 && (std::is_convertible_v<Written, TextView> && ...)) {
        ((wide = TextView(text)), ...);
    } else {
        wide.Assign(text...);
    }
    EXPECT_EQ(bytes.Wide(), wide);
    EXPECT_EQ(bytes.IsBlank(), wide.IsBlank());
    EXPECT_EQ(bytes.NeverFilled(), wide.NeverFilled());
    EXPECT_EQ(FromWindows1252(bytes.Trimmed()), wide.Trimmed());
    EXPECT_EQ(FromWindows1252(bytes.TrimmedRight()), wide.TrimmedRight());
}

TEST(FixedBytes, ItsRulesAreThoseOfTextsInMemory) {
    const std::vector<std::string> texts = {
        "", " ", "a", " ab", "abcde", "abcdef", "\xE9\x80\x81\xFF", std::string(2, '\0')};
    for (const std::string& text : texts) {
        ExpectSame(std::string_view(text));
        ExpectSame(std::string_view(text), Letters::Capitals);
        const Text wide = FromWindows1252(text);
        ExpectSame(TextView(wide));
    }
}

TEST(FixedBytes, EveryByteComesBackAsItsCharacter) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        ExpectSame(std::string_view(byte));
        Name bytes{};
        bytes.Assign(FromWindows1252(byte));
        EXPECT_EQ(bytes.View(), byte + "    ") << code;
    }
}

TEST(FixedBytes, ACharacterThatWindows1252LacksIsAQuestionMark) {
    EXPECT_EQ(MakeFixedBytes<5>(u"a\u0416b").View(), "a?b  ");
}

TEST(FixedBytes, OneThatWasNeverFilledIsNotBlank) {
    const Name bytes{};
    EXPECT_TRUE(bytes.NeverFilled());
    EXPECT_FALSE(bytes.IsBlank());
    EXPECT_NE(bytes, MakeFixedBytes<5>(u""));
}

TEST(FixedBytes, ItMayBeGivenAPartOfItself) {
    Name bytes = MakeFixedBytes<5>(u"abcde");
    bytes.Assign(bytes.View().substr(2));
    EXPECT_EQ(bytes.View(), "cde  ");
}

}  // namespace

}  // namespace korvande::testing
