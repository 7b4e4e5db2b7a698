#include "geopackage/DrawingRows.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "core/Clock.h"
#include "core/Picture.h"
#include "core/modAzimuth.h"
#include "geopackage/Schema.h"
#include "project/Options.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr std::int64_t rowsBetweenCalls = 1000;

// Degrees clockwise from north, of grads anticlockwise from east: as many decimals as the formats tell.
double DegreesOf(double grads) noexcept {
    constexpr double degreesOfGrad = 0.9;
    constexpr double decimals = 1e5;
    const double degrees = std::round(MirrorGrads(grads) * degreesOfGrad * decimals) / decimals;
    return degrees < 360 ? degrees : 0;
}

const CodeTable& TableOf(const CodeTables& tables, char16_t letter) {
    return letter == u'P' ? tables.points : letter == u'L' ? tables.lines : tables.texts;
}

// P, I and B of the row of a code, when it carries them.
void TakeQuality(const CodeTables& tables, const PictureCode& code, CommonValues& values) {
    const CodeTable& table = TableOf(tables, code.table);
    if (code.row <= 0 || static_cast<std::size_t>(code.row) >= table.rows.size()) return;
    const CodeRow& row = table.rows[static_cast<std::size_t>(code.row)];
    values.p = row.P;
    values.i = row.I;
    values.b = row.B;
    values.hasQuality = row.P != 0 || row.I != 0 || row.B != 0;
}

std::string DayText(int year, int month, int day) {
    return FormatPicture(year, "0000") + "-" + FormatPicture(month, "00") + "-" + FormatPicture(day, "00");
}

// A day of the calendar, of yyyymmdd; empty when it is none.
std::string DayOf(std::string_view digits) {
    const bool isNumber = std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber) return {};
    const auto number = [digits](std::size_t first, std::size_t count) {
        int value = 0;
        for (const char digit : digits.substr(first, count)) value = 10 * value + (digit - '0');
        return value;
    };
    const int year = number(0, 4);
    const int month = number(4, 2);
    const int day = number(6, 2);
    return IsCalendarDay(year, month, day) ? DayText(year, month, day) : std::string();
}

template <std::size_t N>
std::string TextOf(const FixedBytes<N>& text) {
    return text.NeverFilled() ? std::string() : Windows1252ToUtf8(text.Trimmed());
}

// How an object was measured, as the program calls it; what the file has where that is none of its kinds.
std::string KindOf(const ObjectSource& source) {
    const auto kind = static_cast<unsigned char>(source.kind.bytes[0]);
    const bool isOne = kind >= '0' && kind - std::size_t{'0'} < sourceKinds.size();
    return isOne ? ToUtf8(sourceKinds[kind - std::size_t{'0'}]) : TextOf(source.kind);
}

Vertex VertexOf(const PointRec& point) noexcept { return {point.East, point.North, point.Elevation}; }

Envelope EnvelopeOf(const Vertex& at) noexcept {
    Envelope envelope;
    envelope.Add(at.east, at.north);
    return envelope;
}

}  // namespace

struct DrawingRows::Run {
    const Drawing& drawing;
    const DisplayList& list;
    const std::function<void()>& onRows;
    RowCounts counts{};
    std::int64_t rows = 0;
};

void RowCounts::Add(const RowCounts& other) noexcept {
    points += other.points;
    lineStrings += other.lineStrings;
    texts += other.texts;
    unknown += other.unknown;
}

DrawingRows::DrawingRows(Database& database, const RowChoice& itsChoice)
    : choice(itsChoice),
      geometry(itsChoice.referenceSystem),
      points(database, layers::points, "puntnummer, hoogte, richting"),
      lines(database, layers::lines, "lijnnummer, zonder_hoogte"),
      texts(database, layers::texts, "tekst, richting, anker") {}

RowCounts DrawingRows::Add(const Translation& translation, const DisplayList& list, const std::string& file,
                           const std::function<void()>& onRows) {
    TakeCodes(translation, list, file);
    TakeSources(translation);
    Run run{translation.drawing, list, onRows};
    for (const PicturePoint& point : list.points) AddPoint(run, point);
    AddLines(run);
    for (const PictureText& text : list.texts) AddText(run, text);
    return run.counts;
}

void DrawingRows::TakeCodes(const Translation& translation, const DisplayList& list, const std::string& file) {
    codes.clear();
    for (const PictureCode& code : list.codes) {
        codes.push_back({ToUtf8(code.code), ToUtf8(code.lkiCode), ToUtf8(code.description), {}});
        TakeQuality(translation.codes, code, codes.back().common);
        codes.back().common.isKnown = code.isKnown;
    }
    // Behind that nothing moves any more.
    for (CodeValues& values : codes) {
        values.common.code = values.code;
        values.common.lkiCode = values.lkiCode;
        values.common.description = values.description;
        values.common.file = file;
    }
}

void DrawingRows::TakeSources(const Translation& translation) {
    const ObjectSources& found = translation.drawing.Sources;
    sources.clear();
    for (std::size_t number = 0; number < found.Count(); ++number) {
        const ObjectSource& source = found[static_cast<ObjectSources::Number>(number)];
        sources.push_back({DayOf(source.date.View()), TextOf(source.name), KindOf(source), TextOf(source.status)});
    }
    if (translation.mode.direction != Direction::FromIdex) return;
    sources[0].date = DateOf(translation);
    if (choice.namesOwner) sources[0].name = ToUtf8(Trim(translation.owner.Source.View()));
}

CommonValues DrawingRows::ValuesOf(Run& run, std::uint32_t code, std::int32_t line, std::string_view ownDescription) {
    CommonValues values = codes[code].common;
    if (!ownDescription.empty()) values.description = ownDescription;
    values.line = line;
    const SourceValues& source = sources[run.drawing.Sources.At(line)];
    values.date = source.date;
    values.source = source.name;
    values.sourceKind = source.kind;
    values.status = source.status;
    if (!values.isKnown) ++run.counts.unknown;
    if (++run.rows % rowsBetweenCalls == 0 && run.onRows) run.onRows();
    return values;
}

void DrawingRows::AddPoint(Run& run, const PicturePoint& point) {
    const PointRec& record = run.drawing.Points[point.index];
    const PointShape shape = run.list.codes[point.code].shape;
    const auto& ownDescription = run.drawing.DescriptionBytes(record);
    const auto& name = record.PointIDBytes();
    const std::string description = TextOf(ownDescription);
    const std::string number =
        name.NeverFilled() || name.IsBlank() ? std::to_string(record.PointNo) : Windows1252ToUtf8(name.Trimmed());
    const bool isTurned = shape == PointShape::Rotated || shape == PointShape::Symbol || record.SymDir != 0;
    const Vertex at = VertexOf(record);
    points.Begin(ValuesOf(run, point.code, record.InputLine, description), geometry.OfPoint(at));
    points.Own(number);
    points.Own(at.height != 0 ? std::optional(at.height) : std::nullopt);
    points.Own(isTurned ? std::optional(DegreesOf(record.SymDir)) : std::nullopt);
    points.Add(EnvelopeOf(at));
    ++run.counts.points;
}

void DrawingRows::AddLines(Run& run) {
    if (run.list.lines.empty()) return;
    const SegmentsOfLines segments(run.drawing);
    LineShapes shapes(run.drawing, run.list.origin, choice.isStraight);
    std::int32_t before = 0;
    for (const PictureLine& line : run.list.lines) {
        // The parts of a line string follow each other.
        if (line.lineNo == before) continue;
        before = line.lineNo;
        AddLine(run, line.lineNo, line.code, shapes.Of(segments.Of(line.lineNo)));
    }
}

void DrawingRows::AddLine(Run& run, std::int32_t lineNo, std::uint32_t code, const LineShape& shape) {
    if (shape.runs.empty()) return;
    const LineRec& record = run.drawing.Lines[lineNo];
    const auto& ownDescription = run.drawing.DescriptionBytes(record);
    const std::string description = TextOf(ownDescription);
    for (const LineRun& part : shape.runs) {
        hasArcs = hasArcs || part.isOfArcs;
        hasCompounds = hasCompounds || part.goesOn;
    }
    lines.Begin(ValuesOf(run, code, record.InputLine, description), geometry.OfLines(shape, choice.isStraight));
    lines.Own(std::int64_t{lineNo});
    lines.Own(std::int64_t{shape.withoutHeight});
    lines.Add(shape.envelope);
    ++run.counts.lineStrings;
}

void DrawingRows::AddText(Run& run, const PictureText& text) {
    const TextRec& record = run.drawing.Texts[text.index];
    const std::string characters = Windows1252ToUtf8(record.CharacterBytes().Trimmed());
    const Vertex at = VertexOf(run.drawing.Points[run.drawing.PointIndex.Find(record.AnchorPointNo)]);
    texts.Begin(ValuesOf(run, text.code, record.InputLine, {}), geometry.OfPoint(at));
    texts.Own(characters);
    texts.Own(std::optional(DegreesOf(text.direction)));
    if (text.position != 0) {
        texts.Own(std::int64_t{text.position});
    } else {
        texts.OwnNothing();
    }
    texts.Add(EnvelopeOf(at));
    ++run.counts.texts;
}

std::string DateOf(const Translation& translation) {
    const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
    const std::optional<DateTime> day =
        isFromIdex ? ParseFieldworkDate(ToWindows1252(translation.drawing.DrawingDate)) : translation.ProjectDate;
    if (!day) return {};
    return DayText(day->year, day->month, day->day);
}

}  // namespace korvande
