#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Reading and rounding numbers. All of it works with the decimal point, whatever the locale.
namespace korvande {

// The number that a text begins with: spaces and tabs are skipped; an optional sign, digits with at most one point and
// an optional exponent (E or D, optional sign, at least one digit) are read; the rest is ignored. 0 when there is no
// number. Error 6 when it is too large for a double.
double LeadingNumber(std::string_view text);

// The same, with the place behind the number; 0 when there is none.
double LeadingNumber(std::string_view text, std::size_t& end);

// The value rounded to a whole number, halves to the even neighbour; error 6 outside 32 bits.
std::int32_t WholeNumber(double value);
inline std::int32_t LeadingWholeNumber(std::string_view text) { return WholeNumber(LeadingNumber(text)); }

// The same into 16 bits (error 6 outside them).
std::int16_t WholeNumber16(double value);

// The whole text (without the blanks at its ends) as a number, rounded half to even; error 13 when it is none, error 6
// outside 32 bits.
std::int32_t StrictWholeNumber(std::string_view text);

// Whether the whole text (without the blanks at its ends) is a number.
bool IsNumber(std::string_view text);

// The whole text as a truth value: True or False in any case, or a number, true unless it is 0; else error 13.
bool StrictBoolean(std::string_view text);

// The leading number as a 16-bit integer, 0 when it does not fit: the P, I and B values of a code row.
std::int16_t SmallNumberOrZero(std::string_view text);

// A number as a print statement writes it: a blank (or "-") before and a blank behind.
std::string Printed(std::int32_t number);

}  // namespace korvande
