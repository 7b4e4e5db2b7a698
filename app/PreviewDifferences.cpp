#include "app/PreviewDifferences.h"

#include <array>
#include <unordered_map>

#include "picture/DifferenceSentence.h"

namespace korvande {

namespace {

constexpr double beside = 20;  // millimetres, of the straight lines that stand for a curve
constexpr double thin = 1.5;   // of marks that may cover much of a drawing

// The places of line strings among the parts of a picture, by their numbers.
using LineParts = std::unordered_map<std::int32_t, std::uint32_t>;

LineParts PartsOf(const DisplayList& list) {
    LineParts parts;
    for (std::uint32_t part = 0; part < list.lines.size(); ++part) parts.try_emplace(list.lines[part].lineNo, part);
    return parts;
}

class Marker {
 public:
    explicit Marker(const ShownDrawing& itsDrawing) : drawing(itsDrawing) {}

    Outline OutlineOf(const Difference& difference, std::int32_t index) {
        const DisplayList& list = drawing.list;
        if (difference.object == ComparedKind::LineString) return OutlineOfLine(index);
        const auto from = list.origin.From(difference.place.east, difference.place.north);
        if (!from) return {};
        const bool hasEnd = difference.object == ComparedKind::Segment || difference.object == ComparedKind::Arc;
        const auto to = hasEnd ? list.origin.From(difference.end.east, difference.end.north) : std::nullopt;
        if (!to) return {{PositionOf(*from)}};
        return OutlineBetween(list, drawing.index, *from, *to, beside);
    }

 private:
    Outline OutlineOfLine(std::int32_t lineNo) {
        if (!areKnown) parts = PartsOf(drawing.list);
        areKnown = true;
        const auto found = parts.find(lineNo);
        if (found == parts.end()) return {};
        return korvande::OutlineOf(drawing.list, {PictureKind::LineString, found->second}, beside);
    }

    const ShownDrawing& drawing;
    LineParts parts;
    bool areKnown = false;
};

void MoveTo(const PictureOrigin& target, const PictureOrigin& origin, Outline& outline) {
    for (std::vector<Position>& line : outline) {
        for (Position& place : line) {
            place.east += static_cast<double>(origin.east - target.east);
            place.north += static_cast<double>(origin.north - target.north);
        }
    }
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
        if (difference.kind == DifferenceKind::Changed) mark.width = thin;
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
