#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

// Numbers by picture. A number is taken in its decimal form of 15 significant digits and rounded from there, halves
// away from zero; a result of all zeros carries no minus sign.
namespace korvande {

// value × 10^decimals as a whole number by that rule. Returns false, and leaves the result alone, when the value is too
// large for it (10^15 and more after scaling) or no finite number, or for more than 15 decimals.
bool ScaledDecimal(double value, int decimals, std::int64_t& scaled);

// The same of a value that was multiplied already, when that decides it, as of nearly every value: its size is below
// 10^11 and lies away from a half.
inline bool NearestWhole(double multiplied, std::int64_t& whole) noexcept {
    constexpr double limit = 1e11;
    constexpr double doubt = 1e-3;
    const double size = std::fabs(multiplied);
    if (!(size < limit)) return false;
    // Both the product and the form of 15 digits lie within 10^-4 of the value, so away from a half all agree.
    const auto below = static_cast<std::int64_t>(size);
    const double rest = size - static_cast<double>(below);
    if (std::fabs(rest - 0.5) <= doubt) return false;
    const std::int64_t nearest = below + (rest > 0.5 ? 1 : 0);
    whole = std::signbit(multiplied) ? -nearest : nearest;
    return true;
}

// Appends the number with this many decimals and at least `integerDigits` digits before the point; the point and a
// minus sign directly before the first digit as needed. Error 6 for a value that is no finite number.
void AppendDecimal(std::string& text, double value, int integerDigits, int decimals);

// The number by a picture: "0" is a digit always written, "#" a digit written only when it is needed, "." the decimal
// point; any other character, before or behind the digits, stands for itself. A minus sign goes directly before the
// first digit.
std::string FormatPicture(double value, std::string_view picture);

}  // namespace korvande
