#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Texts and their encodings. In memory a text is a row of 16-bit characters (`Text`); as it stands in an exchange file,
// a control table or a log book it is Windows-1252, one byte a character (`std::string`, `std::string_view`). UTF-8
// is met only at the edge of the program: file names, arguments and the terminal.
namespace korvande {

using Text = std::u16string;
using TextView = std::u16string_view;

// The character of each Windows-1252 byte. The five undefined bytes (81, 8D, 8F, 90, 9D hex) are themselves.
extern const std::array<char16_t, 256> windows1252Characters;

// The capital of each Windows-1252 byte: a-z, à-þ without ÷, š, œ, ž and ÿ (to Ÿ); ß and µ stay as they are.
extern const std::array<unsigned char, 256> windows1252Capitals;

// The byte of a character; "?" when Windows-1252 has none for it.
char ToWindows1252(char16_t character) noexcept;
std::string ToWindows1252(TextView text);
Text FromWindows1252(std::string_view bytes);

// UTF-8 in both directions. A byte that is not UTF-8 becomes the lone surrogate DC00 hex + byte and comes back as that
// byte, so that every file name survives.
std::string ToUtf8(TextView text);
Text FromUtf8(std::string_view utf8);
std::string Utf8ToWindows1252(std::string_view utf8);
std::string Windows1252ToUtf8(std::string_view bytes);

// The character that stands at a place in UTF-8, and how many bytes it takes: none when they are no UTF-8.
struct Utf8Character {
    std::uint32_t code;
    std::size_t length;
};
Utf8Character Utf8CharacterAt(std::string_view utf8, std::size_t at) noexcept;

char16_t ToCapital(char16_t character) noexcept;
inline char ToCapital(char byte) noexcept {
    return static_cast<char>(windows1252Capitals[static_cast<unsigned char>(byte)]);
}
Text ToCapitals(TextView text);
std::string ToCapitals(std::string_view bytes);

// The text without the blanks (spaces only) at its ends.
std::string_view Trim(std::string_view text) noexcept;
std::string_view TrimRight(std::string_view text) noexcept;
TextView Trim(TextView text) noexcept;
TextView TrimRight(TextView text) noexcept;

// A whole number, which a single character and a truth value are not.
template <class Number>
concept WholeNumberType = std::integral<Number> && !std::same_as<Number, bool> && !std::same_as<Number, char> &&
                          !std::same_as<Number, char16_t>;

// Appends to a text: another text, Windows-1252 bytes, or a whole number in plain decimal digits.
void AppendTo(Text& text, TextView part);
void AppendTo(Text& text, std::string_view windows1252);
void AppendTo(Text& text, WholeNumberType auto number) {
    for (const char digit : std::to_string(number)) text.push_back(static_cast<char16_t>(digit));
}

// The parts (as AppendTo takes them) one behind the other.
template <class... Parts>
Text Concat(const Parts&... parts) {
    Text text;
    (AppendTo(text, parts), ...);
    return text;
}

}  // namespace korvande
