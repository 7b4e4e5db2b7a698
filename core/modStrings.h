#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Text.h"

// Pure helpers that move values between the exchange formats. They work on Windows-1252 bytes, one a character; the
// ones that file names and reports need too exist for texts in memory as well.
namespace korvande {

// Trims, removes one double quote at each end and turns every other double quote into a single one. Blanks inside the
// quotes stay.
std::string StripQuotes(std::string_view text);
Text StripQuotes(TextView text);

// StripQuotes, between double quotes.
Text QuoteText(TextView text);

// 1.234,5 to 1234.5: when the text holds a comma, every point goes and every comma becomes a point.
std::string CommaToPoint(std::string_view text);

// The mirror image: when the text holds a point, every comma goes and every point becomes a comma.
std::string PointToComma(std::string_view text);

// Removes every occurrence, also those that a removal brings about, until none is left.
std::string RemoveAll(std::string_view text, std::string_view part);

// Replaces every occurrence, from left to right, going on behind each replacement.
Text ReplaceAll(TextView text, TextView find, TextView replacement);
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replacement);

// Aligns in a field of `width` characters: PadLeft keeps the rightmost characters of a longer text, PadRight the
// leftmost. Of the fill only the first character counts; an empty fill is a blank.
std::string PadLeft(std::string_view text, std::size_t width, std::string_view fill = " ");
std::string PadRight(std::string_view text, std::size_t width, std::string_view fill = " ");

// A flag word from binary digits, most significant first: blanks are skipped, "1" adds its weight, anything else
// nothing. Weights above 32 bits are dropped.
std::int32_t BinaryToFlags(std::string_view text) noexcept;

// The lowest 16 bits as "00000000 00000101". A value of 65536 and more gives sixteen ones, a negative one sixteen
// zeros.
std::string FlagsToBinary(std::int32_t flags);

// The same 17 characters at a place with room for them; returns the place behind them.
char* WriteFlags(char* place, std::int32_t flags) noexcept;

// Renumbers a text's anchor position between the 3×3 numberings of the surveying package and of NEN1878/SUF2: the last
// character n selects the n-th character of "147258369"; nothing, or what sorts up to "0", counts as 1 and what sorts
// after "9" too.
char TransposeAnchorPosition(std::string_view text) noexcept;

}  // namespace korvande
