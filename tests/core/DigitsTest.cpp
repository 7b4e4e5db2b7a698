#include "core/Digits.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace korvande::testing {

namespace {

using Buffer = std::array<char, 40>;

// What a procedure writes, which may go eight bytes beyond its result and no further.
template <class Write>
std::string Written(Write write) {
    Buffer buffer{};
    buffer.fill('#');
    const char* const end = write(buffer.data());
    const auto length = static_cast<std::size_t>(end - buffer.data());
    for (std::size_t i = length + roomBehindDigits; i < buffer.size(); ++i) EXPECT_EQ(buffer[i], '#') << i;
    return {buffer.data(), length};
}

std::string Whole(std::int64_t number) {
    return Written([&](char* at) { return WriteWhole(at, number); });
}
std::string Scaled(std::int64_t number, int decimals) {
    return Written([&](char* at) { return WriteScaled(at, number, decimals); });
}
std::string InNineColumns(std::int64_t number) {
    return Written([&](char* at) { return WriteInNineColumns(at, number); });
}

// Numbers at the ends of each length, of either sign, and others of every length.
std::vector<std::int64_t> Numbers() {
    std::vector<std::int64_t> numbers = {0, std::numeric_limits<std::int64_t>::min(),
                                         std::numeric_limits<std::int64_t>::max()};
    for (std::int64_t power = 1; power <= 100'000'000'000'000'000; power *= 10) {
        for (const std::int64_t number : {power - 1, power, power + 1, 5 * power, 9 * power, power * 10 - 1}) {
            numbers.push_back(number);
            numbers.push_back(-number);
        }
    }
    std::uint64_t random = 88172645463325252ULL;
    for (int i = 0; i < 20'000; ++i) {
        random ^= random << 13;
        random ^= random >> 7;
        random ^= random << 17;
        numbers.push_back(static_cast<std::int64_t>(random) >> (i % 63));
    }
    return numbers;
}

TEST(Digits, EightDigitsHaveZerosInFront) {
    const auto eight = [](std::uint32_t number) {
        return Written([&](char* at) { return WriteEightDigits(at, number); });
    };
    EXPECT_EQ(eight(0), "00000000");
    EXPECT_EQ(eight(7), "00000007");
    EXPECT_EQ(eight(10'203'040), "10203040");
    EXPECT_EQ(eight(99'999'999), "99999999");
    for (std::uint32_t number = 0; number < 100'000'000; number += 997) {
        const std::string digits = std::to_string(number);
        ASSERT_EQ(eight(number), std::string(8 - digits.size(), '0') + digits);
    }
}

TEST(Digits, AWholeNumberHasTheDigitsOfTheLibrary) {
    for (const std::int64_t number : Numbers()) ASSERT_EQ(Whole(number), std::to_string(number));
}

TEST(Digits, AScaledNumberHasItsPointBeforeItsDecimals) {
    EXPECT_EQ(Scaled(0, 4), "0.0000");
    EXPECT_EQ(Scaled(1, 4), "0.0001");
    EXPECT_EQ(Scaled(-1, 4), "-0.0001");
    EXPECT_EQ(Scaled(12345, 4), "1.2345");
    EXPECT_EQ(Scaled(1'210'005'000, 4), "121000.5000");
    EXPECT_EQ(Scaled(-50, 3), "-0.050");
    EXPECT_EQ(Scaled(99, 1), "9.9");
    EXPECT_EQ(Scaled(999'999'999'999'999, 4), "99999999999.9999");
    EXPECT_EQ(Scaled(-7, 0), "-7");
    for (const std::int64_t number : Numbers()) {
        for (std::size_t decimals = 1; decimals <= 8; ++decimals) {
            std::string digits = std::to_string(number);
            const std::string sign = digits.front() == '-' ? "-" : "";
            digits.erase(0, sign.size());
            if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
            digits.insert(digits.size() - decimals, ".");
            ASSERT_EQ(Scaled(number, static_cast<int>(decimals)), sign + digits);
        }
    }
}

TEST(Digits, NineColumnsHoldTheRightmostNineCharacters) {
    for (const std::int64_t number : Numbers()) {
        const std::string padded = std::string(9, ' ') + std::to_string(number);
        ASSERT_EQ(InNineColumns(number), padded.substr(padded.size() - 9));
    }
}

}  // namespace

}  // namespace korvande::testing
