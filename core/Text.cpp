#include "core/Text.h"

#include <cstring>

namespace korvande {

namespace {

// Bytes 80 to 9F hex.
constexpr std::array<char16_t, 32> upperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> MakeCharacters() {
    std::array<char16_t, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        table[byte] = byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80] : static_cast<char16_t>(byte);
    }
    return table;
}

constexpr std::array<unsigned char, 256> MakeCapitals() {
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const bool latinLetter = (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
        table[byte] = static_cast<unsigned char>(latinLetter ? byte - 0x20 : byte);
    }
    table[0x9A] = 0x8A;  // š
    table[0x9C] = 0x8C;  // œ
    table[0x9E] = 0x8E;  // ž
    table[0xFF] = 0x9F;  // ÿ
    return table;
}

constexpr char16_t replacement = 0xFFFD;
constexpr char16_t escapedByte = 0xDC00;

bool IsHighSurrogate(char16_t c) { return c >= 0xD800 && c < 0xDC00; }
bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c < 0xE000; }
bool IsEscapedByte(char16_t c) { return c >= escapedByte + 0x80 && c <= escapedByte + 0xFF; }

void AppendUtf8(std::string& out, std::uint32_t code) {
    const auto put = [&out](std::uint32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

template <class View>
View TrimBlanks(View text, bool left) noexcept {
    using Character = typename View::value_type;
    // Most fixed-width texts end in many blanks; they go by so many at a time.
    constexpr std::array<Character, 16 / sizeof(Character)> blanks = [] {
        std::array<Character, 16 / sizeof(Character)> some{};
        some.fill(' ');
        return some;
    }();
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (end >= blanks.size() && std::memcmp(&text[end - blanks.size()], blanks.data(), sizeof(blanks)) == 0) {
        end -= blanks.size();
    }
    while (end > 0 && text[end - 1] == ' ') --end;
    if (left) {
        while (begin < end && text[begin] == ' ') ++begin;
    }
    return text.substr(begin, end - begin);
}

}  // namespace

const std::array<char16_t, 256> windows1252Characters = MakeCharacters();
const std::array<unsigned char, 256> windows1252Capitals = MakeCapitals();

char ToWindows1252(char16_t character) noexcept {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (unsigned i = 0; i < upperControls.size(); ++i) {
        if (upperControls[i] == character) return static_cast<char>(0x80 + i);
    }
    return '?';
}

std::string ToWindows1252(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        // A pair of surrogates is one character, so one "?".
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) ++i;
        bytes.push_back(ToWindows1252(text[i]));
    }
    return bytes;
}

Text FromWindows1252(std::string_view bytes) {
    Text text;
    AppendTo(text, bytes);
    return text;
}

std::string ToUtf8(TextView text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            const std::uint32_t low = text[++i];
            AppendUtf8(out, 0x10000 + ((static_cast<std::uint32_t>(c) - 0xD800) << 10) + (low - 0xDC00));
        } else if (IsEscapedByte(c)) {
            out.push_back(static_cast<char>(c - escapedByte));
        } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
            AppendUtf8(out, replacement);
        } else {
            AppendUtf8(out, c);
        }
    }
    return out;
}

Utf8Character Utf8CharacterAt(std::string_view utf8, std::size_t at) noexcept {
    const auto first = static_cast<unsigned char>(utf8[at]);
    if (first < 0x80) return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || at + length > utf8.size()) return {0, 0};
    std::uint32_t code = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[at + i]);
        if ((next & 0xC0U) != 0x80U) return {0, 0};
        code = (code << 6) | (next & 0x3FU);
    }
    constexpr std::array<std::uint32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool valid = code >= smallest[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    return valid ? Utf8Character{code, length} : Utf8Character{0, 0};
}

Text FromUtf8(std::string_view utf8) {
    Text text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const Utf8Character decoded = Utf8CharacterAt(utf8, at);
        if (decoded.length == 0) {
            text.push_back(static_cast<char16_t>(escapedByte + static_cast<unsigned char>(utf8[at])));
            ++at;
            continue;
        }
        if (decoded.code < 0x10000) {
            text.push_back(static_cast<char16_t>(decoded.code));
        } else {
            text.push_back(static_cast<char16_t>(0xD800 + ((decoded.code - 0x10000) >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + ((decoded.code - 0x10000) & 0x3FF)));
        }
        at += decoded.length;
    }
    return text;
}

std::string Utf8ToWindows1252(std::string_view utf8) { return ToWindows1252(FromUtf8(utf8)); }

std::string Windows1252ToUtf8(std::string_view bytes) { return ToUtf8(FromWindows1252(bytes)); }

char16_t ToCapital(char16_t character) noexcept {
    if (character < 0x80) {
        return character >= u'a' && character <= u'z' ? static_cast<char16_t>(character - 0x20) : character;
    }
    const char byte = ToWindows1252(character);
    if (byte == '?') return character;
    return windows1252Characters[windows1252Capitals[static_cast<unsigned char>(byte)]];
}

Text ToCapitals(TextView text) {
    Text capitals(text);
    for (char16_t& character : capitals) character = ToCapital(character);
    return capitals;
}

std::string ToCapitals(std::string_view bytes) {
    std::string capitals(bytes);
    for (char& byte : capitals) byte = ToCapital(byte);
    return capitals;
}

std::string_view Trim(std::string_view text) noexcept { return TrimBlanks(text, true); }
std::string_view TrimRight(std::string_view text) noexcept { return TrimBlanks(text, false); }
TextView Trim(TextView text) noexcept { return TrimBlanks(text, true); }
TextView TrimRight(TextView text) noexcept { return TrimBlanks(text, false); }

void AppendTo(Text& text, TextView part) { text.append(part); }

void AppendTo(Text& text, std::string_view windows1252) {
    const std::size_t size = text.size();
    text.resize(size + windows1252.size());
    for (std::size_t i = 0; i < windows1252.size(); ++i) {
        text[size + i] = windows1252Characters[static_cast<unsigned char>(windows1252[i])];
    }
}

}  // namespace korvande
