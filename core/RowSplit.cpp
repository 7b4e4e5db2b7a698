#include "core/RowSplit.h"

#include <bit>

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

// Sixteen bytes of a row from a place on.
void MarkSixteen(std::string_view row, std::size_t place, char separator, char terminator, RowMarks& marks) noexcept {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(row.data() + place));
    const auto are = [bytes](char byte) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(byte)); };
    const __m128i marked = _mm_or_si128(_mm_or_si128(are(separator), are(terminator)), are(quote));
    const std::uint64_t bits = static_cast<unsigned>(_mm_movemask_epi8(marked));
    const std::size_t shift = place % 64;
    marks.words[place / 64] |= bits << shift;
    if (shift > 64 - atOnce) marks.words[place / 64 + 1] |= bits >> (64 - shift);
    if (_mm_movemask_epi8(are(backslash)) != 0) marks.hasBackslash = true;
}

#endif

// A field from its first character to a place, without the blanks before that.
std::string_view FieldBetween(std::string_view row, std::size_t begin, std::size_t end) noexcept {
    while (end > begin && IsBlank(row[end - 1])) --end;
    return row.substr(begin, end - begin);
}

std::size_t BehindBlanks(std::string_view row, std::size_t place) noexcept {
    while (place < row.size() && IsBlank(row[place])) ++place;
    return place;
}

// Goes from mark to mark and finds fields between them.
class MarkedRow {
 public:
    MarkedRow(std::string_view itsRow, char itsSeparator, char itsTerminator, std::vector<std::string_view>& itsFields,
              std::size_t itsMaximum)
        : row(itsRow), separator(itsSeparator), terminator(itsTerminator), fields(itsFields), maximum(itsMaximum) {}

    // The end of the row; false when a quote is not closed, for which the rules are others.
    bool Split(RowEnd& end) {
        RowMarks marks;
        MarkRow(row, separator, terminator, marks);
        end.hasBackslash = marks.hasBackslash;
        for (std::size_t word = 0; 64 * word < row.size(); ++word) {
            for (std::uint64_t bits = marks.words[word]; bits != 0; bits &= bits - 1) {
                const std::size_t place = 64 * word + static_cast<std::size_t>(std::countr_zero(bits));
                const char byte = row[place];
                if (byte == terminator) {
                    end.terminator = place;
                    return TakeLast(place);
                }
                if (byte == quote) {
                    TakeQuote(place);
                } else if (!isQuoted && !TakeField(place)) {
                    end.terminator = row.find(terminator, place);
                    return true;
                }
            }
        }
        return TakeLast(row.size());
    }

 private:
    void TakeQuote(std::size_t place) noexcept {
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

    // False when that was the last one wanted.
    bool TakeField(std::size_t end) {
        fields.push_back(FieldBetween(row, begin, end));
        begin = BehindBlanks(row, end + 1);
        return fields.size() < maximum;
    }

    bool TakeLast(std::size_t end) {
        if (isQuoted) return false;
        const std::string_view field = FieldBetween(row, begin, end);
        if (!field.empty() || !fields.empty()) fields.push_back(field);
        return true;
    }

    std::string_view row;
    char separator;
    char terminator;
    std::vector<std::string_view>& fields;
    std::size_t maximum;
    std::size_t begin = 0;  // of the field, behind its blanks
    bool isQuoted = false;  // between the quotes of the field
    std::size_t secondOfTwo = std::string_view::npos;
};

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
        for (std::size_t place = 0; place + atOnce <= row.size(); place += atOnce) {
            MarkSixteen(row, place, separator, terminator, marks);
        }
        // The last ones once more, for no byte behind the row may be read.
        return MarkSixteen(row, row.size() - atOnce, separator, terminator, marks);
    }
#endif
    MarkRowPlainly(row, separator, terminator, marks);
}

RowEnd SplitRow(std::string_view row, char separator, char terminator, std::vector<std::string_view>& fields,
                std::size_t maximum) {
    const std::string_view trimmed = TrimAs(Blanks::SpacesAndTabs, row);
    RowEnd end;
    if (trimmed.size() <= RowMarks::most && AreOrdinary(separator, terminator)) {
        fields.clear();
        if (MarkedRow(trimmed, separator, terminator, fields, maximum).Split(end)) {
            if (end.terminator != std::string_view::npos) {
                end.terminator += static_cast<std::size_t>(trimmed.data() - row.data());
            }
            return end;
        }
    }
    end.hasBackslash = row.find(backslash) != std::string_view::npos;
    end.terminator = ParseFields(row, separator, terminator, Blanks::SpacesAndTabs, fields, maximum);
    return end;
}

}  // namespace korvande
