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
                      const PhysicalLine& head, std::string_view lkiCode, std::string_view characters,
                      const TwoDigits& count) {
    RecordText code;
    code.Put(style.variant == Variant::Nen1878 ? "K" : "Q", lkiCode, "  ");
    RecordText data;
    data.Put("A", std::string_view(count.data(), count.size()), "T", characters);
    RecordLines lines(output, style.variant);
    lines.PutLine(head);
    lines.Begin("05");
    lines.PutFields("F111      ");
    lines.PutFields(FormatCoordinates(style.options, anchor).View());
    lines.PutFields(FormatCoordinates(style.options, InsertionPlaceOf(text, anchor)).View());
    lines.PutFields(code.View());
    lines.End(goesOn);
    lines.PutLine(OneLine(style.variant, "06", data.View(), closesGroup));
    lines.Finish();
}

TwoDigits CountOf(std::string_view characters) {
    const std::size_t length = characters.size();
    return {static_cast<char>('0' + length / 10), static_cast<char>('0' + length % 10)};
}

// What is written of a text.
std::string_view WrittenOf(const TextRec& text) { return text.CharacterBytes().Trimmed().substr(0, longestText); }

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
    RecordLines lines(output, style.variant);
    lines.PutLine(code.head);
    lines.Begin("04");
    lines.PutFields("I1        ");
    lines.PutFields(coordinates.View());
    lines.PutFields(code.quality);
    lines.End(goesOn);
    lines.Begin("05");
    lines.PutFields("F112      ");
    lines.PutFields(coordinates.View());
    lines.End(goesOn);
    if (code.isSymbol) {
        RecordText placement;
        placement.Put("F012", std::string_view(code.lkiCode).substr(4), "   ");
        lines.Begin("05");
        lines.PutFields(placement.View());
        lines.PutFields(coordinates.View());
        lines.PutFields(FormatCoordinates(style.options, ReferencePlaceOf(style.options, point)).View());
        lines.End(goesOn);
    }
    lines.PutLine(code.description);
    lines.Finish();
}

void WriteSegment(LineWriter& output, const RecordStyle& style, const PointRec& start, const PointRec& end,
                  SegmentShape shape, const ExportCode& code) {
    const bool isArc = shape == SegmentShape::Arc;
    RecordLines lines(output, style.variant);
    lines.PutLine(isArc ? code.arcHead : code.head);
    lines.Begin("04");
    lines.PutFields("I1        ");
    lines.PutFields(FormatCoordinates(style.options, start).View());
    lines.PutFields(isArc ? "I4        " : "I2        ");
    lines.PutFields(FormatCoordinates(style.options, end).View());
    lines.PutFields(code.quality);
    lines.End(closesGroup);
    lines.Finish();
}

void WriteArc(LineWriter& output, const RecordStyle& style, const PointRec& start, const PointRec& middle,
              const PointRec& end, const ExportCode& code) {
    RecordLines lines(output, style.variant);
    lines.PutLine(code.arcHead);
    lines.Begin("04");
    lines.PutFields("I1        ");
    lines.PutFields(FormatCoordinates(style.options, start).View());
    lines.PutFields("I4        ");
    lines.PutFields(FormatCoordinates(style.options, middle).View());
    lines.PutFields("I4        ");
    lines.PutFields(FormatCoordinates(style.options, end).View());
    lines.PutFields(code.quality);
    lines.End(closesGroup);
    lines.Finish();
}

void WriteText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const TextRec& text,
               const ExportCode& code) {
    const std::string_view characters = WrittenOf(text);
    WriteTextRecords(output, style, anchor, text, code.head, code.lkiCode, characters, CountOf(characters));
}

void WriteGeneratedText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const Drawing& drawing,
                        const TextRec& text) {
    constexpr TwoDigits heightCount = {'0', '9'};  // whatever the length of the height
    const std::string_view characters = WrittenOf(text);
    const std::string lkiCode = std::string(drawing.CodeBytes(text).View().substr(1)).append(" ");
    WriteTextRecords(output, style, anchor, text,
                     OneLine(style.variant, "03", "M" + lkiCode + style.tails.text, goesOn), lkiCode, characters,
                     text.AnchorPosition == heightAnchor ? heightCount : CountOf(characters));
}

}  // namespace korvande
