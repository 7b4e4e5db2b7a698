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

// Whether the value of a fixed-width text is that of one never assigned; see FixedText.
bool IsNeverFilled(std::string_view value) noexcept { return value.starts_with('\0'); }

}  // namespace

IdexRow& IdexRow::PutWhole(std::int32_t number) noexcept {
    const std::int64_t value = number;
    const auto size = static_cast<std::uint64_t>(value < 0 ? -value : value);
    if (value < 0) *at++ = '-';
    at += DigitCount(size);
    WriteDigitsBackwards(at, size);
    return *this;
}

IdexRow& IdexRow::PutPrinted(std::int32_t number) noexcept {
    if (number >= 0) Put(" ");
    return PutWhole(number).Put(" ");
}

IdexRow& IdexRow::PutDecimal(double value, int decimals, std::size_t width) {
    // Most heights and directions are none.
    if (value == 0) {
        std::memcpy(at, "0.00000000000000", widest);
        std::memset(at + 2 + decimals, ' ', widest);
        at += width;
        return *this;
    }
    std::int64_t scaled = 0;
    if (ScaledDecimal(value, decimals, scaled)) {
        const auto length = static_cast<std::size_t>(DecimalLength(scaled, decimals));
        char* const end = at + length;
        WriteDecimalBackwards(end, scaled, decimals);
        if (length > width && LosesDigits({at, length}, width)) ++cut;
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

IdexRow& IdexRow::PutPointID(const PointRec& point) noexcept {
    char* const begins = at;
    at = QuotedPointID(point, at);
    bool isReplaced = false;
    for (char* byte = begins + 1; byte < at - 1; ++byte) {
        const char before = *byte;
        *byte = InsideQuotes(before);
        isReplaced = isReplaced || *byte != before;
    }
    if (isReplaced) ++replaced;
    if (IsNeverFilled(std::string_view(begins + 1, 1))) {
        at = begins + 1;
        *at++ = '"';
    }
    return *this;
}

IdexRow& IdexRow::PutFlags(std::int32_t flags) noexcept {
    at = WriteFlags(at, flags);
    return *this;
}

IdexRow& IdexRow::PutFixed(std::string_view text) noexcept {
    if (!IsNeverFilled(text)) return Put(text);
    std::memset(at, ' ', text.size());
    at += text.size();
    return *this;
}

IdexRow& IdexRow::PutQuoted(std::string_view value) noexcept {
    *at++ = '"';
    if (!IsNeverFilled(value)) {
        const char* const begins = at;
        for (const char byte : value) *at++ = InsideQuotes(byte);
        if (value != std::string_view(begins, value.size())) ++replaced;
    }
    *at++ = '"';
    return *this;
}

void IdexRow::End() noexcept {
    Put("\r\n");
    output.Advance(static_cast<std::size_t>(at - begin));
}

}  // namespace korvande
