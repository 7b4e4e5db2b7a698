#pragma once

#include <cstddef>
#include <cstdint>

// Decimal digits written in place, forwards and eight at a time. Each procedure returns the place behind what it wrote,
// and may write over eight bytes more.
namespace korvande {

inline constexpr std::size_t roomBehindDigits = 8;

// A number below 100,000,000 as eight digits with zeros in front.
char* WriteEightDigits(char* at, std::uint32_t number) noexcept;

// A whole number in as many digits as it has, with a minus sign when it is negative.
char* WriteWhole(char* at, std::int64_t number) noexcept;

// A number that was scaled by 10^decimals (0 to 8): at least one digit before the point, that many behind it. Without
// decimals there is no point.
char* WriteScaled(char* at, std::int64_t scaled, int decimals) noexcept;

// A number on the right of nine columns with blanks in front; of a longer one the rightmost nine characters.
char* WriteInNineColumns(char* at, std::int64_t number) noexcept;

}  // namespace korvande
