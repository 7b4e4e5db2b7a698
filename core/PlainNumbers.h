#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// The numbers that nearly every field of a file holds, read eight digits at a time. Each procedure is false for any
// other text, also one that is a number all the same: that is left to LeadingNumber and StrictWholeNumber, whose values
// these are. Bytes are read up to `limit`, which lies at or behind the end of the text: behind the row that it is a
// part of.
namespace korvande {

namespace plain {

inline constexpr std::size_t atOnce = 8;

// The digits that a text begins with, at most eight: their values, the first one in the lowest byte, and how many.
struct Digits {
    std::uint64_t values = 0;
    std::size_t count = 0;
};

// False when fewer than eight bytes are there.
inline bool ScanDigits(const char* at, const char* limit, Digits& digits) noexcept {
    if constexpr (std::endian::native != std::endian::little) return false;
    if (limit - at < static_cast<std::ptrdiff_t>(atOnce)) return false;
    constexpr std::uint64_t everyByte = 0x0101010101010101;
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof(word));
    digits.values = word ^ everyByte * '0';
    // What is above 9 reaches the highest bit of its byte; what it carries over goes into bytes behind it.
    const std::uint64_t others = ((digits.values + everyByte * 0x76) | digits.values) & everyByte * 0x80;
    digits.count = static_cast<std::size_t>(std::countr_zero(others)) / 8;
    return true;
}

// The number that the first `count` (1 to 8) of them make: each two together, each four, then all eight.
inline std::uint64_t NumberOf(std::uint64_t values, std::size_t count) noexcept {
    values <<= 8 * (atOnce - count);
    values = values * 10 + (values >> 8);
    constexpr std::uint64_t pairs = 0x000000FF000000FF;
    return ((values & pairs) * 0x000F424000000064 + ((values >> 16) & pairs) * 0x0000271000000001) >> 32;
}

}  // namespace plain

// One to eight digits.
inline bool PlainWhole(std::string_view text, const char* limit, std::int32_t& number) noexcept {
    plain::Digits digits;
    if (text.empty() || text.size() > plain::atOnce || !plain::ScanDigits(text.data(), limit, digits)) return false;
    if (digits.count < text.size()) return false;
    number = static_cast<std::int32_t>(plain::NumberOf(digits.values, text.size()));
    return true;
}

// A minus sign at most, one to eight digits, and a point with at most eight digits behind it, of 15 digits together at
// most: a whole number below 2^53 and a power of ten are exact, so their quotient is rounded correctly.
inline bool PlainNumber(std::string_view text, const char* limit, double& number) noexcept {
    constexpr std::array<double, 9> powersOfTen = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
    constexpr std::array<std::uint64_t, 9> wholePowers = {1,       10,        100,        1'000,      10'000,
                                                          100'000, 1'000'000, 10'000'000, 100'000'000};
    constexpr std::size_t mostDigits = 15;
    if (text.empty()) return false;
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool negative = *at == '-';
    if (negative) ++at;
    plain::Digits whole;
    if (!plain::ScanDigits(at, limit, whole) || whole.count == 0) return false;
    const auto length = static_cast<std::size_t>(end - at);
    if (length <= whole.count) {
        if (length == 0) return false;
        number = static_cast<double>(plain::NumberOf(whole.values, length));
    } else {
        const char* const point = at + whole.count;
        const auto decimals = static_cast<std::size_t>(end - point) - 1;
        if (*point != '.' || decimals > plain::atOnce || whole.count + decimals > mostDigits) return false;
        std::uint64_t digits = plain::NumberOf(whole.values, whole.count);
        if (decimals != 0) {
            plain::Digits behind;
            if (!plain::ScanDigits(point + 1, limit, behind) || behind.count < decimals) return false;
            digits = digits * wholePowers[decimals] + plain::NumberOf(behind.values, decimals);
        }
        number = static_cast<double>(digits) / powersOfTen[decimals];
    }
    if (negative) number = -number;
    return true;
}

// Nine columns of blanks, a minus sign at most and digits on the right.
inline bool PlainColumns(std::string_view columns, double& number) noexcept {
    if (columns.size() != plain::atOnce + 1 || std::endian::native != std::endian::little) return false;
    constexpr std::uint64_t everyByte = 0x0101010101010101;
    const auto last = static_cast<unsigned char>(columns[plain::atOnce] ^ '0');
    std::uint64_t word = 0;
    std::memcpy(&word, columns.data(), sizeof(word));
    const std::uint64_t unlikeBlanks = word ^ everyByte * ' ';
    if (last > 9) return false;
    std::uint64_t front = 0;
    if (unlikeBlanks != 0) {
        // Blanks in front are 10 hex below zeros.
        const int blankBits = std::countr_zero(unlikeBlanks) / 8 * 8;
        std::uint64_t values = word ^ everyByte * '0';
        values &= ~std::uint64_t{0} << blankBits;
        const bool negative = ((word >> blankBits) & 0xFF) == '-';
        if (negative) values &= ~(std::uint64_t{0xFF} << blankBits);
        if ((((values + everyByte * 0x76) | values) & everyByte * 0x80) != 0) return false;
        front = plain::NumberOf(values, plain::atOnce);
        if (negative) {
            number = -static_cast<double>(front * 10 + last);
            return true;
        }
    }
    number = static_cast<double>(front * 10 + last);
    return true;
}

}  // namespace korvande
