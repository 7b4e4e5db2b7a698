#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <random>

#include "core/Numbers.h"
#include "tests/core/ErrorOf.h"

// Against a library that reads numbers right to the last bit.
namespace korvande::testing {

namespace {

// Writes the text of a random number of a file: with and without point, sign and exponent, of few and many digits.
std::string_view RandomNumber(std::mt19937_64& random, std::array<char, 64>& room) {
    const std::uint64_t choice = random();
    char* at = room.data();
    if ((choice & 1U) != 0) *at++ = (choice & 2U) != 0 ? '-' : '+';
    const auto digits = static_cast<int>((choice >> 2U) % 22);
    const auto point = static_cast<int>((choice >> 8U) % 24);
    std::uint64_t source = random();
    for (int i = 0; i < digits; ++i) {
        if (i == point) *at++ = '.';
        *at++ = static_cast<char>('0' + source % 10);
        source = source / 10 + (i == 10 ? random() : 0);
    }
    if ((choice >> 16U) % 4 == 0) {
        *at++ = 'E';
        const std::int64_t range = (choice >> 20U) % 2 == 0 ? 30 : 340;
        const auto exponent = static_cast<std::int64_t>((choice >> 24U) % 1000) % (2 * range) - range;
        at = std::to_chars(at, room.data() + room.size(), exponent).ptr;
    }
    *at = '\0';  // for strtod
    return {room.data(), static_cast<std::size_t>(at - room.data())};
}

TEST(Numbers, ALeadingNumberIsBitForBitWhatTheLibraryReads) {
    const locale_t plain = ::newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    std::mt19937_64 random(1);
    std::array<char, 64> room{};
    int tooLarge = 0;
    for (int i = 0; i < 2'000'000; ++i) {
        const std::string_view text = RandomNumber(random, room);
        const double expected = ::strtod_l(text.data(), nullptr, plain);
        if (std::isinf(expected)) {
            ++tooLarge;
            ASSERT_EQ(ErrorOf([&] { static_cast<void>(LeadingNumber(text)); }), 6) << text;
            continue;
        }
        const double value = LeadingNumber(text);
        // A sign alone is no number: its 0 has no sign, whatever the library says.
        ASSERT_TRUE(std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(expected) ||
                    (value == 0 && expected == 0))
            << text << ": " << value << ", not " << expected;
    }
    EXPECT_GT(tooLarge, 1'000);
    ::freelocale(plain);
}

}  // namespace

}  // namespace korvande::testing
