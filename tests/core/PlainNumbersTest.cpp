#include "core/PlainNumbers.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "core/Numbers.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/GuardedBytes.h"

namespace korvande::testing {

namespace {

std::uint64_t BitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

// What each procedure makes of a text at the end of the memory with some characters behind it, or "-".
class PlainNumbersTest : public ::testing::Test {
 protected:
    bool Whole(std::string_view text, std::string_view behind, std::int32_t& number) {
        const std::string_view row = bytes.AtEnd(std::string(text).append(behind));
        return PlainWhole(row.substr(0, text.size()), row.data() + row.size(), number);
    }
    bool Number(std::string_view text, std::string_view behind, double& number) {
        const std::string_view row = bytes.AtEnd(std::string(text).append(behind));
        return PlainNumber(row.substr(0, text.size()), row.data() + row.size(), number);
    }

    // Whatever is taken has the value of the slower procedures, to the bit.
    void ExpectSame(std::string_view text) {
        for (const std::string_view behind : {"", ";", "        ;", "12345678", ".5555555"}) {
            std::int32_t whole = 0;
            if (Whole(text, behind, whole)) {
                ASSERT_EQ(whole, StrictWholeNumber(text)) << text << behind;
            }
            double number = 0;
            if (!Number(text, behind, number)) continue;
            std::size_t end = 0;
            ASSERT_EQ(BitsOf(number), BitsOf(LeadingNumber(text, end))) << text << behind;
            ASSERT_EQ(end, text.size()) << text << behind;
        }
        double columns = 0;
        if (!PlainColumns(bytes.AtEnd(text), columns)) return;
        ASSERT_EQ(BitsOf(columns), BitsOf(LeadingNumber(text))) << text;
        ASSERT_TRUE(IsNumber(text)) << text;
    }

    std::string Any(std::string_view alphabet, std::size_t longest) {
        std::string text(random() % (longest + 1), '\0');
        for (char& character : text) character = alphabet[random() % alphabet.size()];
        return text;
    }

    std::mt19937 random{1};
    GuardedBytes bytes;
};

TEST_F(PlainNumbersTest, OrdinaryNumbersAreTaken) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"0.0000", 0},
                {"134330.4550", 134330.455},
                {"-12.5", -12.5},
                {"7", 7},
                {"12345678", 12345678},
                {"5.", 5},
                {"1.12345678", 1.12345678},
                {"1234567.12345678", 1234567.12345678}};
    for (const auto& row : rows) {
        double number = -1;
        EXPECT_TRUE(Number(row.text, "    ,   ;", number)) << row.text;
        EXPECT_EQ(number, row.value) << row.text;
    }
    std::int32_t whole = -1;
    EXPECT_TRUE(Whole("42", ",\"P1\",;", whole));
    EXPECT_EQ(whole, 42);
    EXPECT_TRUE(Whole("99999999", "", whole));
    EXPECT_EQ(whole, 99'999'999);
    double columns = 0;
    EXPECT_TRUE(PlainColumns("   -12345", columns));
    EXPECT_EQ(columns, -12345);
    EXPECT_TRUE(PlainColumns("123456789", columns));
    EXPECT_EQ(columns, 123'456'789);
    EXPECT_TRUE(PlainColumns("        7", columns));
    EXPECT_EQ(columns, 7);
}

TEST_F(PlainNumbersTest, EverythingElseIsLeftToOthers) {
    for (const char* const text : {"", "-", "+1", ".5", "1e5", "1.5d2", "1,5", "123456789", "1.123456789",
                                   "12345678.12345678", "1..2", "- 1", "1 2", "x", "--1", "\"1\""}) {
        double number = 0;
        EXPECT_FALSE(Number(text, "          ;", number)) << text;
    }
    for (const char* const text : {"", "-1", "+1", "1.", "123456789", "1 ", "1x"}) {
        std::int32_t number = 0;
        EXPECT_FALSE(Whole(text, "          ;", number)) << text;
    }
    for (const char* const text : {"", "         ", "12345678", "1234567 8", "       1 ", "    1e  5", "   - 1234",
                                   "  --12345", "1234.5678", "+12345678", "12345678-", "\26012345678"}) {
        double number = 0;
        EXPECT_FALSE(PlainColumns(text, number)) << text;
    }
}

TEST_F(PlainNumbersTest, WithoutEightBytesBehindItNothingIsReadThatIsNotThere) {
    for (const char* const text : {"1", "-1", "1.5", "-1.5", "1234567", "1234567.5"}) {
        double number = 0;
        EXPECT_FALSE(Number(text, "", number)) << text;
    }
    // Behind the point too.
    double number = 0;
    EXPECT_FALSE(Number("12345678.1234567", "", number));
    EXPECT_TRUE(Number("1234567.12345678", "", number));
}

TEST_F(PlainNumbersTest, WhateverIsTakenHasTheValueOfTheSlowerProcedures) {
    for (int round = 0; round < 300'000; ++round) {
        ExpectSame(Any(round % 2 == 0 ? "0123456789." : "0123456789.-+eE, \xB5", 18));
        ExpectSame(Any(round % 2 == 0 ? " 0123456789" : "  -0123456789.\x80", 9));
        const std::string digits = std::to_string(random() % 1'000'000'000);
        ExpectSame(std::string(9 - std::min<std::size_t>(9, digits.size()), ' ') + digits);
    }
}

}  // namespace

}  // namespace korvande::testing
