#include "core/Digits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>

namespace korvande {

namespace {

constexpr std::uint64_t everyByte = 0x0101010101010101;
constexpr std::uint32_t eightDigits = 100'000'000;

constexpr std::array<std::uint32_t, 9> powersOfTen = {1,       10,        100,        1'000,      10'000,
                                                      100'000, 1'000'000, 10'000'000, eightDigits};

// The values of a number's eight digits, the first one in the lowest byte: halves, then quarters, then digits, all of a
// kind at once. 10486/2^20 and 103/2^10 are a hundredth and a tenth, exact enough for what is divided by them.
std::uint64_t DigitValues(std::uint32_t number) noexcept {
    const std::uint64_t halves = number / 10'000 | std::uint64_t{number % 10'000} << 32;
    const std::uint64_t hundreds = ((halves * 10'486) >> 20) & 0x0000'007F'0000'007F;
    const std::uint64_t quarters = hundreds | (halves - 100 * hundreds) << 16;
    const std::uint64_t tens = ((quarters * 103) >> 10) & 0x000F'000F'000F'000F;
    return tens | (quarters - 10 * tens) << 8;
}

// The same of a number below 10,000 and its four digits.
std::uint32_t FourDigitValues(std::uint32_t number) noexcept {
    const std::uint32_t hundreds = (number * 5'243) >> 19;
    const std::uint32_t halves = hundreds | (number - 100 * hundreds) << 16;
    const std::uint32_t tens = ((halves * 103) >> 10) & 0x000F'000F;
    return tens | (halves - 10 * tens) << 8;
}

// Puts eight bytes down, the lowest one first.
void Put(char* at, std::uint64_t bytes) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(at, &bytes, sizeof(bytes));
    } else {
        for (std::size_t i = 0; i < sizeof(bytes); ++i) at[i] = static_cast<char>(bytes >> (8 * i));
    }
}

// The zeros in front of the last digit.
int LeadingZeros(std::uint64_t values) noexcept { return std::min(std::countr_zero(values) / 8, 7); }

// How many digits a number below 100,000,000 has, 0 one. By its bits, so that where the next number begins is known
// before the digits are.
std::size_t DigitCount(std::uint32_t number) noexcept {
    // 1233/4096 is the logarithm of 2: the digits by the bits, or one less.
    const auto digits = static_cast<std::size_t>(std::bit_width(number | 1)) * 1233 >> 12;
    return digits + (digits == 0 || number >= powersOfTen[digits] ? 1 : 0);
}

char* WriteUpToEight(char* at, std::uint32_t number) noexcept {
    const std::size_t count = DigitCount(number);
    Put(at, (DigitValues(number) | everyByte * '0') >> (8 * (8 - count)));
    return at + count;
}

char* WriteUnsigned(char* at, std::uint64_t number) noexcept {
    if (number < eightDigits) return WriteUpToEight(at, static_cast<std::uint32_t>(number));
    std::uint64_t front = number / eightDigits;
    if (front < eightDigits) {
        at = WriteUpToEight(at, static_cast<std::uint32_t>(front));
    } else {
        at = WriteUpToEight(at, static_cast<std::uint32_t>(front / eightDigits));
        at = WriteEightDigits(at, static_cast<std::uint32_t>(front % eightDigits));
    }
    return WriteEightDigits(at, static_cast<std::uint32_t>(number % eightDigits));
}

std::uint64_t SizeOf(std::int64_t number) noexcept {
    return number < 0 ? -static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
}

}  // namespace

char* WriteEightDigits(char* at, std::uint32_t number) noexcept {
    Put(at, DigitValues(number) | everyByte * '0');
    return at + 8;
}

char* WriteWhole(char* at, std::int64_t number) noexcept {
    if (number < 0) *at++ = '-';
    return WriteUnsigned(at, SizeOf(number));
}

char* WriteScaled(char* at, std::int64_t scaled, int decimals) noexcept {
    constexpr int few = 4;
    const std::uint64_t size = SizeOf(scaled);
    if (scaled < 0) *at++ = '-';
    if (decimals == 0) return WriteUnsigned(at, size);
    // Nearly every number has four decimals, and the compiler knows how to divide by what it knows.
    const std::uint64_t power = powersOfTen[static_cast<std::size_t>(decimals)];
    const std::uint64_t whole = decimals == few ? size / powersOfTen[few] : size / power;
    const auto behind = static_cast<std::uint32_t>(size - whole * power);
    at = WriteUnsigned(at, whole);
    *at++ = '.';
    if (decimals <= few) {
        Put(at, (FourDigitValues(behind) | everyByte * '0') >> (8 * (few - decimals)));
    } else {
        Put(at, (DigitValues(behind) | everyByte * '0') >> (8 * (8 - decimals)));
    }
    return at + decimals;
}

char* WriteInNineColumns(char* at, std::int64_t number) noexcept {
    constexpr std::size_t width = 9;
    if (number >= 0 && number < 10 * std::int64_t{eightDigits}) {
        const auto front = static_cast<std::uint32_t>(number / eightDigits);
        const std::uint64_t values = DigitValues(static_cast<std::uint32_t>(number % eightDigits));
        if (front != 0) {
            at[0] = static_cast<char>('0' + front);
            Put(at + 1, values | everyByte * '0');
        } else {
            // Digits are 10 hex above blanks.
            const int zeros = LeadingZeros(values);
            at[0] = ' ';
            Put(at + 1, values | everyByte * ' ' | everyByte * 0x10 << (8 * zeros));
        }
        return at + width;
    }
    std::array<char, 20 + roomBehindDigits> digits{};
    const char* const end = WriteWhole(digits.data(), number);
    const auto length = static_cast<std::size_t>(end - digits.data());
    const std::size_t kept = std::min(length, width);
    std::memset(at, ' ', width - kept);
    std::memcpy(at + width - kept, end - kept, kept);
    return at + width;
}

}  // namespace korvande
