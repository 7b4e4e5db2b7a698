#include "picture/ComparedObjects.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string_view>
#include <utility>

#include "translation/Translation.h"

namespace korvande {

namespace {

std::uint64_t HashOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t other) {
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
    return (hash ^ (other + odd + (hash << 6) + (hash >> 2))) * odd;
}

// Of the place of an object and what it says; those of a line string are added up, since their order is none.
std::uint64_t MarkOf(const ComparedObject& object) {
    std::uint64_t hash = Mixed(object.content, object.centre);
    for (const std::int64_t part :
         {object.place.east, object.place.north, object.place.otherEast, object.place.otherNorth}) {
        hash = Mixed(hash, static_cast<std::uint64_t>(part));
    }
    return hash;
}

}  // namespace

ObjectCollector::ObjectCollector(Translation& itsTranslation)
    : drawing(itsTranslation.drawing),
      codes(itsTranslation, objects.codes),
      isFromIdex(itsTranslation.mode.direction == Direction::FromIdex),
      isUsed(static_cast<std::size_t>(drawing.Points.UpperBound()) + 1),
      isObject(isUsed.size()),
      isEnd(isUsed.size()) {
    for (std::int32_t index = 1; index <= drawing.Texts.UpperBound(); ++index) {
        const std::int32_t anchor = drawing.PointIndex.Find(drawing.Texts[index].AnchorPointNo);
        if (anchor == 0) continue;
        Use(anchor);
        if (isFromIdex) continue;
        textAt.resize(isUsed.size());
        textAt[static_cast<std::size_t>(anchor)] = index;
    }
    for (std::int32_t index = 1; index <= drawing.Edges.UpperBound(); ++index) {
        const EdgeRec& edge = drawing.Edges[index];
        if (edge.LineNo < 1 || edge.LineNo > drawing.Lines.UpperBound()) continue;
        Use(edge.StartPt);
        Use(edge.EndPt);
    }
}

bool ObjectCollector::IsPoint(std::int32_t index) const noexcept {
    return index >= 1 && index <= drawing.Points.UpperBound();
}

void ObjectCollector::Use(std::int32_t point) {
    if (IsPoint(point)) isUsed[static_cast<std::size_t>(point)] = true;
}

void ObjectCollector::EndAt(std::int32_t point) { isEnd[static_cast<std::size_t>(point)] = true; }

ComparedPlace ObjectCollector::PlaceOf(std::int32_t point) const {
    const PointRec& record = drawing.Points[point];
    return {.east = Compared(record.East), .north = Compared(record.North)};
}

// Two ends in their order; true when they were exchanged.
bool ObjectCollector::PlaceBetween(std::int32_t start, std::int32_t end, ComparedPlace& place) const {
    const ComparedPlace from = PlaceOf(start);
    const ComparedPlace to = PlaceOf(end);
    const bool isReversed = to < from;
    const ComparedPlace& first = isReversed ? to : from;
    const ComparedPlace& second = isReversed ? from : to;
    place = {first.east, first.north, second.east, second.north};
    return isReversed;
}

void ObjectCollector::AddTexts() {
    for (std::int32_t index = 1; index <= drawing.Texts.UpperBound(); ++index) {
        const TextRec& text = drawing.Texts[index];
        const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
        ComparedObject object{.code = codes.CodeOf(text),
                              .index = index,
                              .content = HashOf(text.CharacterBytes().Trimmed()),
                              .direction = text.HzDirection};
        object.refersToNothing = anchor == 0;
        if (isFromIdex) object.detail = static_cast<std::uint64_t>(text.AnchorPosition);
        if (anchor != 0) {
            object.place = PlaceOf(anchor);
            EndAt(anchor);
        }
        objects[ComparedKind::TextObject].push_back(object);
    }
}

// The reader of an exchange file lays a line string from the first place of a text to the second.
bool ObjectCollector::IsPlacement(std::span<const std::int32_t> segments, std::int32_t lineNo) const {
    if (isFromIdex || textAt.empty() || segments.size() != 1) return false;
    const std::int32_t start = drawing.Edges[segments.front()].StartPt;
    const std::int32_t text = IsPoint(start) ? textAt[static_cast<std::size_t>(start)] : 0;
    return text != 0 && drawing.CodeBytes(drawing.Texts[text]) == drawing.CodeBytes(drawing.Lines[lineNo]);
}

void ObjectCollector::AddLines() {
    const SegmentsOfLines all(drawing);
    // Room that nothing is put into takes no memory.
    objects[ComparedKind::Segment].reserve(static_cast<std::size_t>(drawing.Edges.UpperBound()));
    objects.codeOfLine.resize(static_cast<std::size_t>(drawing.Lines.UpperBound()) + 1);
    for (std::int32_t lineNo = 1; lineNo <= drawing.Lines.UpperBound(); ++lineNo) {
        const auto segments = all.Of(lineNo);
        const LineRec& line = drawing.Lines[lineNo];
        const auto& code = drawing.CodeBytes(line);
        // Numbers that never occurred are blank records.
        if (segments.empty() && (code.NeverFilled() || code.IsBlank())) continue;
        const std::uint32_t shared = objects.codeOfLine[static_cast<std::size_t>(lineNo)] = codes.CodeOf(line);
        if (segments.empty()) {
            objects[ComparedKind::LineString].push_back({.code = shared, .index = lineNo});
            continue;
        }
        if (!IsPlacement(segments, lineNo)) AddLineString(segments, shared, DetailOf(line));
    }
    AddStraySegments();
}

// What only IDEX tells of a line string.
std::uint64_t ObjectCollector::DetailOf(const LineRec& line) const {
    if (!isFromIdex) return 0;
    const std::uint64_t flags = static_cast<std::uint64_t>(line.Flags1) << 32 ^ static_cast<std::uint32_t>(line.Flags2);
    return Mixed(HashOf(drawing.DescriptionBytes(line).Trimmed()), flags);
}

// Of its segments and arcs each has the mark of the whole, so that where two line strings share one, that of each
// is found again in the other drawing.
void ObjectCollector::AddLineString(std::span<const std::int32_t> segments, std::uint32_t code, std::uint64_t detail) {
    constexpr std::array lineKinds = {ComparedKind::Segment, ComparedKind::Arc, ComparedKind::Circle};
    std::array<std::size_t, lineKinds.size()> begins{};
    for (std::size_t i = 0; i < lineKinds.size(); ++i) begins[i] = objects[lineKinds[i]].size();
    AddPieces(segments, code);
    // Their order makes no difference.
    for (std::size_t i = 0; i < lineKinds.size(); ++i) {
        const auto& kind = objects[lineKinds[i]];
        for (std::size_t at = begins[i]; at < kind.size(); ++at) detail += MarkOf(kind[at]);
    }
    for (std::size_t i = 0; i < lineKinds.size(); ++i) {
        auto& kind = objects[lineKinds[i]];
        for (std::size_t at = begins[i]; at < kind.size(); ++at) kind[at].detail = detail;
    }
}

void ObjectCollector::AddPieces(std::span<const std::int32_t> segments, std::uint32_t code) {
    for (auto rest = segments; !rest.empty();) {
        const LinePiece piece = FirstPiece(drawing, rest);
        const auto own = rest.first(piece.segments);
        if (piece.kind == LinePieceKind::Arc || piece.kind == LinePieceKind::Circle) {
            AddArc(piece, own.front(), code);
        } else {
            for (const std::int32_t segment : own) AddSegment(segment, code);
        }
        rest = rest.subspan(piece.segments);
    }
}

void ObjectCollector::AddSegment(std::int32_t index, std::uint32_t code) {
    const EdgeRec& edge = drawing.Edges[index];
    ComparedObject object{.code = code, .index = index, .content = HashOf(drawing.LineTypeBytes(edge).Trimmed())};
    object.refersToNothing = !IsPoint(edge.StartPt) || !IsPoint(edge.EndPt);
    if (!object.refersToNothing) {
        object.isReversed = PlaceBetween(edge.StartPt, edge.EndPt, object.place);
        EndAt(edge.StartPt);
        EndAt(edge.EndPt);
    }
    objects[ComparedKind::Segment].push_back(object);
}

void ObjectCollector::AddArc(const LinePiece& piece, std::int32_t index, std::uint32_t code) {
    ComparedObject object{.code = code, .index = index};
    const ComparedPlace centre = PlaceOf(piece.centre);
    const bool isCircle = piece.kind == LinePieceKind::Circle;
    EndAt(piece.start);
    EndAt(piece.end);
    if (isCircle) {
        object.place = PlaceOf(piece.start);
    } else {
        object.isReversed = PlaceBetween(piece.start, piece.end, object.place);
    }
    object.centre = static_cast<std::uint32_t>(
        Mixed(static_cast<std::uint64_t>(centre.east), static_cast<std::uint64_t>(centre.north)));
    object.content = piece.isAnticlockwise != object.isReversed ? 1 : 0;
    objects[isCircle ? ComparedKind::Circle : ComparedKind::Arc].push_back(object);
}

// Segments of no line string.
void ObjectCollector::AddStraySegments() {
    for (std::int32_t index = 1; index <= drawing.Edges.UpperBound(); ++index) {
        const std::int32_t line = drawing.Edges[index].LineNo;
        if (line >= 1 && line <= drawing.Lines.UpperBound()) continue;
        AddSegment(index, codes.BlankLineCode());
        objects[ComparedKind::Segment].back().refersToNothing = true;
    }
}

void ObjectCollector::AddPoints() {
    const std::int32_t count = drawing.Points.UpperBound();
    objects[ComparedKind::Point].reserve(static_cast<std::size_t>(count));
    for (std::int32_t index = 1; index <= count; ++index) {
        const PointRec& point = drawing.Points[index];
        const auto place = static_cast<std::size_t>(index);
        if (isUsed[place] && !isFromIdex) continue;
        const std::uint32_t code = codes.CodeOf(point);
        isObject[place] = !isUsed[place] || objects.codes[code].isWritten;
        if (!isObject[place]) continue;
        objects[ComparedKind::Point].push_back(
            {.place = PlaceOf(index),
             .code = code,
             .index = index,
             .content =
                 Mixed(HashOf(point.PointIDBytes().Trimmed()), static_cast<std::uint64_t>(Compared(point.Elevation))),
             .detail = isFromIdex ? HashOf(drawing.DescriptionBytes(point).Trimmed()) : 0,
             .direction = static_cast<float>(point.SymDir)});
    }
}

std::vector<ComparedVertex> ObjectCollector::Vertices() const {
    const std::int32_t count = drawing.Points.UpperBound();
    std::vector<ComparedVertex> vertices;
    vertices.reserve(static_cast<std::size_t>(count));
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto at = static_cast<std::size_t>(index);
        const ComparedPlace place = PlaceOf(index);
        const bool isOnlyPart = isUsed[at] && !isObject[at];
        vertices.push_back({place.east, place.north, isOnlyPart && isEnd[at], isOnlyPart && !isEnd[at], index});
    }
    std::sort(vertices.begin(), vertices.end());
    return vertices;
}

std::int64_t Compared(double metres) noexcept {
    return MillimetresOf(metres).value_or(std::bit_cast<std::int64_t>(metres));
}

}  // namespace korvande
