#include "picture/DifferenceTexts.h"

#include <algorithm>
#include <cmath>

#include "core/Picture.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr double directionTolerance = 0.1;  // grads: what two places one metre apart can tell in millimetres

const Drawing& DrawingOf(const ComparedDrawing& drawing) { return drawing.translation.drawing; }

const PictureCode& CodeOf(const ComparedDrawing& drawing, const ComparedObject& object) {
    return drawing.objects.codes[object.code];
}

bool IsFromIdex(const ComparedDrawing& drawing) { return drawing.translation.mode.direction == Direction::FromIdex; }

// Collects "what before > after", separated by semicolons.
class ChangeList {
 public:
    void Add(TextView what, TextView before, TextView after) {
        Begin();
        AppendTo(text, Concat(what, u" ", Shown(before), u" > ", Shown(after)));
    }
    void Add(TextView what) {
        Begin();
        AppendTo(text, what);
    }
    Text Taken() { return std::move(text); }

 private:
    static TextView Shown(TextView value) { return value.empty() ? TextView(u"geen") : value; }
    void Begin() {
        if (!text.empty()) AppendTo(text, u"; ");
    }

    Text text;
};

double TurnBetween(double one, double other) {
    const double apart = std::fmod(std::fabs(one - other), 400.0);
    return std::min(apart, 400 - apart);
}

void CompareDirections(float one, float other, ChangeList& changes) {
    // Kept as whole millimetres of a metre, so a little over the tolerance may still be the same.
    if (!(TurnBetween(one, other) > directionTolerance + 1e-4)) return;
    const auto grads = [](float value) { return FormatPicture(value, "0.0##"); };
    changes.Add(u"richting", FromUtf8(grads(one)), FromUtf8(grads(other)));
}

Text HeightText(const PointRec& point) {
    return HeightOf(point) == 0 ? Text() : FromUtf8(FormatPicture(point.Elevation, "0.000"));
}

void ComparePoints(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                   const ComparedObject& other, ChangeList& changes) {
    const PointRec& point1 = DrawingOf(first).Points[one.index];
    const PointRec& point2 = DrawingOf(second).Points[other.index];
    const auto& name1 = point1.PointID();
    const auto& name2 = point2.PointID();
    if (Trim(name1.View()) != Trim(name2.View())) changes.Add(u"puntnummer", name1.Trimmed(), name2.Trimmed());
    if (HeightOf(point1) != HeightOf(point2)) changes.Add(u"hoogte", HeightText(point1), HeightText(point2));
    CompareDirections(one.direction, other.direction, changes);
    if (!IsFromIdex(first) || !IsFromIdex(second)) return;
    const auto& description1 = DrawingOf(first).Description(point1);
    const auto& description2 = DrawingOf(second).Description(point2);
    if (description1.Trimmed() == description2.Trimmed()) return;
    changes.Add(u"omschrijving", description1.Trimmed(), description2.Trimmed());
}

void CompareSegments(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                     const ComparedObject& other, ChangeList& changes) {
    const auto& type1 = DrawingOf(first).LineType(DrawingOf(first).Edges[one.index]);
    const auto& type2 = DrawingOf(second).LineType(DrawingOf(second).Edges[other.index]);
    if (one.content != other.content) changes.Add(u"lijntype", type1.Trimmed(), type2.Trimmed());
    if (one.isReversed != other.isReversed) changes.Add(u"in omgekeerde volgorde");
}

// A centre that was computed from three places may be rounded to the next millimetre.
void CompareCentres(const ComparedObject& one, const ComparedObject& other, ChangeList& changes) {
    const auto isNear = [](std::int64_t a, std::int64_t b) { return a - b <= 1 && b - a <= 1; };
    if (isNear(one.centreEast, other.centreEast) && isNear(one.centreNorth, other.centreNorth)) return;
    const auto text = [](const ComparedObject& object) {
        const auto metres = [](std::int64_t millimetres) { return static_cast<double>(millimetres) / 1000; };
        return Concat(FormatPicture(metres(object.centreEast), "0.000"), u" ",
                      FormatPicture(metres(object.centreNorth), "0.000"));
    };
    changes.Add(u"middelpunt", text(one), text(other));
}

void CompareTexts(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                  const ComparedObject& other, ChangeList& changes) {
    const TextRec& text1 = DrawingOf(first).Texts[one.index];
    const TextRec& text2 = DrawingOf(second).Texts[other.index];
    const auto& characters1 = text1.Characters();
    const auto& characters2 = text2.Characters();
    if (one.content != other.content) {
        changes.Add(u"tekst", Concat(u"\"", characters1.Trimmed(), u"\""), Concat(u"\"", characters2.Trimmed(), u"\""));
    }
    CompareDirections(one.direction, other.direction, changes);
    if (!IsFromIdex(first) || !IsFromIdex(second) || text1.AnchorPosition == text2.AnchorPosition) return;
    changes.Add(u"ankerpositie", Concat(text1.AnchorPosition), Concat(text2.AnchorPosition));
}

}  // namespace

Text Changes(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
             const ComparedObject& other, ComparedKind kind) {
    ChangeList changes;
    if (one.shared != other.shared) changes.Add(u"code", CodeOf(first, one).code, CodeOf(second, other).code);
    switch (kind) {
        case ComparedKind::Point:
            ComparePoints(first, one, second, other, changes);
            break;
        case ComparedKind::Segment:
            CompareSegments(first, one, second, other, changes);
            break;
        case ComparedKind::TextObject:
            CompareTexts(first, one, second, other, changes);
            break;
        case ComparedKind::Circle:
            CompareCentres(one, other, changes);
            break;
        case ComparedKind::Arc:
            CompareCentres(one, other, changes);
            if (one.content != other.content) changes.Add(u"draairichting");
            if (one.isReversed != other.isReversed) changes.Add(u"in omgekeerde volgorde");
            break;
        default:
            break;
    }
    return changes.Taken();
}

Text ChangesOfVertex(const std::vector<Text>& first, const std::vector<Text>& second, TextView what) {
    const auto joined = [](const std::vector<Text>& values) {
        Text text;
        for (const Text& value : values) AppendTo(text, Concat(text.empty() ? u"" : u", ", value));
        return text;
    };
    ChangeList changes;
    changes.Add(what, joined(first), joined(second));
    return changes.Taken();
}

Text ChangesOfLine(const Drawing& first, const LineRec& one, const Drawing& second, const LineRec& other) {
    ChangeList changes;
    const auto& description1 = first.Description(one);
    const auto& description2 = second.Description(other);
    const Text shown1(description1.NeverFilled() ? TextView() : description1.Trimmed());
    const Text shown2(description2.NeverFilled() ? TextView() : description2.Trimmed());
    if (shown1 != shown2) changes.Add(u"omschrijving", shown1, shown2);
    if (one.Flags1 != other.Flags1) changes.Add(u"vlaggen 1", Concat(one.Flags1), Concat(other.Flags1));
    if (one.Flags2 != other.Flags2) changes.Add(u"vlaggen 2", Concat(one.Flags2), Concat(other.Flags2));
    return changes.Taken();
}

}  // namespace korvande
