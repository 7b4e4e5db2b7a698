#include "nensuf/RecordLayout.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>

#include "core/Clock.h"
#include "core/FixedText.h"
#include "core/LineWriter.h"
#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "core/modStrings.h"
#include "project/Options.h"
#include "project/OwnerRecord.h"
#include "translation/LogBook.h"

namespace korvande {

namespace {

constexpr std::size_t typeWidth = 2;
constexpr std::size_t dataWidth = 60;  // columns 3-62
constexpr std::size_t lineWidth = 64;
constexpr std::size_t lengthWidth = 9;

// The writer compares with 65, not with 62: what has up to three characters too many is cut rather than continued.
constexpr std::size_t longestInOneLine = 65;

char LastDigit(int number) noexcept { return static_cast<char>('0' + std::abs(number % 10)); }

// One physical line: record type, data padded or cut to its columns, and the end code "0" with this digit.
void WritePhysicalLine(LineWriter& output, std::string_view type, std::string_view data, char endDigit) {
    char* const line = output.Reserve(lineWidth + 2);
    const std::size_t length = std::min(data.size(), dataWidth);
    std::memcpy(line, type.data(), typeWidth);
    std::memcpy(line + typeWidth, data.data(), length);
    std::memset(line + typeWidth + length, ' ', dataWidth - length);
    line[62] = '0';
    line[63] = endDigit;
    line[64] = '\r';
    line[65] = '\n';
    output.Advance(lineWidth + 2);
}

// The rightmost nine characters of a number, on the right of its columns.
void AlignRight(char* columns, std::string_view number) noexcept {
    const std::size_t length = std::min(number.size(), lengthWidth);
    std::memset(columns, ' ', lengthWidth - length);
    std::memcpy(columns + lengthWidth - length, number.data() + number.size() - length, length);
}

}  // namespace

void RecordText::Append(TextView part) {
    char* place = Room(part.size());
    for (const char16_t character : part) *place++ = ToWindows1252(character);
}

void RecordText::PutMillimetres(char letter, double metres) {
    const double millimetres = metres * 1000;
    char* const field = Room(1 + lengthWidth);
    *field = letter;
    std::int64_t whole = 0;
    if (ScaledDecimal(millimetres, 0, whole)) {
        std::array<char, 24> digits{};
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), whole).ptr;
        AlignRight(field + 1, {digits.data(), end});
    } else {
        AlignRight(field + 1, FormatPicture(millimetres, "########0"));
    }
}

void WriteRecord(LineWriter& output, Variant variant, RecordText& record, std::string_view tail, int closingFlag) {
    if (record.IsEmpty()) return;
    record.Put(tail);
    const std::string_view bytes = record.View();
    if (bytes.size() <= typeWidth) return;
    const std::string_view type = bytes.substr(0, typeWidth);
    std::string_view data = bytes.substr(typeWidth);
    while (typeWidth + data.size() > longestInOneLine) {
        WritePhysicalLine(output, type, data, '0');
        data.remove_prefix(dataWidth);
    }
    WritePhysicalLine(output, type, data, variant == Variant::Nen1878 ? LastDigit(closingFlag) : '1');
}

void WriteClosingRecord(LineWriter& output) { output.PutLine(PadRight("99", lineWidth)); }

RecordText FormatCoordinates(const Options& options, const PointRec& point) {
    RecordText fields;
    const auto& name = point.PointID();
    if (options.chkExportPointnoAsField && !name.IsBlank()) fields.Put("N", name.View());
    fields.PutMillimetres('X', point.East);
    fields.PutMillimetres('Y', point.North);
    if (options.chkExport3D && point.Elevation != 0) fields.PutMillimetres('Z', point.Elevation);
    return fields;
}

std::string FormatQuality(Variant variant, int p, int i, int b) {
    std::string field = variant == Variant::Nen1878 ? "Q  P  I  B" : "K  P  I  B";
    field[3] = LastDigit(p);
    field[6] = LastDigit(i);
    field[9] = LastDigit(b);
    return field;
}

std::string FormatFieldworkDate(const Drawing& drawing, LogBook& log) {
    const std::string date = ToWindows1252(drawing.DrawingDate);
    if (Trim(date).empty()) return {};
    const auto day = ParseFieldworkDate(date);
    if (!day) {
        log.WriteLine(u"Tekening bevat ongeldige veldwerkdatum, wordt weggelaten...");
        return {};
    }
    return std::string("D ").append(CompactDate(*day));
}

std::string FormatSourceBlock(const OwnerRec& owner) {
    if (owner.Source.IsBlank()) return PadRight({}, 10);
    RecordText block;
    block.Put("B", MakeFixedText<5>(owner.Source.Trimmed()).View(), " 0  ");
    return std::string(block.View());
}

}  // namespace korvande
