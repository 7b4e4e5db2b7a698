#include "tests/reference/Texts.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <sstream>

#include "tests/reference/Values.h"

namespace korvande::reference {

namespace {

// The characters of the bytes 80 to 9F hex; the five without one keep their value.
constexpr unsigned specialCharacters[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                            0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char ByteOf(unsigned character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (unsigned i = 0; i < 32; ++i) {
        if (specialCharacters[i] == character) return static_cast<char>(0x80 + i);
    }
    return '?';
}

unsigned ByteAt(const std::string& text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// The length of the UTF-8 sequence at this place; 0 when there is none.
std::size_t SequenceLength(const std::string& text, std::size_t at) {
    const unsigned first = ByteAt(text, at);
    const unsigned second = ByteAt(text, at + 1);
    std::size_t length = 0;
    if (first < 0x80) length = 1;
    if (first >= 0xC2 && first <= 0xDF) length = 2;
    if (first >= 0xE0 && first <= 0xEF) length = 3;
    if (first >= 0xF0 && first <= 0xF4) length = 4;
    for (std::size_t i = 1; i < length; ++i) {
        if (ByteAt(text, at + i) < 0x80 || ByteAt(text, at + i) > 0xBF) return 0;
    }
    if (first == 0xE0 && second < 0xA0) return 0;
    if (first == 0xED && second > 0x9F) return 0;
    if (first == 0xF0 && second < 0x90) return 0;
    if (first == 0xF4 && second > 0x8F) return 0;
    return length;
}

std::string FromUtf8(const std::string& line) {
    std::string result;
    std::size_t at = 0;
    while (at < line.size()) {
        const std::size_t length = SequenceLength(line, at);
        if (length == 0) {
            result += '?';
            ++at;
            continue;
        }
        unsigned character = ByteAt(line, at);
        if (length > 1) character &= 0xFFU >> (length + 1);
        for (std::size_t i = 1; i < length; ++i) character = (character << 6U) | (ByteAt(line, at + i) & 0x3FU);
        result += ByteOf(character);
        at += length;
    }
    return result;
}

}  // namespace

std::vector<std::string> LinesOf(const std::string& file) {
    std::string rest = file;
    if (EndsWith(rest, "\x1A")) rest.pop_back();
    const bool isUtf8 = BeginsWith(rest, "\xEF\xBB\xBF");
    if (isUtf8) rest = rest.substr(3);
    std::vector<std::string> lines;
    std::string line;
    bool isOpen = false;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        isOpen = rest[i] != '\r' && rest[i] != '\n';
        if (isOpen) {
            line += rest[i];
            continue;
        }
        lines.push_back(line);
        line.clear();
        if (rest[i] == '\r' && i + 1 < rest.size() && rest[i + 1] == '\n') ++i;
    }
    if (isOpen) lines.push_back(line);
    if (isUtf8) {
        for (std::string& one : lines) one = FromUtf8(one);
    }
    return lines;
}

bool IsUtf16(const std::string& file) { return BeginsWith(file, "\xFF\xFE") || BeginsWith(file, "\xFE\xFF"); }

std::string Capitals(std::string text) {
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7)) {
            c = static_cast<char>(byte - 0x20);
        } else if (byte == 0x9A || byte == 0x9C || byte == 0x9E) {
            c = static_cast<char>(byte - 0x10);
        } else if (byte == 0xFF) {
            c = static_cast<char>(0x9F);
        }
    }
    return text;
}

std::string TrimmedLeft(const std::string& text, const std::string& blanks) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos ? "" : text.substr(first);
}

std::string TrimmedRight(const std::string& text, const std::string& blanks) {
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::string Trimmed(const std::string& text, const std::string& blanks) {
    return TrimmedLeft(TrimmedRight(text, blanks), blanks);
}

std::string Left(const std::string& text, std::size_t width) {
    return (text + std::string(width, ' ')).substr(0, width);
}

std::string Right(const std::string& text, std::size_t width) {
    const std::string filled = std::string(width, ' ') + text;
    return filled.substr(filled.size() - width);
}

std::string Columns(const std::string& line, std::size_t first, std::size_t last) {
    if (line.size() < first) return "";
    return line.substr(first - 1, last - first + 1);
}

bool BeginsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

double Finite(double number) {
    if (!std::isfinite(number)) throw Error("Overloop");
    return number;
}

namespace {

// What stands at a place and is left behind: a character of these, or none; digits, or none; an exponent, or none.
std::string TakeOneOf(const std::string& characters, const std::string& text, std::size_t& at) {
    if (at == text.size() || !Contains(characters, text.substr(at, 1))) return "";
    return text.substr(at++, 1);
}

std::string TakeDigits(const std::string& text, std::size_t& at) {
    const std::size_t from = at;
    while (!TakeOneOf("0123456789", text, at).empty()) continue;
    return text.substr(from, at - from);
}

std::string TakeExponent(const std::string& text, std::size_t at) {
    if (TakeOneOf("EDed", text, at).empty()) return "";
    const std::string sign = TakeOneOf("+-", text, at);
    const std::string digits = TakeDigits(text, at);
    return digits.empty() ? "" : "e" + sign + digits;
}

}  // namespace

double LeadingNumber(const std::string& text) {
    std::size_t at = 0;
    while (!TakeOneOf(" \t", text, at).empty()) continue;
    const std::string sign = TakeOneOf("+-", text, at);
    const std::string whole = TakeDigits(text, at);
    const std::string point = TakeOneOf(".", text, at);
    const std::string behind = TakeDigits(text, at);
    if (whole.empty() && behind.empty()) return 0;
    std::istringstream number(sign + whole + point + behind + TakeExponent(text, at));
    number.imbue(std::locale::classic());
    double value = 0;
    number >> value;
    if (number.fail()) throw Error("Overloop");
    return value == 0 ? 0 : value;
}

std::int32_t Rounded(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw Error("Overloop");
    return static_cast<std::int32_t>(rounded);
}

std::int32_t WholeNumber(const std::string& text) { return Rounded(LeadingNumber(text)); }

std::string Written(double number, int decimals) {
    Finite(number);
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.14e", std::fabs(number));  // D.DDDDDDDDDDDDDDe±XX
    std::string significant = digits[0] + std::string(digits + 2, 14);
    const int exponent = std::atoi(digits + 17);
    // As a whole number of the last decimal that is written, and one digit behind it.
    const int wanted = exponent + 1 + decimals;  // of the significant ones
    std::string kept = wanted > 0 ? significant.substr(0, static_cast<std::size_t>(wanted)) : "";
    const bool goesUp = wanted >= 0 && wanted < 15 && significant[static_cast<std::size_t>(wanted)] >= '5';
    if (wanted > 15) kept += std::string(static_cast<std::size_t>(wanted - 15), '0');
    if (goesUp) {
        std::size_t at = kept.size();
        while (at > 0 && kept[at - 1] == '9') kept[--at] = '0';
        if (at > 0) {
            ++kept[at - 1];
        } else {
            kept = "1" + kept;
        }
    }
    const auto behind = static_cast<std::size_t>(decimals);
    if (kept.size() <= behind) kept = std::string(behind + 1 - kept.size(), '0') + kept;
    const bool isZero = kept.find_first_not_of('0') == std::string::npos;
    std::string written = kept.substr(0, kept.size() - behind);
    if (decimals > 0) written += "." + kept.substr(kept.size() - behind);
    return (number < 0 && !isZero ? "-" : "") + written;
}

}  // namespace korvande::reference
