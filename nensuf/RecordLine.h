#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/LineReader.h"

// What a line of a NEN1878 or SUF2 file counts as. A record has 64 columns: 1-2 the type, 3-62 the payload, 63-64 the
// end code.
namespace korvande {

inline constexpr std::size_t recordLength = 64;

// The part of a line of more than 64 characters that is the record: the last 64, or the first 64 when only those end in
// an end code (or are the closing record) and blanks alone follow, which an editor left there.
std::string_view RecordOfLongLine(std::string_view line) noexcept;

// A line of 63 characters lacks the first digit of its type, and a first character that sorts before "0" stands for it.
inline bool LacksFirstDigit(std::string_view line) noexcept { return line.size() == recordLength - 1; }
inline bool StandsForZero(char first) noexcept { return static_cast<unsigned char>(first) < '0'; }

bool IsWhiteSpace(std::string_view line) noexcept;

// The next line that holds more than white space; false at the end of the file. Such a line is the first of the header.
bool NextWritten(LineReader& file, std::string_view& line);

// A line as the header record of a type ("01" or "02"): as it stands, whatever its length, when it begins with its
// type, or else as what it counts as. Nothing when that does not begin with the type either.
std::optional<std::string> HeaderRecord(std::string_view line, std::string_view type);

// Whether more than blanks of a line of more than 64 characters is not in its record, or not in the columns of a header
// record of a type.
bool LosesCharacters(std::string_view line) noexcept;
bool HeaderLosesCharacters(std::string_view line, std::string_view type) noexcept;

}  // namespace korvande
