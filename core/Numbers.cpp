#include "core/Numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/RuntimeError.h"
#include "core/Text.h"

namespace korvande {

namespace {

constexpr std::array<double, 23> powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The parts of a number at the start of a text, found in one walk.
struct Scanned {
    bool negative = false;
    bool hasDigits = false;
    bool exact = true;         // `digits` holds all significant digits
    std::uint64_t digits = 0;  // without the point
    int decimals = 0;          // digits behind the point
    std::size_t mantissaBegin = 0;
    std::size_t mantissaEnd = 0;
    std::size_t exponentBegin = 0;  // behind the letter; 0 when there is no exponent
    std::size_t end = 0;            // behind the last character of the number
};

void ScanDigits(std::string_view text, Scanned& number, std::size_t& at) {
    constexpr std::uint64_t room = (std::uint64_t{1} << 53) / 10 - 1;  // one more digit still fits a double exactly
    bool point = false;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (IsDigit(c)) {
            number.hasDigits = true;
            if (number.digits > room) number.exact = false;
            if (number.exact) number.digits = number.digits * 10 + static_cast<std::uint64_t>(c - '0');
            if (point) ++number.decimals;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            break;
        }
    }
}

void ScanExponent(std::string_view text, Scanned& number) {
    std::size_t at = number.end;
    if (at >= text.size() || (ToCapital(text[at]) != 'E' && ToCapital(text[at]) != 'D')) return;
    const std::size_t begin = ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t firstDigit = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    if (at == firstDigit) return;
    number.exponentBegin = begin;
    number.end = at;
}

Scanned Scan(std::string_view text) {
    Scanned number;
    std::size_t at = 0;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) number.negative = text[at++] == '-';
    number.mantissaBegin = at;
    ScanDigits(text, number, at);
    number.mantissaEnd = number.end = at;
    if (number.hasDigits) ScanExponent(text, number);
    return number;
}

// Whether a number outside the range of a double lies above it, and not so close to 0 that it counts as 0.
bool IsTooLarge(std::string_view mantissa, std::string_view exponent) {
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    const auto order = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    constexpr std::int64_t beyond = 1'000'000'000;
    std::int64_t power = 0;
    const auto problem = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power).ec;
    if (problem == std::errc::result_out_of_range) power = exponent.front() == '-' ? -beyond : beyond;
    return order + power > 0;
}

// Any number, by the library: the exponent letter may be a D, and the exponent may have a plus sign.
double ConvertByLibrary(std::string_view text, const Scanned& number) {
    const std::string_view mantissa = text.substr(number.mantissaBegin, number.mantissaEnd - number.mantissaBegin);
    std::string_view exponent;
    std::string decimal(mantissa);
    if (number.exponentBegin != 0) {
        exponent = text.substr(number.exponentBegin, number.end - number.exponentBegin);
        if (exponent.front() == '+') exponent.remove_prefix(1);
        decimal.append("E").append(exponent);
    }
    double value = 0;
    const auto problem = std::from_chars(decimal.data(), decimal.data() + decimal.size(), value).ec;
    if (problem != std::errc::result_out_of_range) return value;
    if (IsTooLarge(mantissa, exponent)) throw RuntimeError(errors::overflow);
    return 0;
}

double Convert(std::string_view text, const Scanned& number) {
    if (!number.hasDigits) return 0;
    double value = 0;
    if (number.exact && number.exponentBegin == 0 && number.decimals < static_cast<int>(powersOfTen.size())) {
        // A whole number below 2^53 and a power of ten up to 10^22 are exact, so their quotient is rounded correctly.
        value = static_cast<double>(number.digits) / powersOfTen[static_cast<std::size_t>(number.decimals)];
    } else {
        value = ConvertByLibrary(text, number);
    }
    return number.negative ? -value : value;
}

// Reads eight digits at once, when eight stand there: by the bytes of one word, first each two, then each four, then
// all eight together.
bool ReadEightDigits(const char* at, const char* end, std::uint64_t& number) {
    if constexpr (std::endian::native != std::endian::little) return false;
    if (end - at < 8) return false;
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof(word));
    constexpr std::uint64_t everyByte = 0x0101010101010101;
    // A digit is 30 to 39 hex: its upper half is 3, also after 6 was added.
    constexpr std::uint64_t upperHalves = everyByte * 0xF0;
    if ((word & upperHalves) != everyByte * 0x30 || ((word + everyByte * 6) & upperHalves) != everyByte * 0x30) {
        return false;
    }
    word -= everyByte * 0x30;
    word = word * 10 + (word >> 8);
    constexpr std::uint64_t pairs = 0x000000FF000000FF;
    number = ((word & pairs) * 0x000F424000000064 + ((word >> 16) & pairs) * 0x0000271000000001) >> 32;
    return true;
}

// The ordinary number, in one walk: a sign at most, 1 to 15 digits with a point at most, and no exponent. False for any
// other text, which is left to Scan and Convert. The value is theirs, for the reason given there.
bool ReadOrdinary(std::string_view text, double& value, std::size_t& behind) {
    constexpr std::size_t mostDigits = 15;
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool negative = at != end && *at == '-';
    if (negative || (at != end && *at == '+')) ++at;
    const char* point = nullptr;
    const char* const first = at;
    std::uint64_t number = 0;
    if (ReadEightDigits(at, end, number)) at += 8;
    for (; at != end; ++at) {
        if (IsDigit(*at)) {
            number = number * 10 + static_cast<std::uint64_t>(*at - '0');
        } else if (*at == '.' && point == nullptr) {
            point = at;
        } else {
            break;
        }
    }
    const auto length = static_cast<std::size_t>(at - first);
    const std::size_t digits = point == nullptr ? length : length - 1;
    if (digits == 0 || digits > mostDigits) return false;
    if (at != end && (ToCapital(*at) == 'E' || ToCapital(*at) == 'D')) return false;
    value = static_cast<double>(number);
    if (point != nullptr) value /= powersOfTen[static_cast<std::size_t>(at - point - 1)];
    if (negative) value = -value;
    behind = static_cast<std::size_t>(at - text.data());
    return true;
}

bool IsWhole(std::string_view text, const Scanned& number) { return number.hasDigits && number.end == text.size(); }

double StrictNumber(std::string_view text) {
    const Scanned number = Scan(text);
    if (!IsWhole(text, number)) throw RuntimeError(errors::typeMismatch);
    return Convert(text, number);
}

double RoundHalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Whole>
Whole RoundedTo(double value) {
    const double rounded = RoundHalfToEven(value);
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
        throw RuntimeError(errors::overflow);
    }
    return static_cast<Whole>(rounded);
}

}  // namespace

double LeadingNumber(std::string_view text, std::size_t& end) {
    std::size_t blanks = 0;
    while (blanks < text.size() && (text[blanks] == ' ' || text[blanks] == '\t')) ++blanks;
    text.remove_prefix(blanks);
    double value = 0;
    if (ReadOrdinary(text, value, end)) {
        end += blanks;
        return value;
    }
    const Scanned number = Scan(text);
    end = number.hasDigits ? blanks + number.end : 0;
    return Convert(text, number);
}

double LeadingNumber(std::string_view text) {
    std::size_t end = 0;
    return LeadingNumber(text, end);
}

std::int32_t WholeNumber(double value) { return RoundedTo<std::int32_t>(value); }

std::int16_t WholeNumber16(double value) { return RoundedTo<std::int16_t>(value); }

std::int32_t StrictWholeNumber(std::string_view text) { return WholeNumber(StrictNumber(Trim(text))); }

bool IsNumber(std::string_view text) {
    text = Trim(text);
    return IsWhole(text, Scan(text));
}

bool StrictBoolean(std::string_view text) {
    const std::string word = ToCapitals(Trim(text));
    if (word == "TRUE") return true;
    if (word == "FALSE") return false;
    return StrictNumber(word) != 0;
}

std::int16_t SmallNumberOrZero(std::string_view text) {
    try {
        return WholeNumber16(LeadingNumber(text));
    } catch (const RuntimeError&) {
        return 0;
    }
}

std::string Printed(std::int32_t number) {
    std::string printed = std::to_string(number);
    if (number >= 0) printed.insert(printed.begin(), ' ');
    printed.push_back(' ');
    return printed;
}

}  // namespace korvande
