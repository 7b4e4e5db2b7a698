#include "app/PreviewDifferences.h"

#include <algorithm>
#include <array>

#include "core/LinePieces.h"
#include "picture/DifferenceSentence.h"

namespace korvande {

namespace {

constexpr double beside = 20;  // millimetres, of the straight lines that stand for a curve
constexpr double thin = 1.5;   // of marks that may cover much of a drawing

class Marker {
 public:
    explicit Marker(const ShownDrawing& itsDrawing) : drawing(itsDrawing) {}

    Outline OutlineOf(const Difference& difference, std::int32_t index) {
        if (!difference.hasPlace) return {};
        switch (difference.object) {
            case ComparedKind::LineString:
                return OutlineOfLine(drawing.list, index, beside);
            case ComparedKind::Segment:
            case ComparedKind::Arc:
            case ComparedKind::Circle:
                return OutlineOfPiece(difference, index);
            default:
                return OutlineOfPlace(difference);
        }
    }

 private:
    Outline OutlineOfPlace(const Difference& difference) const {
        const auto place = drawing.list.origin.From(difference.place.east, difference.place.north);
        return place ? Outline{{PositionOf(*place)}} : Outline();
    }

    // The index is that of its segment, of an arc or a circle the first one, which ends at the centre.
    Outline OutlineOfPiece(const Difference& difference, std::int32_t index) {
        const PictureOrigin& origin = drawing.list.origin;
        const Drawing& records = drawing.translation.drawing;
        const EdgeRec& edge = records.Edges[index];
        const auto from = origin.From(difference.place.east, difference.place.north);
        const auto to = origin.From(difference.end.east, difference.end.north);
        if (!from || !to) return OutlineOfPlace(difference);
        if (difference.object == ComparedKind::Segment) {
            const bool isCurve = records.LineTypeBytes(edge).View().starts_with("CURVE_");
            return isCurve ? curves.Between(drawing.list, edge.LineNo, *from, *to, beside)
                           : Outline{{PositionOf(*from), PositionOf(*to)}};
        }
        const PointRec& middle = records.Points[edge.EndPt];
        const auto centre = origin.From(middle.East, middle.North);
        if (!centre) return OutlineOfPlace(difference);
        const bool isAnticlockwise = (records.Lines[edge.LineNo].Flags1 & anticlockwiseFlag) != 0;
        return OutlineOfArc(*from, *centre, *to, isAnticlockwise, beside);
    }

    const ShownDrawing& drawing;
    CurveOutlines curves;
};

void MoveTo(const PictureOrigin& target, const PictureOrigin& origin, Outline& outline) {
    for (std::vector<Position>& line : outline) {
        for (Position& place : line) {
            place.east += static_cast<double>(origin.east - target.east);
            place.north += static_cast<double>(origin.north - target.north);
        }
    }
}

// Nothing is lost there, and the formats do so to nearly all line strings of a drawing.
void ShowPale(FrameMark& mark) {
    constexpr Colour paleOrange = 0xF0C08A;
    mark.colour = paleOrange;
    mark.width = 1;
    mark.name = u"opgedeeld";
}

}  // namespace

FrameMarks MarksOf(const Preview& preview) {
    FrameMarks marks;
    if (!preview.output) return marks;
    marks.reserve(preview.comparison.differences.size());
    Marker input(preview.drawing);
    Marker output(*preview.output);
    for (const Difference& difference : preview.comparison.differences) {
        const bool isAdded = difference.kind == DifferenceKind::Added;
        FrameMark mark;
        mark.outline = isAdded ? output.OutlineOf(difference, difference.secondIndex)
                               : input.OutlineOf(difference, difference.firstIndex);
        if (isAdded) MoveTo(preview.drawing.list.origin, preview.output->list.origin, mark.outline);
        mark.box = BoxOf(mark.outline);
        mark.colour = ColourOf(difference.kind);
        mark.name = NameOf(difference.kind);
        if (difference.kind == DifferenceKind::Changed) mark.width = thin;
        if (difference.isSplit) ShowPale(mark);
        marks.push_back(std::move(mark));
    }
    return marks;
}

Colour ColourOf(DifferenceKind kind) noexcept {
    constexpr std::array<Colour, 3> colours = {0xB85C00, 0xD00000, 0x0050C8};
    return colours[static_cast<std::size_t>(kind)];
}

Text SummaryOf(const Comparison& comparison) {
    ComparisonCount all;
    for (const ComparisonCount& count : comparison.counts) {
        all.equal += count.equal;
        all.changed += count.changed;
        all.missing += count.missing;
        all.added += count.added;
    }
    if (comparison.AreEqual()) return Concat(u"Alles is overgekomen: ", all.equal, u" gelijk");
    return Concat(all.missing, all.missing == 1 ? u" ontbreekt, " : u" ontbreken, ", all.changed, u" gewijzigd, ",
                  all.added, u" toegevoegd, ", all.equal, u" gelijk");
}

Text TextOf(const Difference& difference) {
    Difference withoutReason = difference;
    withoutReason.reason.clear();
    Text text = Concat(NameOf(difference.kind), u": ", SentenceOf(withoutReason));
    text.front() = ToCapitals(text.substr(0, 1)).front();
    if (!difference.reason.empty()) AppendTo(text, Concat(u"\nReden: ", difference.reason));
    return text;
}

PreviewDifferences::PreviewDifferences(const Comparison& itsComparison) : comparison(&itsComparison) {
    for (const Difference& difference : comparison->differences) ++counts[static_cast<std::size_t>(difference.kind)];
    List();
}

void PreviewDifferences::Show(DifferenceKind kind, bool isShown) {
    isHidden[static_cast<std::size_t>(kind)] = !isShown;
    List();
}

void PreviewDifferences::List() {
    rows.clear();
    for (const DifferenceKind kind : {DifferenceKind::Missing, DifferenceKind::Changed, DifferenceKind::Added}) {
        if (isHidden[static_cast<std::size_t>(kind)]) continue;
        for (std::size_t place = 0; place < comparison->differences.size(); ++place) {
            if (comparison->differences[place].kind == kind) rows.push_back(place);
        }
    }
    std::stable_partition(rows.begin(), rows.end(),
                          [this](std::size_t place) { return !comparison->differences[place].isSplit; });
}

std::optional<std::size_t> PreviewDifferences::Next(const std::optional<std::size_t>& row,
                                                    bool isForward) const noexcept {
    const std::size_t count = rows.size();
    if (count == 0) return {};
    if (!row || *row >= count) return isForward ? 0 : count - 1;
    return (*row + (isForward ? 1 : count - 1)) % count;
}

std::shared_ptr<const FrameMarks> PreviewDifferences::Shown(const FrameMarks& marks) const {
    auto shown = std::make_shared<FrameMarks>();
    shown->reserve(rows.size());
    for (std::size_t row = rows.size(); row-- > 0;) shown->push_back(marks[rows[row]]);
    return shown;
}

}  // namespace korvande
