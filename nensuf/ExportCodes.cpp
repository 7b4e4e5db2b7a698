#include "nensuf/ExportCodes.h"

#include <algorithm>

#include "nensuf/ExportRecords.h"

namespace korvande {

namespace {

bool IsSymbolType(TextView type) { return type == types::rotatedPoint || type == types::symbol; }

bool IsPointType(TextView type) { return type == types::controlPoint || type == types::point || IsSymbolType(type); }

bool IsLineType(TextView type) { return type == types::line || type == types::boundary; }

bool IsTextType(TextView type) { return type != types::dummy; }

// One byte for each character, so that a field keeps its columns.
std::string FieldBytes(TextView field) {
    std::string bytes;
    for (const char16_t character : field) bytes.push_back(ToWindows1252(character));
    return bytes;
}

bool LacksCharacter(TextView field) {
    return std::any_of(field.begin(), field.end(),
                       [](char16_t character) { return character != u'?' && ToWindows1252(character) == '?'; });
}

bool IsOneDigit(int number) { return number >= 0 && number <= 9; }

bool IsWritten(ObjectKind kind, TextView type) {
    if (kind == ObjectKind::Point) return IsPointType(type);
    return kind == ObjectKind::LineSegment ? IsLineType(type) : IsTextType(type);
}

const std::string& HeadTail(ObjectKind kind, const CodeRecordTails& tails) {
    if (kind == ObjectKind::Point) return tails.point;
    return kind == ObjectKind::LineSegment ? tails.line : tails.text;
}

// What a row gives, whether its objects are written or not. Texts have no quality, and points alone a description.
ExportCode CodeOf(const CodeRow& row, ObjectKind kind, const RecordStyle& style) {
    const TextView type = row.Type.TrimmedRight();
    const bool isPoint = kind == ObjectKind::Point;
    const bool hasQuality = kind != ObjectKind::TextObject;
    ExportCode code;
    code.lkiCode = FieldBytes(row.LkiCode.View());
    if (row.P != 0 || row.I != 0 || row.B != 0) code.quality = FormatQuality(style.variant, row.P, row.I, row.B);
    code.cutsQuality = hasQuality && !(IsOneDigit(row.P) && IsOneDigit(row.I) && IsOneDigit(row.B));
    code.lacksCharacter = LacksCharacter(row.LkiCode.View()) || (isPoint && LacksCharacter(row.Description.View()));
    code.isWritten = IsWritten(kind, type);
    code.isSymbol = IsSymbolType(type);
    code.reason = type == types::dummy ? LeftOut::Dummy : LeftOut::OtherType;
    code.head = OneLine(style.variant, "03", "M" + code.lkiCode + HeadTail(kind, style.tails), goesOn);
    code.arcHead = OneLine(style.variant, "03", "M" + code.lkiCode + style.tails.arc, goesOn);
    code.description = OneLine(style.variant, "06", "A20T" + FieldBytes(row.Description.View()), closesGroup);
    return code;
}

}  // namespace

ExportCodes::ExportCodes(const CodeTable& itsTable, ObjectKind itsKind, const RecordStyle& itsStyle,
                         bool withUnknownObjects)
    : table(itsTable),
      kind(itsKind),
      style(itsStyle),
      withUnknowns(withUnknownObjects),
      places(std::max<std::size_t>(1, table.rows.size()), 0) {}

const ExportCode& ExportCodes::Make(std::int32_t row) {
    const auto index = static_cast<std::size_t>(row);
    ExportCode code;
    if (!table.rows.empty()) code = CodeOf(table.rows[index], kind, style);
    if (row == 0) {
        code.reason = LeftOut::UnknownCode;
        code.isWritten = code.isWritten && withUnknowns;
    }
    codes.push_back(code);
    places[index] = static_cast<std::uint32_t>(codes.size());
    return codes.back();
}

}  // namespace korvande
