#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace korvande {

// Which characters count as blanks when a field is trimmed: an IDEX file may use tabs as well.
enum class Blanks { Spaces, SpacesAndTabs };

std::string_view TrimAs(Blanks blanks, std::string_view text) noexcept;

// Splits a line into fields at the separator. The line is trimmed and cut before its first terminator; nothing left is
// no fields, and a separator at the end makes one more empty field. A field that begins with a double quote runs on to
// the closing quote, a doubled quote inside being no closing quote; without a closing quote the separator is looked for
// from the field's second character. Fields are trimmed and keep their quotes; they are views on the line. At most
// `maximum` fields are taken, what comes behind them is not looked at. The result is the place of the terminator in the
// line, npos when it has none.
std::size_t ParseFields(std::string_view line, char separator, char terminator, Blanks blanks,
                        std::vector<std::string_view>& fields, std::size_t maximum = static_cast<std::size_t>(-1));

}  // namespace korvande
