#pragma once

#include <string>
#include <string_view>

namespace korvande {

// What the bytes of an exchange file stand for. A file that begins with the byte order mark of UTF-8 is UTF-8, whatever
// is chosen here.
enum class CharacterSet {
    Automatic,  // Windows-1252; a line whose bytes above 7F hex are all valid UTF-8 is UTF-8
    Windows1252,
    Cp850  // of old DOS programs
};

// Whether a text has a byte above 7F hex.
bool HasHighByte(std::string_view bytes) noexcept;

// Puts a line of UTF-8 into a text as Windows-1252, with "?" for what that lacks; false when it is no valid UTF-8, and
// then the text is of no meaning. With its columns kept each character is filled with blanks to the width of its bytes.
enum class Columns { Free, Kept };
bool Utf8LineToWindows1252(std::string_view line, Columns columns, std::string& converted);

// Bytes of code page 850 as Windows-1252, with "?" for what that lacks.
std::string Cp850ToWindows1252(std::string_view bytes);

}  // namespace korvande
