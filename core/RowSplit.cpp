#include "core/RowSplit.h"

#include <algorithm>
#include <bit>
#include <cstring>
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

// Marks up to 64 bytes.
class Marker {
 public:
    Marker(char separator, char terminator) noexcept
        : separators(_mm_set1_epi8(separator)),
          terminators(_mm_set1_epi8(terminator)),
          quotes(_mm_set1_epi8(quote)),
          backslashes(_mm_set1_epi8(backslash)) {}

    // The bytes of a row from a place on, of which the first stands in the lowest bit.
    std::uint64_t From(std::string_view row, std::size_t place) noexcept {
        std::uint64_t bits = 0;
        std::size_t shift = 0;
        for (; shift < 64 && place + shift + atOnce <= row.size(); shift += atOnce) {
            bits |= Sixteen(row.data() + place + shift) << shift;
        }
        if (shift == 64 || place + shift == row.size()) return bits;
        // The last ones together with some before them, for no byte behind the row may be read.
        const std::size_t begin = row.size() - atOnce;
        const std::uint64_t last = Sixteen(row.data() + begin);
        return bits | (begin >= place ? last << (begin - place) : last >> (place - begin));
    }

    bool HasMetBackslash() const noexcept { return _mm_movemask_epi8(met) != 0; }

 private:
    std::uint64_t Sixteen(const char* at) noexcept {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        met = _mm_or_si128(met, _mm_cmpeq_epi8(bytes, backslashes));
        const __m128i marked =
            _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, separators), _mm_cmpeq_epi8(bytes, terminators)),
                         _mm_cmpeq_epi8(bytes, quotes));
        return static_cast<unsigned>(_mm_movemask_epi8(marked));
    }

    __m128i separators;
    __m128i terminators;
    __m128i quotes;
    __m128i backslashes;
    __m128i met = _mm_setzero_si128();
};

#endif

// Where a field ends that goes up to a place, without the blanks before that.
std::size_t BeforeBlanks(std::string_view row, std::size_t begin, std::size_t end) noexcept {
    // Numbers are often padded with many.
    constexpr std::string_view eightBlanks = "        ";
    if (end - begin >= 8 && std::memcmp(row.data() + end - 8, eightBlanks.data(), 8) == 0) end -= 8;
    while (end > begin && IsBlank(row[end - 1])) --end;
    return end;
}

std::size_t BehindBlanks(std::string_view row, std::size_t place) noexcept {
    while (place < row.size() && IsBlank(row[place])) ++place;
    return place;
}

// Goes from mark to mark of a row without blanks at its ends and finds the fields between them. False when a quote is
// not closed, for which the rules are others.
bool SplitAtMarks(std::string_view row, const RowMarks& marks, char separator, char terminator,
                  std::span<std::string_view> fields, RowEnd& end) noexcept {
    constexpr std::size_t none = std::string_view::npos;
    std::size_t count = 0;
    std::size_t begin = 0;           // of the field, behind its blanks
    bool isQuoted = false;           // between the quotes of the field
    std::size_t secondOfTwo = none;  // of two quotes that stand for one
    std::size_t behind = row.size();
    end.hasBackslash = marks.hasBackslash;
    for (std::size_t word = 0; 64 * word < row.size() && end.terminator == none; ++word) {
        for (std::uint64_t bits = marks.words[word]; bits != 0; bits &= bits - 1) {
            const std::size_t place = 64 * word + static_cast<std::size_t>(std::countr_zero(bits));
            const char byte = row[place];
            if (byte == separator) {
                if (isQuoted) continue;
                fields[count++] = {row.data() + begin, BeforeBlanks(row, begin, place) - begin};
                begin = BehindBlanks(row, place + 1);
                if (count < fields.size()) continue;
                end.count = count;
                end.terminator = row.find(terminator, place);
                return true;
            }
            if (byte == terminator) {
                behind = end.terminator = place;
                break;
            }
            if (!isQuoted) {
                isQuoted = place == begin;
            } else if (place != secondOfTwo) {
                const bool isDoubled = place + 1 < row.size() && row[place + 1] == quote;
                if (isDoubled) {
                    secondOfTwo = place + 1;
                } else {
                    isQuoted = false;
                }
            }
        }
    }
    if (isQuoted) return false;
    const std::size_t last = BeforeBlanks(row, begin, behind);
    if (last > begin || count > 0) fields[count++] = {row.data() + begin, last - begin};
    end.count = count;
    return true;
}

}  // namespace

void MarkRowPlainly(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept {
    for (std::size_t place = 0; place < row.size(); ++place) {
        const char byte = row[place];
        const bool isMarked = byte == separator || byte == terminator || byte == quote;
        marks.words[place / 64] |= std::uint64_t{isMarked} << (place % 64);
        if (byte == backslash) marks.hasBackslash = true;
    }
}

void MarkRow(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept {
#ifdef KORVANDE_HAS_SSE2
    if (row.size() >= atOnce) {
        Marker marker(separator, terminator);
        for (std::size_t word = 0; 64 * word < row.size(); ++word) marks.words[word] = marker.From(row, 64 * word);
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
        if (SplitAtMarks(trimmed, marks, separator, terminator, fields, end)) {
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
