#include "idex/IdexRow.h"

#include <array>
#include <cstring>

#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "core/modStrings.h"

namespace korvande {

namespace {

constexpr char InsideQuotes(char byte) noexcept { return byte == '"' ? '\'' : byte == ';' ? ',' : byte; }

// Whether a number in decimals loses more than zeroes behind its point when it is cut to a width.
bool LosesDigits(std::string_view number, std::size_t width) noexcept {
    if (number.size() <= width) return false;
    return number.find('.') > width || number.find_first_not_of(".0", width) != std::string_view::npos;
}

// Whether the value of a fixed-width text is that of one never assigned; see FixedText. One of a file may begin with a
// character 0 too.
bool IsNeverFilled(std::string_view value) noexcept {
    return value.starts_with('\0') && value.find_first_not_of('\0') == std::string_view::npos;
}

}  // namespace

IdexRow& IdexRow::PutPrinted(std::int32_t number) noexcept {
    if (number >= 0) Put(" ");
    return PutWhole(number).Put(" ");
}

IdexRow& IdexRow::PutDecimal(double value, int decimals, std::size_t width) {
    constexpr std::array<double, 5> powersOfTen = {1, 1e1, 1e2, 1e3, 1e4};
    // Most heights and directions are none.
    if (value == 0) {
        std::memcpy(at, "0.00000000000000", widest);
        std::memset(at + 2 + decimals, ' ', widest);
        at += width;
        return *this;
    }
    std::int64_t scaled = 0;
    if (NearestWhole(value * powersOfTen[static_cast<std::size_t>(decimals)], scaled) ||
        ScaledDecimal(value, decimals, scaled)) {
        char* const end = WriteScaled(at, scaled, decimals);
        const auto length = static_cast<std::size_t>(end - at);
        if (LosesDigits({at, length}, width)) ++cut;
        // More blanks than are needed, and a number that is too long, are written over by what comes behind.
        std::memset(end, ' ', widest);
        at += width;
        return *this;
    }
    std::string number;
    AppendDecimal(number, value, 1, decimals);
    if (LosesDigits(number, width)) ++cut;
    number.resize(width, ' ');
    return Put(number);
}

IdexRow& IdexRow::PutFlags(std::int32_t flags) noexcept {
    if (flags == 0) return Put("00000000 00000000");
    at = WriteFlags(at, flags);
    return *this;
}

IdexRow& IdexRow::PutFixed(std::string_view text) noexcept {
    if (!IsNeverFilled(text)) return Put(text);
    std::memset(at, ' ', text.size());
    at += text.size();
    return *this;
}

char* WriteQuoted(char* at, std::string_view value, int& replaced) noexcept {
    *at++ = '"';
    if (!IsNeverFilled(value)) {
        unsigned difference = 0;  // between the bytes that are put and those of the value
        for (const char byte : value) {
            const char put = InsideQuotes(byte);
            difference |= static_cast<unsigned char>(put ^ byte);
            *at++ = put;
        }
        if (difference != 0) ++replaced;
    }
    *at++ = '"';
    return at;
}

}  // namespace korvande
