#include "nensuf/ExportCodes.h"

#include <algorithm>

#include "nensuf/RecordLayout.h"

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

// Which fields of a row the records of its objects have beside the code.
struct WrittenFields {
    bool description = false;
    bool quality = false;
};

ExportCodes PrepareCodes(const CodeTable& table, Variant variant, bool withUnknowns, bool (*isWritten)(TextView type),
                         WrittenFields fields) {
    ExportCodes codes;
    codes.reserve(table.rows.size() + 1);
    for (const CodeRow& row : table.rows) {
        const TextView type = row.Type.TrimmedRight();
        ExportCode& code = codes.emplace_back();
        code.lkiCode = FieldBytes(row.LkiCode.View());
        code.description = FieldBytes(row.Description.View());
        if (row.P != 0 || row.I != 0 || row.B != 0) code.quality = FormatQuality(variant, row.P, row.I, row.B);
        code.cutsQuality = fields.quality && !(IsOneDigit(row.P) && IsOneDigit(row.I) && IsOneDigit(row.B));
        code.lacksCharacter =
            LacksCharacter(row.LkiCode.View()) || (fields.description && LacksCharacter(row.Description.View()));
        code.isWritten = isWritten(type);
        code.isSymbol = IsSymbolType(type);
        code.reason = type == types::dummy ? LeftOut::Dummy : LeftOut::OtherType;
    }
    if (codes.empty()) codes.emplace_back();
    ExportCode& unknown = codes.front();
    unknown.reason = LeftOut::UnknownCode;
    if (!withUnknowns) unknown.isWritten = false;
    return codes;
}

}  // namespace

ExportCodes PreparePointCodes(const CodeTable& points, Variant variant, bool withUnknowns) {
    return PrepareCodes(points, variant, withUnknowns, IsPointType, {.description = true, .quality = true});
}

ExportCodes PrepareLineCodes(const CodeTable& lines, Variant variant, bool withUnknowns) {
    return PrepareCodes(lines, variant, withUnknowns, IsLineType, {.quality = true});
}

ExportCodes PrepareTextCodes(const CodeTable& texts, Variant variant, bool withUnknowns) {
    return PrepareCodes(texts, variant, withUnknowns, IsTextType, {});
}

}  // namespace korvande
