#include "nensuf/RecordLayout.h"

#include <algorithm>
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

// The last digit of the end code of a record's last line.
char EndDigit(Variant variant, int closingFlag) noexcept {
    return variant == Variant::Nen1878 ? LastDigit(closingFlag) : '1';
}

// One physical line: record type, data padded or cut to its columns, and the end code "0" with this digit.
void FillLine(char* line, std::string_view type, std::string_view data, char endDigit) noexcept {
    const std::size_t length = std::min(data.size(), dataWidth);
    std::memcpy(line, type.data(), typeWidth);
    std::memcpy(line + typeWidth, data.data(), length);
    std::memset(line + typeWidth + length, ' ', dataWidth - length);
    line[62] = '0';
    line[63] = endDigit;
    line[64] = '\r';
    line[65] = '\n';
}

void WritePhysicalLine(LineWriter& output, std::string_view type, std::string_view data, char endDigit) {
    FillLine(output.Reserve(lineWidth + 2), type, data, endDigit);
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
    if (NearestWhole(millimetres, whole) || ScaledDecimal(millimetres, 0, whole)) {
        WriteInNineColumns(field + 1, whole);
    } else {
        AlignRight(field + 1, FormatPicture(millimetres, "########0"));
    }
}

PhysicalLine OneLine(Variant variant, std::string_view type, std::string_view data, int closingFlag) noexcept {
    PhysicalLine line{};
    FillLine(line.data(), type, data, EndDigit(variant, closingFlag));
    return line;
}

RecordLines::RecordLines(LineWriter& lineWriter, Variant itsVariant)
    : output(lineWriter), variant(itsVariant), begin(output.Reserve(most * (lineWidth + 2))), at(begin), line(begin) {}

void RecordLines::Begin(std::string_view itsType) noexcept {
    itsType.copy(type.data(), type.size());
    BeginLine();
}

void RecordLines::PutFields(std::string_view fields) noexcept {
    constexpr std::size_t fieldWidth = 10;
    for (std::size_t place = 0; place < fields.size(); place += fieldWidth) {
        if (at == line + typeWidth + dataWidth) {
            EndLine('0');
            BeginLine();
        }
        std::memcpy(at, fields.data() + place, fieldWidth);
        at += fieldWidth;
    }
}

void RecordLines::End(int closingFlag) noexcept {
    std::memset(at, ' ', static_cast<std::size_t>(line + typeWidth + dataWidth - at));
    EndLine(EndDigit(variant, closingFlag));
}

void RecordLines::Finish() noexcept { output.Advance(static_cast<std::size_t>(at - begin)); }

void RecordLines::BeginLine() noexcept {
    line = at;
    std::memcpy(line, type.data(), typeWidth);
    at = line + typeWidth;
}

void RecordLines::EndLine(char endDigit) noexcept {
    line[62] = '0';
    line[63] = endDigit;
    line[64] = '\r';
    line[65] = '\n';
    at = line + lineWidth + 2;
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
    WritePhysicalLine(output, type, data, EndDigit(variant, closingFlag));
}

void WriteClosingRecord(LineWriter& output) { output.PutLine(PadRight("99", lineWidth)); }

RecordText FormatCoordinates(const Options& options, const PointRec& point) {
    RecordText fields;
    const auto& name = point.PointIDBytes();
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
