#include "core/CharacterSet.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/Text.h"

namespace korvande {

namespace {

// The bytes 80 to FF hex of code page 850, in Windows-1252; "?" (3F hex) where it has no such character.
constexpr std::array<unsigned char, 128> cp850Bytes = {
    0xC7, 0xFC, 0xE9, 0xE2, 0xE4, 0xE0, 0xE5, 0xE7, 0xEA, 0xEB, 0xE8, 0xEF, 0xEE, 0xEC, 0xC4, 0xC5, 0xC9, 0xE6, 0xC6,
    0xF4, 0xF6, 0xF2, 0xFB, 0xF9, 0xFF, 0xD6, 0xDC, 0xF8, 0xA3, 0xD8, 0xD7, 0x83, 0xE1, 0xED, 0xF3, 0xFA, 0xF1, 0xD1,
    0xAA, 0xBA, 0xBF, 0xAE, 0xAC, 0xBD, 0xBC, 0xA1, 0xAB, 0xBB, 0x3F, 0x3F, 0x3F, 0x3F, 0x3F, 0xC1, 0xC2, 0xC0, 0xA9,
    0x3F, 0x3F, 0x3F, 0x3F, 0xA2, 0xA5, 0x3F, 0x3F, 0x3F, 0x3F, 0x3F, 0x3F, 0x3F, 0xE3, 0xC3, 0x3F, 0x3F, 0x3F, 0x3F,
    0x3F, 0x3F, 0x3F, 0xA4, 0xF0, 0xD0, 0xCA, 0xCB, 0xC8, 0x3F, 0xCD, 0xCE, 0xCF, 0x3F, 0x3F, 0x3F, 0x3F, 0xA6, 0xCC,
    0x3F, 0xD3, 0xDF, 0xD4, 0xD2, 0xF5, 0xD5, 0xB5, 0xFE, 0xDE, 0xDA, 0xDB, 0xD9, 0xFD, 0xDD, 0xAF, 0xB4, 0xAD, 0xB1,
    0x3F, 0xBE, 0xB6, 0xA7, 0xF7, 0xB8, 0xB0, 0xA8, 0xB7, 0xB9, 0xB3, 0xB2, 0x3F, 0xA0,
};

bool IsHigh(char byte) noexcept { return static_cast<unsigned char>(byte) >= 0x80; }

// Of nearly every line that is not UTF-8 its first high byte tells so already: another one must go on with it.
bool BeginsWithoutUtf8(std::string_view line) noexcept {
    const auto first = std::find_if(line.begin(), line.end(), IsHigh);
    return first != line.end() && (first + 1 == line.end() || !IsHigh(first[1]));
}

}  // namespace

bool HasHighByte(std::string_view bytes) noexcept {
    constexpr std::ptrdiff_t block = 64;
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    for (; end - at >= block; at += block) {
        // All of them together, so that the compiler can take many at a time.
        unsigned char together = 0;
        for (std::ptrdiff_t i = 0; i < block; ++i) together |= static_cast<unsigned char>(at[i]);
        if (together >= 0x80) return true;
    }
    return std::any_of(at, end, IsHigh);
}

bool Utf8LineToWindows1252(std::string_view line, Columns columns, std::string& converted) {
    converted.clear();
    if (BeginsWithoutUtf8(line)) return false;
    for (std::size_t at = 0; at < line.size();) {
        const auto place = line.begin() + static_cast<std::ptrdiff_t>(at);
        const auto plain = static_cast<std::size_t>(std::find_if(place, line.end(), IsHigh) - place);
        converted.append(line, at, plain);
        at += plain;
        if (at == line.size()) break;
        const Utf8Character character = Utf8CharacterAt(line, at);
        if (character.length == 0) return false;
        converted.push_back(character.code < 0x10000 ? ToWindows1252(static_cast<char16_t>(character.code)) : '?');
        if (columns == Columns::Kept) converted.append(character.length - 1, ' ');
        at += character.length;
    }
    return true;
}

std::string Cp850ToWindows1252(std::string_view bytes) {
    std::string converted(bytes);
    for (char& character : converted) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x80) character = static_cast<char>(cp850Bytes[byte - 0x80]);
    }
    return converted;
}

}  // namespace korvande
