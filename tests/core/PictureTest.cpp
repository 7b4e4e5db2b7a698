#include "core/Picture.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>

#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

// The rule word for word: the 15 significant digits of the value as a whole number and the power of ten of the last.
struct Decimal15 {
    std::string digits;
    int lastPower = 0;
    bool negative = false;
};

Decimal15 DecimalForm(double value) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.14e", std::fabs(value));
    Decimal15 form;
    form.digits = std::string(1, text[0]) + std::string(&text[2], 14);  // text[1] is the locale's decimal point
    form.lastPower = std::atoi(&text[17]) - 14;
    form.negative = std::signbit(value);
    return form;
}

// value × 10^decimals by the rule, in whole-number arithmetic; nothing from 10^15 on.
std::optional<std::int64_t> ReferenceScaled(double value, int decimals) {
    const Decimal15 form = DecimalForm(value);
    std::int64_t number = std::stoll(form.digits);
    int power = form.lastPower + decimals;
    if (number == 0 || power < -16) return 0;
    if (power > 0) return {};
    std::int64_t unit = 1;
    for (; power < 0; ++power) unit *= 10;
    const std::int64_t rest = number % unit;
    number = number / unit + (2 * rest >= unit && unit > 1 ? 1 : 0);
    return form.negative ? -number : number;
}

// The number with `decimals` digits behind the point and at least `integerDigits` before it, on texts alone.
std::string ReferenceText(double value, int integerDigits, int decimals) {
    const Decimal15 form = DecimalForm(value);
    // All digits from far before the point to far behind it; the point stands behind the first 400.
    constexpr int before = 400;
    constexpr int behind = 400;
    std::string all(before + behind, '0');
    for (int i = 0; i < 15; ++i) {
        const int place = before - 1 - (form.lastPower + 14 - i);
        if (place < before + behind) all[static_cast<std::size_t>(place)] = form.digits[static_cast<std::size_t>(i)];
    }
    const auto end = before + static_cast<std::size_t>(decimals);
    bool carry = all[end] >= '5';
    all.resize(end);
    for (std::size_t i = end; carry && i-- > 0;) {
        carry = all[i] == '9';
        all[i] = carry ? '0' : static_cast<char>(all[i] + 1);
    }
    const bool zero = all.find_first_not_of('0') == std::string::npos;
    std::string integers = all.substr(0, before);
    integers.erase(0, std::min(integers.find_first_not_of('0'), before - static_cast<std::size_t>(integerDigits)));
    std::string text = (form.negative && !zero ? "-" : "") + integers;
    if (decimals > 0) text += "." + all.substr(before);
    return text;
}

std::string AppendedDecimal(double value, int integerDigits, int decimals) {
    std::string text;
    AppendDecimal(text, value, integerDigits, decimals);
    return text;
}

::testing::AssertionResult ScalesAsTheRuleSays(double value, int decimals) {
    std::int64_t scaled = 4711;
    const bool done = ScaledDecimal(value, decimals, scaled);
    const auto expected = ReferenceScaled(value, decimals);
    if (done && expected && scaled == *expected) return ::testing::AssertionSuccess();
    if (!done && scaled == 4711 && (!expected || std::llabs(*expected) >= 999'999'999'999'999)) {
        return ::testing::AssertionSuccess();
    }
    std::array<char, 40> digits{};
    std::snprintf(digits.data(), digits.size(), "%.17g", value);
    return ::testing::AssertionFailure() << digits.data() << " with " << decimals
                                         << " decimals: " << (done ? std::to_string(scaled) : "too large") << ", not "
                                         << (expected ? std::to_string(*expected) : "too large");
}

TEST(Picture, ANumberIsWrittenByItsPicture) {
    struct Row {
        double value;
        const char* picture;
        const char* text;
    };
    constexpr Row rows[] = {
        {0, "########0", "0"},
        {123456789.5, "########0", "123456790"},
        {1e12, "########0", "1000000000000"},
        {-7, "########0", "-7"},
        {1234.5, "#0.0000", "1234.5000"},
        {0, "#######0.0000", "0.0000"},
        {-0.25, "#######0.0000", "-0.2500"},
        {399.99995, "###0.0000", "400.0000"},
        {5, "0000", "0005"},
        {2024, "0000", "2024"},
        {12345, "0000", "12345"},
        {7, "00", "07"},
        {7, "    #######0", "    7"},
        {-7, "    #######0", "    -7"},
        {50, "  ##0.000", "  50.000"},
        {12, " ######0 maal", " 12 maal"},
        {0, " ######0 maal", " 0 maal"},
        {2.345, "####0.00", "2.35"},
        {-2.345, "####0.00", "-2.35"},
        {-0.004, "####0.00", "0.00"},
        {0.5, "#", "1"},
        {0.4, "#", ""},
        {0.5, "#.00", ".50"},
        {-0.05, "#.00", "-.05"},
        {1.5, "0.0##", "1.5"},
        {1.25, "0.0##", "1.25"},
        {1, "0.0##", "1.0"},
        {1.0004, "0.0##", "1.0"},
        {5, "maal", "maal"},
    };
    for (const Row& row : rows) EXPECT_EQ(FormatPicture(row.value, row.picture), row.text) << row.picture;
}

TEST(Picture, HalvesOfTheDecimalFormGoAwayFromZero) {
    EXPECT_EQ(FormatPicture(1.0005 * 1000, "########0"), "1001");  // in binary a little below the half
    EXPECT_EQ(FormatPicture(0.0005 * 1000, "########0"), "1");
    EXPECT_EQ(FormatPicture(123456.7895 * 1000, "########0"), "123456790");
    EXPECT_EQ(FormatPicture(-1.0005 * 1000, "########0"), "-1001");
    EXPECT_EQ(FormatPicture(0.5, "0"), "1");
    EXPECT_EQ(FormatPicture(2.5, "0"), "3");
    EXPECT_EQ(FormatPicture(-2.5, "0"), "-3");
    EXPECT_EQ(FormatPicture(1.005, "0.00"), "1.01");
    EXPECT_EQ(FormatPicture(0.49999999999999994, "0"), "1");  // 0.500000000000000 in 15 digits
    EXPECT_EQ(FormatPicture(0.499999999999999, "0"), "0");
}

TEST(Picture, AResultOfAllZerosHasNoMinusSign) {
    for (const double value : {-0.0, -0.4, -0.49, -1e-300, -5e-324}) {
        EXPECT_EQ(FormatPicture(value, "########0"), "0") << value;
    }
    EXPECT_EQ(FormatPicture(-0.00004, "#0.0000"), "0.0000");
    EXPECT_EQ(FormatPicture(-0.00005, "#0.0000"), "-0.0001");
}

TEST(Picture, AllNinesCarryIntoANewDigit) {
    EXPECT_EQ(FormatPicture(9.99995, "#0.0000"), "10.0000");
    EXPECT_EQ(FormatPicture(-99.5, "00"), "-100");
    EXPECT_EQ(FormatPicture(999999999999999.9, "0.0"), "1000000000000000.0");
}

TEST(Picture, TheLargestValuesHaveAllTheirDigits) {
    EXPECT_EQ(FormatPicture(1e308, "0"), "1" + std::string(308, '0'));
    EXPECT_EQ(FormatPicture(-1.5e300, "#0.00"), "-15" + std::string(299, '0') + ".00");
    EXPECT_EQ(FormatPicture(std::numeric_limits<double>::max(), "0.0"),
              "179769313486232" + std::string(294, '0') + ".0");
    EXPECT_EQ(FormatPicture(5e-324, "0.0000"), "0.0000");
}

TEST(Picture, AsManyDecimalsAsWantedAreWritten) {
    EXPECT_EQ(FormatPicture(0.1, "0." + std::string(30, '0')), "0.1" + std::string(29, '0'));
    EXPECT_EQ(FormatPicture(1e-20, "0." + std::string(20, '0')), "0." + std::string(19, '0') + "1");
    std::int64_t scaled = 5;
    EXPECT_FALSE(ScaledDecimal(1, 16, scaled));
    EXPECT_EQ(scaled, 5);
}

TEST(Picture, AValueThatIsNoFiniteNumberIsError6) {
    for (const double value : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(ErrorOf([&] { FormatPicture(value, "0.00"); }), 6);
        std::string text = "x";
        EXPECT_EQ(ErrorOf([&] { AppendDecimal(text, value, 1, 3); }), 6);
        EXPECT_EQ(text, "x");
        std::int64_t scaled = 5;
        EXPECT_FALSE(ScaledDecimal(value, 3, scaled));
        EXPECT_EQ(scaled, 5);
    }
}

TEST(Picture, AScaledValueFrom10ToThe15IsTooLarge) {
    std::int64_t scaled = 5;
    EXPECT_FALSE(ScaledDecimal(1e12, 3, scaled));
    EXPECT_FALSE(ScaledDecimal(-1e300, 0, scaled));
    EXPECT_EQ(scaled, 5);
    EXPECT_TRUE(ScaledDecimal(999'999'999'999.0, 3, scaled));
    EXPECT_EQ(scaled, 999'999'999'999'000);
    EXPECT_TRUE(ScaledDecimal(-123456.7895, 3, scaled));
    EXPECT_EQ(scaled, -123456790);
}

TEST(Picture, CoordinatesInMillimetresFollowTheRule) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> metres(-1e6, 1e6);
    for (int i = 0; i < 500'000; ++i) {
        ASSERT_TRUE(ScalesAsTheRuleSays(metres(random), 3));
        // As a file has them: a whole number of tenths of a millimetre, so that every tenth one is a half.
        ASSERT_TRUE(ScalesAsTheRuleSays(std::round(metres(random) * 1e4) / 1e4, 3));
    }
}

TEST(Picture, EveryHalfAndItsNeighboursFollowTheRule) {
    for (int decimals = 0; decimals <= 4; ++decimals) {
        const double unit = std::pow(10.0, decimals);
        for (int i = 0; i < 100'000; ++i) {
            // Close together near 0, and spread as far as the last whole digit.
            const double half = ((i % 2 == 0 ? i : 1e10 / (i + 1.0) * i) + 0.5) / unit;
            ASSERT_TRUE(ScalesAsTheRuleSays(half, decimals));
            ASSERT_TRUE(ScalesAsTheRuleSays(-std::nextafter(half, 0.0), decimals));
            ASSERT_TRUE(ScalesAsTheRuleSays(std::nextafter(half, 1e300), decimals));
        }
    }
}

TEST(Picture, ValuesOfEverySizeFollowTheRule) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> magnitude(-8, 17);
    for (int i = 0; i < 300'000; ++i) {
        const double value = std::pow(10.0, magnitude(random)) * (i % 2 == 0 ? 1 : -1);
        ASSERT_TRUE(ScalesAsTheRuleSays(value, i % 6));
    }
}

TEST(Picture, TheWrittenFormFollowsTheRule) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> magnitude(-6, 16);
    for (int i = 0; i < 60'000; ++i) {
        const double value = std::pow(10.0, magnitude(random)) * (i % 2 == 0 ? 1 : -1);
        const int integerDigits = i % 4;
        const int decimals = i % 7;
        ASSERT_EQ(AppendedDecimal(value, integerDigits, decimals), ReferenceText(value, integerDigits, decimals))
            << value;
    }
    for (int i = 0; i < 20'000; ++i) {
        const auto value = std::bit_cast<double>(random());  // any double
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(AppendedDecimal(value, 1, 4), ReferenceText(value, 1, 4)) << value;
    }
}

}  // namespace

}  // namespace korvande::testing
