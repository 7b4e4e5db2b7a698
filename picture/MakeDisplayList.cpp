#include "picture/MakeDisplayList.h"

#include <algorithm>

#include "core/LinePieces.h"
#include "picture/PictureCodes.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr std::uint32_t mostPieces = 64;  // of a part of a line string

bool IsPoint(const Drawing& drawing, std::int32_t index) { return index >= 1 && index <= drawing.Points.UpperBound(); }

// The middle of a drawing by the median of some of its points, so that a few that lie far away do not move it: whole
// metres.
PictureOrigin OriginOf(const Drawing& drawing) {
    constexpr std::int32_t wanted = 1000;
    const std::int32_t count = drawing.Points.UpperBound();
    const std::int32_t every = count / wanted + 1;
    std::vector<std::int64_t> east;
    std::vector<std::int64_t> north;
    for (std::int32_t index = 1; index <= count; index += every) {
        const auto toEast = MillimetresOf(drawing.Points[index].East);
        const auto toNorth = MillimetresOf(drawing.Points[index].North);
        if (!toEast || !toNorth) continue;
        east.push_back(*toEast);
        north.push_back(*toNorth);
    }
    const auto median = [](std::vector<std::int64_t>& values) {
        if (values.empty()) return std::int64_t{0};
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle - *middle % 1000;
    };
    return {median(east), median(north)};
}

// Makes the list: texts first, since the points that they hang on are told from others.
class Maker {
 public:
    explicit Maker(Translation& itsTranslation)
        : drawing(itsTranslation.drawing),
          codes(itsTranslation, list.codes),
          isFromIdex(itsTranslation.mode.direction == Direction::FromIdex) {
        list.origin = OriginOf(drawing);
        isUsed.resize(static_cast<std::size_t>(drawing.Points.UpperBound()) + 1);
    }

    DisplayList Make() {
        AddTexts();
        AddLines();
        AddPoints();
        return std::move(list);
    }

 private:
    std::optional<PicturePlace> PlaceOf(const PointRec& point) const {
        return list.origin.From(point.East, point.North);
    }

    void Use(std::int32_t point) { isUsed[static_cast<std::size_t>(point)] = true; }

    void AddTexts() {
        const std::int32_t count = drawing.Texts.UpperBound();
        list.texts.reserve(static_cast<std::size_t>(count));
        for (std::int32_t index = 1; index <= count; ++index) AddText(index);
    }

    void AddText(std::int32_t index) {
        const TextRec& text = drawing.Texts[index];
        const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
        const std::size_t length = text.CharacterBytes().Trimmed().size();
        if (anchor == 0) {
            ++list.notShown;
            return;
        }
        Use(anchor);
        if (!isFromIdex) textAt.resize(isUsed.size());
        if (!isFromIdex) textAt[static_cast<std::size_t>(anchor)] = index;
        const auto place = PlaceOf(drawing.Points[anchor]);
        if (!place || length == 0) {
            ++list.notShown;
            return;
        }
        const std::int16_t position = text.AnchorPosition;
        list.texts.push_back({.at = *place,
                              .direction = text.HzDirection,
                              .code = codes.CodeOf(text),
                              .index = index,
                              .length = static_cast<std::uint16_t>(length),
                              .position = static_cast<std::uint8_t>(position >= 1 && position <= 9 ? position : 0)});
        list.extent.Add(*place);
    }

    // The reader of an exchange file lays a line string from the first place of a text to the second.
    bool IsPlacement(std::span<const std::int32_t> segments, std::int32_t lineNo) const {
        if (textAt.empty() || segments.size() != 1) return false;
        const std::int32_t start = drawing.Edges[segments.front()].StartPt;
        const std::int32_t text = IsPoint(drawing, start) ? textAt[static_cast<std::size_t>(start)] : 0;
        return text != 0 && drawing.CodeBytes(drawing.Texts[text]) == drawing.CodeBytes(drawing.Lines[lineNo]);
    }

    void AddLines() {
        const SegmentsOfLines all(drawing);
        const auto lines = static_cast<std::size_t>(drawing.Lines.UpperBound());
        const auto edges = static_cast<std::size_t>(drawing.Edges.UpperBound());
        list.lines.reserve(lines);
        list.places.reserve(lines + edges);
        list.steps.reserve(lines + edges);
        for (std::int32_t lineNo = 1; lineNo <= drawing.Lines.UpperBound(); ++lineNo) {
            const auto segments = all.Of(lineNo);
            if (segments.empty()) continue;
            for (const std::int32_t segment : segments) {
                const EdgeRec& edge = drawing.Edges[segment];
                if (IsPoint(drawing, edge.StartPt)) Use(edge.StartPt);
                if (IsPoint(drawing, edge.EndPt)) Use(edge.EndPt);
            }
            if (!IsPlacement(segments, lineNo)) AddLine(segments, lineNo);
        }
        CloseLine();
    }

    void AddLine(std::span<const std::int32_t> segments, std::int32_t lineNo) {
        bool isNew = true;
        std::int32_t last = 0;  // the point where the pieces so far end
        for (auto rest = segments; !rest.empty();) {
            const LinePiece piece = FirstPiece(drawing, rest);
            if (!CanShow(piece, rest)) {
                list.notShown += static_cast<std::int64_t>(piece.segments);
                last = 0;
            } else {
                if (isNew) BeginLine(lineNo);
                isNew = false;
                if (pieces >= mostPieces) BeginPart();
                if (piece.start != last) Put(*PlaceOf(drawing.Points[piece.start]), PictureStep::Begin);
                AddPiece(piece, rest.first(piece.segments));
                list.segments += static_cast<std::int64_t>(piece.segments);
                last = piece.end;
            }
            rest = rest.subspan(piece.segments);
        }
    }

    bool CanShow(const LinePiece& piece, std::span<const std::int32_t> segments) const {
        if (piece.kind == LinePieceKind::Nothing || !PlaceOf(drawing.Points[piece.start])) return false;
        const auto isNear = [this](std::int32_t segment) {
            return PlaceOf(drawing.Points[drawing.Edges[segment].EndPt]).has_value();
        };
        const auto own = segments.first(piece.segments);
        return std::all_of(own.begin(), own.end(), isNear);
    }

    void Put(PicturePlace place, PictureStep step) {
        list.places.push_back(place);
        list.steps.push_back(step);
    }

    // The part that was begun last is whole.
    void CloseLine() {
        if (list.lines.empty()) return;
        PictureLine& line = list.lines.back();
        line.placeCount = static_cast<std::uint32_t>(list.places.size()) - line.firstPlace;
        if (line.placeCount == 0) return;
        list.extent.AddBox(BoxOf(list, line));
    }

    void BeginLine(std::int32_t lineNo) {
        CloseLine();
        pieces = 0;
        list.lines.push_back({.firstPlace = static_cast<std::uint32_t>(list.places.size()),
                              .code = codes.CodeOf(drawing.Lines[lineNo]),
                              .lineNo = lineNo});
    }

    void BeginPart() {
        CloseLine();
        pieces = 0;
        PictureLine part = list.lines.back();
        part.firstPlace = static_cast<std::uint32_t>(list.places.size());
        list.lines.push_back(part);
        Put(PicturePlace(list.places.back()), PictureStep::Resume);
    }

    void AddPiece(const LinePiece& piece, std::span<const std::int32_t> segments) {
        const PicturePlace end = *PlaceOf(drawing.Points[piece.end]);
        const PictureStep centre =
            piece.isAnticlockwise ? PictureStep::AnticlockwiseCentre : PictureStep::ClockwiseCentre;
        switch (piece.kind) {
            case LinePieceKind::Arc:
                AddArcTo(*PlaceOf(drawing.Points[piece.centre]), end, centre);
                break;
            case LinePieceKind::Circle:
                AddCircle(*PlaceOf(drawing.Points[piece.centre]), end, centre);
                break;
            case LinePieceKind::Curve:
                AddCurve(segments);
                break;
            default:
                ++pieces;
                Put(end, PictureStep::Straight);
                break;
        }
    }

    void AddArcTo(PicturePlace centre, PicturePlace end, PictureStep step) {
        ++pieces;
        Put(centre, step);
        Put(end, PictureStep::End);
    }

    // Two half circles; a circle that ends elsewhere goes on from there.
    void AddCircle(PicturePlace centre, PicturePlace end, PictureStep step) {
        const PicturePlace start = list.places.back();
        const Position from = PositionOf(start);
        const Position about = PositionOf(centre);
        AddArcTo(centre, PlaceAt({2 * about.east - from.east, 2 * about.north - from.north}), step);
        AddArcTo(centre, start, step);
        if (end != start) Put(end, PictureStep::Begin);
    }

    Position PositionOfPoint(std::int32_t point) const { return PositionOf(*PlaceOf(drawing.Points[point])); }

    void AddCurve(std::span<const std::int32_t> segments) {
        const auto startOf = [&](std::size_t i) { return PositionOfPoint(drawing.Edges[segments[i]].StartPt); };
        const auto endOf = [&](std::size_t i) { return PositionOfPoint(drawing.Edges[segments[i]].EndPt); };
        // A curve that comes back to its start goes on there too.
        const std::size_t last = segments.size() - 1;
        const bool isClosed = drawing.Edges[segments[last]].EndPt == drawing.Edges[segments[0]].StartPt;
        for (std::size_t i = 0; i <= last; ++i) {
            std::optional<Position> before;
            std::optional<Position> behind;
            if (i > 0 || isClosed) before = startOf(i > 0 ? i - 1 : last);
            if (i < last || isClosed) behind = endOf(i < last ? i + 1 : 0);
            const Controls controls = ControlsBetween(before, startOf(i), endOf(i), behind);
            if (pieces >= mostPieces) BeginPart();
            ++pieces;
            Put(PlaceAt(controls.first), PictureStep::Control);
            Put(PlaceAt(controls.second), PictureStep::Control);
            Put(PlaceAt(endOf(i)), PictureStep::End);
        }
    }

    void AddPoints() {
        const std::int32_t count = drawing.Points.UpperBound();
        for (std::int32_t index = 1; index <= count; ++index) {
            const PointRec& point = drawing.Points[index];
            const bool isPartOfOther = isUsed[static_cast<std::size_t>(index)];
            if (isPartOfOther && !isFromIdex) continue;
            const std::uint32_t code = codes.CodeOf(point);
            if (isPartOfOther && !list.codes[code].isWritten) continue;
            const auto place = PlaceOf(point);
            if (!place) {
                ++list.notShown;
                continue;
            }
            ++list.codes[code].count;
            list.points.push_back(
                {.at = *place, .direction = static_cast<float>(point.SymDir), .code = code, .index = index});
            list.extent.Add(*place);
        }
    }

    const Drawing& drawing;
    DisplayList list;
    PictureCodes codes;
    bool isFromIdex;
    std::vector<bool> isUsed;          // by point: a line string or a text refers to it
    std::vector<std::int32_t> textAt;  // by point of an exchange file: the text that hangs on it
    std::uint32_t pieces = 0;          // of the part of a line string being made
};

// Gives back what was set aside for more than came.
template <class Record>
void GiveBack(std::vector<Record>& records) {
    if (records.capacity() > records.size() + records.size() / 8) records.shrink_to_fit();
}

// Codes that were only met at points which are not shown.
void DropUnusedCodes(DisplayList& list) {
    std::vector<std::uint32_t> places;
    std::uint32_t used = 0;
    for (const PictureCode& code : list.codes) {
        places.push_back(used);
        if (code.count > 0) ++used;
    }
    if (used == list.codes.size()) return;
    std::erase_if(list.codes, [](const PictureCode& code) { return code.count == 0; });
    for (PicturePoint& point : list.points) point.code = places[point.code];
    for (PictureLine& line : list.lines) line.code = places[line.code];
    for (PictureText& text : list.texts) text.code = places[text.code];
}

}  // namespace

DisplayList MakeDisplayList(Translation& translation) {
    DisplayList list = Maker(translation).Make();
    for (const PictureLine& line : list.lines) {
        if (list.steps[line.firstPlace] != PictureStep::Resume) ++list.codes[line.code].count;
    }
    for (const PictureText& text : list.texts) ++list.codes[text.code].count;
    DropUnusedCodes(list);
    GiveBack(list.points);
    GiveBack(list.lines);
    GiveBack(list.places);
    GiveBack(list.steps);
    GiveBack(list.texts);
    return list;
}

}  // namespace korvande
