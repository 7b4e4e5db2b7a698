#include "nensuf/ExportRecords.h"

#include <algorithm>
#include <array>

#include "core/modAzimuth.h"
#include "core/modLineIntraVerse.h"
#include "nensuf/ExportCodes.h"
#include "nensuf/RecordLayout.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Closing flags: whether the object's group has more records.
constexpr int goesOn = 0;
constexpr int closesGroup = 1;

// Writes a record and empties it for the next one.
void Write(LineWriter& output, Variant variant, RecordText& record, int closingFlag, std::string_view tail = {}) {
    WriteRecord(output, variant, record, tail, closingFlag);
    record.Clear();
}

// The place one metre from a point in a direction (grads, clockwise from north).
PointRec PlaceBeside(const PointRec& point, double direction) {
    const Position place = PolarPoint(point.East, point.North, GradsToRadians(direction), 1);
    PointRec beside{};
    beside.SetPointID(TextView());
    beside.East = place.east;
    beside.North = place.north;
    beside.Elevation = point.Elevation;
    return beside;
}

// The direction of a symbol's P1 to P2: its own, or with chkExportSymRotation the one that makes it its north.
double ReferenceDirection(const Options& options, const PointRec& point) {
    const double direction = MirrorGrads(point.SymDir);
    return options.chkExportSymRotation ? NormalizeGrads(direction - 100) : direction;
}

using TwoDigits = std::array<char, 2>;

// A text's 03, 05 and 06 record, of which the last has this count before the characters.
void WriteTextRecords(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const TextRec& text,
                      std::string_view lkiCode, TextView characters, const TwoDigits& count) {
    RecordText record;
    record.Put("03M", lkiCode, style.tails.text);
    Write(output, style.variant, record, goesOn);
    record.Put("05F111      ", FormatCoordinates(style.options, anchor).View(),
               FormatCoordinates(style.options, InsertionPlaceOf(text, anchor)).View(),
               style.variant == Variant::Nen1878 ? "K" : "Q", lkiCode);
    Write(output, style.variant, record, goesOn);
    record.Put("06A", std::string_view(count.data(), count.size()), "T", characters);
    Write(output, style.variant, record, closesGroup);
}

TwoDigits CountOf(TextView characters) {
    const std::size_t length = characters.size();
    return {static_cast<char>('0' + length / 10), static_cast<char>('0' + length % 10)};
}

}  // namespace

PointRec ReferencePlaceOf(const Options& options, const PointRec& symbol) {
    return PlaceBeside(symbol, ReferenceDirection(options, symbol));
}

PointRec InsertionPlaceOf(const TextRec& text, const PointRec& anchor) {
    return PlaceBeside(anchor, MirrorGrads(text.HzDirection));
}

RecordStyle PrepareRecordStyle(Translation& translation) {
    const Variant variant = translation.mode.variant;
    const bool nen = variant == Variant::Nen1878;
    const int sourceKind = std::max(translation.options.lstSource, 0);
    const std::string date = FormatFieldworkDate(translation.drawing, translation.log);
    if (date.empty() && !Trim(TextView(translation.drawing.DrawingDate)).empty()) {
        Tell(translation, {.kind = ProblemKind::DateLeftOut});
    }
    const std::string rest = std::to_string(sourceKind) + "1   " + date + FormatSourceBlock(translation.owner);
    return {.options = translation.options,
            .variant = variant,
            .tails = {.point = (nen ? "  G0101" : "  G 10 ") + rest,
                      .line = (nen ? "  G1201" : "  G 30 ") + rest,
                      .arc = (nen ? "  G1301" : "  G 40 ") + rest,
                      .text = "       " + rest}};
}

void WritePoint(LineWriter& output, const RecordStyle& style, const PointRec& point, const ExportCode& code) {
    const RecordText coordinates = FormatCoordinates(style.options, point);
    RecordText record;
    record.Put("03M", code.lkiCode, style.tails.point);
    Write(output, style.variant, record, goesOn);
    record.Put("04I1        ", coordinates.View());
    Write(output, style.variant, record, goesOn, code.quality);
    record.Put("05F112      ", coordinates.View());
    Write(output, style.variant, record, goesOn);
    if (code.isSymbol) {
        record.Put("05F012", std::string_view(code.lkiCode).substr(4), "   ", coordinates.View(),
                   FormatCoordinates(style.options, ReferencePlaceOf(style.options, point)).View());
        Write(output, style.variant, record, goesOn);
    }
    record.Put("06A20T", code.description);
    Write(output, style.variant, record, closesGroup);
}

void WriteSegment(LineWriter& output, const RecordStyle& style, const PointRec& start, const PointRec& end,
                  SegmentShape shape, const ExportCode& code) {
    const bool isArc = shape == SegmentShape::Arc;
    RecordText record;
    record.Put("03M", code.lkiCode, isArc ? style.tails.arc : style.tails.line);
    Write(output, style.variant, record, goesOn);
    record.Put("04I1        ", FormatCoordinates(style.options, start).View(), isArc ? "I4        " : "I2        ",
               FormatCoordinates(style.options, end).View());
    Write(output, style.variant, record, closesGroup, code.quality);
}

void WriteText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const TextRec& text,
               const ExportCode& code) {
    const auto& whole = text.Characters();
    const TextView characters = whole.Trimmed().substr(0, longestText);
    WriteTextRecords(output, style, anchor, text, code.lkiCode, characters, CountOf(characters));
}

void WriteGeneratedText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const Drawing& drawing,
                        const TextRec& text) {
    constexpr TwoDigits heightCount = {'0', '9'};  // whatever the length of the height
    const auto& whole = text.Characters();
    const TextView characters = whole.Trimmed().substr(0, longestText);
    RecordText lkiCode;
    lkiCode.Put(drawing.Code(text).View().substr(1), " ");
    WriteTextRecords(output, style, anchor, text, lkiCode.View(), characters,
                     text.AnchorPosition == heightAnchor ? heightCount : CountOf(characters));
}

}  // namespace korvande
