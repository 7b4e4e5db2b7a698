#include "core/Picture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/Digits.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

constexpr int significantDigits = 15;
constexpr std::array<double, 16> powersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// A rounded number: digits without a point, of which the last `decimals` stand behind it.
struct Rounded {
    bool negative = false;
    std::string digits;
};

void AddOne(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The rule itself, for any value: 15 significant digits, then halves away from zero.
Rounded RoundByDigits(double value, int decimals) {
    std::array<char, 32> scientific{};
    const auto end = std::to_chars(scientific.data(), scientific.data() + scientific.size(), std::fabs(value),
                                   std::chars_format::scientific, significantDigits - 1)
                         .ptr;
    std::string digits;
    const char* at = scientific.data();
    for (; *at != 'e'; ++at) {
        if (*at != '.') digits.push_back(*at);
    }
    ++at;
    if (*at == '+') ++at;
    int exponent = 0;
    std::from_chars(at, end, exponent);

    const int kept = exponent + 1 + decimals;  // digits that stay
    bool up = false;
    if (kept < 0) {
        digits.clear();
    } else if (kept < significantDigits) {
        up = digits[static_cast<std::size_t>(kept)] >= '5';
        digits.resize(static_cast<std::size_t>(kept));
    } else {
        digits.append(static_cast<std::size_t>(kept - significantDigits), '0');
    }
    if (up) AddOne(digits);
    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    return {std::signbit(value) && !zero, digits};
}

Rounded Round(double value, int decimals) {
    std::int64_t scaled = 0;
    if (ScaledDecimal(value, decimals, scaled)) {
        std::array<char, 20 + roomBehindDigits> buffer{};
        char* const begin = buffer.data();
        return {scaled < 0, std::string(begin, WriteWhole(begin, scaled < 0 ? -scaled : scaled))};
    }
    if (!std::isfinite(value)) throw RuntimeError(errors::overflow);
    return RoundByDigits(value, decimals);
}

}  // namespace

bool ScaledDecimal(double value, int decimals, std::int64_t& scaled) {
    if (decimals > significantDigits) return false;
    const double multiplied = value * powersOfTen[static_cast<std::size_t>(decimals)];
    if (NearestWhole(multiplied, scaled)) return true;
    const double size = std::fabs(multiplied);
    if (!(size < powersOfTen[significantDigits])) return false;
    const Rounded rounded = RoundByDigits(value, decimals);
    std::int64_t whole = 0;
    for (const char digit : rounded.digits) whole = whole * 10 + (digit - '0');
    scaled = rounded.negative ? -whole : whole;
    return true;
}

void AppendDecimal(std::string& text, double value, int integerDigits, int decimals) {
    Rounded rounded = Round(value, decimals);
    const auto least = static_cast<std::size_t>(integerDigits) + static_cast<std::size_t>(decimals);
    if (rounded.digits.size() < least) rounded.digits.insert(0, least - rounded.digits.size(), '0');
    if (rounded.negative) text.push_back('-');
    // A picture without a "0" before the point writes no integer digit for a value below 1.
    const std::size_t integers = rounded.digits.size() - static_cast<std::size_t>(decimals);
    std::size_t first = 0;
    while (first + static_cast<std::size_t>(integerDigits) < integers && rounded.digits[first] == '0') ++first;
    text.append(rounded.digits, first, integers - first);
    if (decimals > 0) {
        text.push_back('.');
        text.append(rounded.digits, integers);
    }
}

std::string FormatPicture(double value, std::string_view picture) {
    constexpr std::string_view digitMarks = "0#.";
    const std::size_t begin = std::min(picture.find_first_of(digitMarks), picture.size());
    const std::size_t end = std::min(picture.find_first_not_of(digitMarks, begin), picture.size());
    const std::string_view marks = picture.substr(begin, end - begin);
    const std::size_t point = std::min(marks.find('.'), marks.size());
    const auto integerDigits = std::count(marks.begin(), marks.begin() + static_cast<std::ptrdiff_t>(point), '0');
    const auto decimals = marks.size() - std::min(point + 1, marks.size());

    std::string text(picture.substr(0, begin));
    if (!marks.empty()) AppendDecimal(text, value, static_cast<int>(integerDigits), static_cast<int>(decimals));
    if (decimals > 0) {
        // Of the "#" at the end only those are written that a digit other than 0 needs.
        auto unneeded = marks.size() - 1 - marks.find_last_not_of('#');
        for (; unneeded > 0 && text.back() == '0'; --unneeded) text.pop_back();
    }
    text.append(picture.substr(end));
    return text;
}

}  // namespace korvande
