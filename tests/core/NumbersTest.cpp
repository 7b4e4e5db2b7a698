#include "core/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

TEST(Numbers, TheLeadingNumberTellsWhereItEnds) {
    const auto endOf = [](std::string_view text) {
        std::size_t end = 99;
        LeadingNumber(text, end);
        return end;
    };
    EXPECT_EQ(endOf("12.50"), 5U);
    EXPECT_EQ(endOf(" \t-7x"), 4U);
    EXPECT_EQ(endOf("12l023"), 2U);
    EXPECT_EQ(endOf("12,5"), 2U);
    EXPECT_EQ(endOf("1E+3m"), 4U);
    EXPECT_EQ(endOf("1E"), 1U);
    EXPECT_EQ(endOf("12345678901234567890 "), 20U);
    for (const std::string_view none : {"", "  ", "-", ".", "X1", "\"1\""}) EXPECT_EQ(endOf(none), 0U) << none;
}

TEST(Numbers, ALeadingNumberIsReadUpToWhatCannotContinueIt) {
    struct Row {
        std::string_view text;
        double value;
    };
    constexpr Row rows[] = {
        {"", 0},
        {"   ", 0},
        {"abc", 0},
        {"12", 12},
        {"  12", 12},
        {" \t 12", 12},
        {"12abc", 12},
        {"12 34", 12},
        {"12,5", 12},
        {"-7", -7},
        {"+7", 7},
        {"- 7", 0},
        {"--7", 0},
        {"-", 0},
        {".5", 0.5},
        {"5.", 5},
        {".", 0},
        {"-.5", -0.5},
        {"1.2.3", 1.2},
        {"1..2", 1},
        {"1e3", 1000},
        {"1E3", 1000},
        {"1d3", 1000},
        {"1D+3", 1000},
        {"1.5e-3", 0.0015},
        {"5.e2", 500},
        {".5e1", 5},
        {"1e", 1},
        {"1e+", 1},
        {"1d-x", 1},
        {"1e3.5", 1000},
        {"e3", 0},
        {".e3", 0},
        {"0x10", 0},
        {"&H10", 0},
        {"inf", 0},
        {"nan", 0},
        {"0000000000000000000000000012", 12},
        {"123456.789012345678901234567890", 123456.789012345678901234567890},
        {"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"1e-400", 0},
        {"1e-99999999999999999999", 0},
        {"0e400", 0},
        {"0e99999999999999999999", 0},
        {"0.000e400", 0},
        {"4.9e-324", 4.9e-324},
    };
    for (const Row& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.value) << "'" << row.text << "'";
    EXPECT_EQ(LeadingNumber(std::string_view("1\0002", 3)), 1);
}

TEST(Numbers, ALeadingNumberTooLargeForADoubleIsError6) {
    for (const std::string_view text : {"1e309", "-1e309", "1d400", "1e99999999999999999999", "1.7976931348623159e308",
                                        "0.001e999", "99999999999999999999999999999e300"}) {
        EXPECT_EQ(ErrorOf([&] { static_cast<void>(LeadingNumber(text)); }), 6) << text;
    }
    const std::string manyDigits(400, '9');
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(LeadingNumber(manyDigits)); }), 6);
    const std::string manyZeros(400, '0');
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(LeadingNumber("0." + manyZeros + "1e99999999999999999999")); }), 6);
    EXPECT_EQ(LeadingNumber("1" + manyZeros + "e-99999999999999999999"), 0);
    EXPECT_EQ(LeadingNumber("0." + manyZeros + "1"), 0);
    EXPECT_EQ(LeadingNumber("0." + manyZeros + "1e401"), 1);
    EXPECT_EQ(LeadingNumber("1" + manyZeros + "e-400"), 1);
}

TEST(Numbers, ReadingAnOrdinaryNumberTakesNoHeap) {
    double sum = 0;
    const auto used = AllocationsOf([&] { sum = LeadingNumber(" 123456.7891 ") + LeadingWholeNumber("  42,"); });
    EXPECT_EQ(used.blocks, 0U);
    EXPECT_EQ(sum, 123456.7891 + 42);
}

// Digits are read eight at a time where eight stand; every other byte ends the number where it stands.
TEST(Numbers, AnyByteAmongEightDigitsEndsTheNumber) {
    for (std::size_t place = 0; place < 8; ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            const auto character = static_cast<char>(byte);
            // These go on with a number, or begin one.
            if (std::string_view("0123456789.+-eEdD \t").find(character) != std::string_view::npos) continue;
            std::string text = "123456789";
            text[place] = character;
            double expected = 0;
            for (std::size_t i = 0; i < place; ++i) expected = expected * 10 + static_cast<double>(i + 1);
            EXPECT_EQ(LeadingNumber(text), expected) << place << " " << byte;
        }
    }
    for (std::size_t digits = 1; digits <= 17; ++digits) {
        const std::string text = std::string("98765432109876543").substr(0, digits);
        EXPECT_EQ(LeadingNumber(text), static_cast<double>(std::stoull(text))) << text;
    }
}

TEST(Numbers, HalvesGoToTheEvenNeighbour) {
    struct Row {
        double value;
        std::int32_t whole;
    };
    constexpr Row rows[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2},   {3.5, 4},   {-0.5, 0}, {-1.5, -2}, {-2.5, -2},        {-3.5, -4},
        {2.4, 2}, {2.6, 3}, {-2.4, -2}, {-2.6, -3}, {0, 0},    {-0.0, 0},  {1e9, 1000000000}, {0.49999999999999994, 0}};
    for (const Row& row : rows) {
        EXPECT_EQ(WholeNumber(row.value), row.whole) << row.value;
        if (row.whole < 1000) {
            EXPECT_EQ(WholeNumber16(row.value), row.whole) << row.value;
        }
    }
    for (int i = -100'000; i <= 100'000; ++i) {
        ASSERT_EQ(WholeNumber(i + 0.5) % 2, 0) << i;
        ASSERT_EQ(std::fabs(WholeNumber(i + 0.5) - (i + 0.5)), 0.5) << i;
    }
}

TEST(Numbers, AWholeNumberOutside32BitsIsError6) {
    EXPECT_EQ(WholeNumber(2147483647.49), 2147483647);
    EXPECT_EQ(WholeNumber(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double value : {2147483647.5, 2147483648.0, -2147483648.51, 1e308, -1e308,
                               std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(ErrorOf([&] { WholeNumber(value); }), 6) << value;
    }
    EXPECT_EQ(LeadingWholeNumber(" 2147483647;"), 2147483647);
    EXPECT_EQ(ErrorOf([&] { LeadingWholeNumber("2147483648"); }), 6);
    EXPECT_EQ(LeadingWholeNumber("12.5x"), 12);
}

TEST(Numbers, AWholeNumberOutside16BitsIsError6) {
    EXPECT_EQ(WholeNumber16(32767.4), 32767);
    EXPECT_EQ(WholeNumber16(-32768.5), -32768);
    for (const double value : {32767.5, -32768.6, 1e300}) {
        EXPECT_EQ(ErrorOf([&] { WholeNumber16(value); }), 6) << value;
    }
}

TEST(Numbers, AStrictNumberIsTheWholeTrimmedText) {
    struct Row {
        std::string_view text;
        std::int32_t number;
    };
    constexpr Row rows[] = {{"12", 12},  {"  12  ", 12}, {"-12", -12},  {"+12", 12},  {"12.5", 12},      {"13.5", 14},
                            {"12.", 12}, {".5", 0},      {"1e3", 1000}, {"1D2", 100}, {"0000000012", 12}};
    for (const Row& row : rows) EXPECT_EQ(StrictWholeNumber(row.text), row.number) << "'" << row.text << "'";
}

TEST(Numbers, ATextThatIsNoStrictNumberIsError13) {
    for (const std::string_view text : {"", " ", "abc", "12a", "1 2", "1,5", "1.2.3", "-", ".", "1e", "1e+", "- 1",
                                        "\t12", "12\t", "&H1", "0x1", "inf", "\"12\""}) {
        EXPECT_EQ(ErrorOf([&] { StrictWholeNumber(text); }), 13) << "'" << text << "'";
    }
}

TEST(Numbers, ATextIsANumberWhenItCanBeReadStrictly) {
    for (const std::string_view text : {"12", " 12 ", "-1.5", "1e999", ".5"}) EXPECT_TRUE(IsNumber(text)) << text;
    for (const std::string_view text : {"", " ", "12a", "1 2", "-", "\t12"}) EXPECT_FALSE(IsNumber(text)) << text;
}

TEST(Numbers, AStrictNumberOutside32BitsIsError6) {
    for (const std::string_view text : {"2147483648", "-2147483649", "1e10", "1e999"}) {
        EXPECT_EQ(ErrorOf([&] { StrictWholeNumber(text); }), 6) << text;
    }
    EXPECT_EQ(StrictWholeNumber("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(Numbers, ATruthValueIsAWordInAnyCaseOrANumber) {
    for (const std::string_view text : {"True", "TRUE", "true", " tRuE ", "1", "-1", "0.5", "7e2"}) {
        EXPECT_TRUE(StrictBoolean(text)) << text;
    }
    for (const std::string_view text : {"False", "FALSE", "false", " fAlSe ", "0", "0.0", "-0"}) {
        EXPECT_FALSE(StrictBoolean(text)) << text;
    }
    for (const std::string_view text : {"", "Waar", "T", "True1", "yes", "0x", "Truefalse"}) {
        EXPECT_EQ(ErrorOf([&] { StrictBoolean(text); }), 13) << text;
    }
}

TEST(Numbers, ASmallNumberThatDoesNotFitIsZero) {
    struct Row {
        std::string_view text;
        int number;
    };
    constexpr Row rows[] = {{"7", 7},           {" 3.5x", 4}, {"", 0},       {"x", 0},           {"32767", 32767},
                            {"-32768", -32768}, {"32768", 0}, {"-32769", 0}, {"99999999999", 0}, {"1e999", 0}};
    for (const Row& row : rows) EXPECT_EQ(SmallNumberOrZero(row.text), row.number) << row.text;
}

TEST(Numbers, APrintedNumberHasABlankOrAMinusBeforeAndABlankBehind) {
    EXPECT_EQ(Printed(0), " 0 ");
    EXPECT_EQ(Printed(42), " 42 ");
    EXPECT_EQ(Printed(-42), "-42 ");
    EXPECT_EQ(Printed(std::numeric_limits<std::int32_t>::min()), "-2147483648 ");
}

}  // namespace

}  // namespace korvande::testing
