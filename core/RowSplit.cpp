#include "core/RowSplit.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "core/modParser.h"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define KORVANDE_HAS_SSE2
#endif

namespace korvande {

namespace {

constexpr char quote = '"';
constexpr char backslash = '\\';

bool IsBlank(char byte) noexcept { return byte == ' ' || byte == '\t'; }

// Whether separator and terminator mean nothing else.
bool AreOrdinary(char separator, char terminator) noexcept {
    const auto isOther = [](char byte) { return byte != quote && !IsBlank(byte); };
    return separator != terminator && isOther(separator) && isOther(terminator);
}

#ifdef KORVANDE_HAS_SSE2

constexpr std::size_t atOnce = 16;

// Marks a row of sixteen bytes or more, 64 of them at a time.
class Marker {
 public:
    Marker(char separator, char terminator) noexcept
        : separators(_mm_set1_epi8(separator)), terminators(_mm_set1_epi8(terminator)) {}

    // The bytes of the row from a place on, of which the first has the lowest bit.
    void Mark(std::string_view row, std::size_t place, std::uint64_t& special, std::uint64_t& written) noexcept {
        std::size_t shift = 0;
        for (; shift < 64 && place + shift + atOnce <= row.size(); shift += atOnce) {
            const Sixteen bits = Look(row.data() + place + shift);
            special |= bits.special << shift;
            written |= bits.written << shift;
        }
        if (shift == 64 || place + shift == row.size()) return;
        // The last ones together with some before them, for no byte behind the row may be read.
        const std::size_t begin = row.size() - atOnce;
        const Sixteen bits = Look(row.data() + begin);
        special |= begin >= place ? bits.special << (begin - place) : bits.special >> (place - begin);
        written |= begin >= place ? bits.written << (begin - place) : bits.written >> (place - begin);
    }

    bool HasMetBackslash() const noexcept { return _mm_movemask_epi8(met) != 0; }

 private:
    struct Sixteen {
        std::uint64_t special;
        std::uint64_t written;
    };

    Sixteen Look(const char* at) noexcept {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const auto are = [bytes](char byte) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(byte)); };
        const auto bits = [](__m128i marks) { return static_cast<unsigned>(_mm_movemask_epi8(marks)); };
        met = _mm_or_si128(met, are(backslash));
        const __m128i ends = _mm_or_si128(_mm_cmpeq_epi8(bytes, separators), _mm_cmpeq_epi8(bytes, terminators));
        return {bits(_mm_or_si128(ends, are(quote))), bits(_mm_or_si128(are(' '), are('\t'))) ^ 0xFFFF};
    }

    __m128i separators;
    __m128i terminators;
    __m128i met = _mm_setzero_si128();
};

#endif

// The place of the first byte from a place on that is no blank; the row's end when there is none.
std::size_t BehindBlanks(const RowMarks& marks, std::size_t place, std::size_t rowEnd) noexcept {
    for (std::size_t word = place / 64; 64 * word < rowEnd; ++word) {
        const std::uint64_t from = word == place / 64 ? ~std::uint64_t{0} << (place % 64) : ~std::uint64_t{0};
        const std::uint64_t bits = marks.written[word] & from;
        if (bits != 0) return 64 * word + static_cast<std::size_t>(std::countr_zero(bits));
    }
    return rowEnd;
}

// The place behind the last byte before a place that is no blank; a field's beginning when there is none.
std::size_t BeforeBlanks(const RowMarks& marks, std::size_t begin, std::size_t place) noexcept {
    std::size_t end = place;
    while (end > begin) {
        const std::size_t word = (end - 1) / 64;
        const std::uint64_t bits = marks.written[word] & (~std::uint64_t{0} >> (63 - (end - 1) % 64));
        if (bits != 0) return std::max(begin, 64 * word + static_cast<std::size_t>(std::bit_width(bits)));
        end = 64 * word;
    }
    return begin;
}

// The quotes of a field, met in their order: whether what follows stands between them.
class FieldQuotes {
 public:
    bool AreOpen() const noexcept { return isOpen; }

    void Take(std::string_view row, std::size_t fieldBegin, std::size_t place) noexcept {
        if (!isOpen) {
            isOpen = place == fieldBegin;
        } else if (place != secondOfTwo) {
            const bool isDoubled = place + 1 < row.size() && row[place + 1] == quote;
            if (isDoubled) secondOfTwo = place + 1;
            isOpen = isDoubled;
        }
    }

 private:
    bool isOpen = false;
    std::size_t secondOfTwo = std::string_view::npos;  // of two that stand for one
};

// Goes from mark to mark of a row without blanks at its ends and finds the fields between them. False when a quote is
// not closed, for which the rules are others.
bool SplitAtMarks(std::string_view row, const RowMarks& marks, char terminator, std::span<std::string_view> fields,
                  RowEnd& end) noexcept {
    FieldQuotes quotes;
    std::size_t count = 0;
    std::size_t begin = 0;  // of the field, behind its blanks
    std::size_t place = 0;
    const auto field = [&] { return std::string_view(row.data() + begin, BeforeBlanks(marks, begin, place) - begin); };
    for (std::size_t word = 0; 64 * word < row.size(); ++word) {
        for (std::uint64_t bits = marks.special[word]; bits != 0; bits &= bits - 1) {
            place = 64 * word + static_cast<std::size_t>(std::countr_zero(bits));
            const char byte = row[place];
            if (byte == quote) {
                quotes.Take(row, begin, place);
            } else if (byte == terminator) {
                end.terminator = place;
                break;
            } else if (!quotes.AreOpen()) {
                fields[count++] = field();
                begin = BehindBlanks(marks, place + 1, row.size());
                if (count == fields.size()) end.terminator = row.find(terminator, place);
                if (count == fields.size()) break;
            }
        }
        if (end.terminator != std::string_view::npos || count == fields.size()) break;
    }
    if (quotes.AreOpen()) return false;
    place = std::min(end.terminator, row.size());
    if (count < fields.size() && (count > 0 || place > begin)) fields[count++] = field();
    end.count = count;
    return true;
}

}  // namespace

void MarkRowPlainly(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept {
    for (std::size_t place = 0; place < row.size(); ++place) {
        const char byte = row[place];
        const std::uint64_t bit = std::uint64_t{1} << (place % 64);
        if (byte == separator || byte == terminator || byte == quote) marks.special[place / 64] |= bit;
        if (!IsBlank(byte)) marks.written[place / 64] |= bit;
        if (byte == backslash) marks.hasBackslash = true;
    }
}

void MarkRow(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept {
#ifdef KORVANDE_HAS_SSE2
    if (row.size() >= atOnce) {
        Marker marker(separator, terminator);
        for (std::size_t word = 0; 64 * word < row.size(); ++word) {
            marker.Mark(row, 64 * word, marks.special[word], marks.written[word]);
        }
        marks.hasBackslash = marker.HasMetBackslash();
        return;
    }
#endif
    MarkRowPlainly(row, separator, terminator, marks);
}

RowEnd SplitRow(std::string_view row, char separator, char terminator, std::span<std::string_view> fields) {
    const std::string_view trimmed = TrimAs(Blanks::SpacesAndTabs, row);
    RowEnd end;
    if (trimmed.size() <= RowMarks::most && AreOrdinary(separator, terminator)) {
        RowMarks marks;
        MarkRow(trimmed, separator, terminator, marks);
        end.hasBackslash = marks.hasBackslash;
        if (SplitAtMarks(trimmed, marks, terminator, fields, end)) {
            if (end.terminator != std::string_view::npos) {
                end.terminator += static_cast<std::size_t>(trimmed.data() - row.data());
            }
            return end;
        }
    }
    std::vector<std::string_view> parsed;
    end.hasBackslash = row.find(backslash) != std::string_view::npos;
    end.terminator = ParseFields(row, separator, terminator, Blanks::SpacesAndTabs, parsed, fields.size());
    end.count = parsed.size();
    std::copy(parsed.begin(), parsed.end(), fields.begin());
    return end;
}

}  // namespace korvande
