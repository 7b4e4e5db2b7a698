#include "picture/DifferenceTexts.h"

#include <algorithm>
#include <cmath>
#include <string_view>

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
    // The same of texts as a drawing keeps them, where they differ.
    void AddDifferent(TextView what, std::string_view before, std::string_view after) {
        if (before != after) Add(what, FromWindows1252(before), FromWindows1252(after));
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
    return Compared(point.Elevation) == 0 ? Text() : FromUtf8(FormatPicture(point.Elevation, "0.000"));
}

void ComparePoints(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                   const ComparedObject& other, ChangeList& changes) {
    const PointRec& point1 = DrawingOf(first).Points[one.index];
    const PointRec& point2 = DrawingOf(second).Points[other.index];
    changes.AddDifferent(u"puntnummer", point1.PointIDBytes().Trimmed(), point2.PointIDBytes().Trimmed());
    if (Compared(point1.Elevation) != Compared(point2.Elevation))
        changes.Add(u"hoogte", HeightText(point1), HeightText(point2));
    CompareDirections(one.direction, other.direction, changes);
    if (!IsFromIdex(first) || !IsFromIdex(second)) return;
    changes.AddDifferent(u"omschrijving", DrawingOf(first).DescriptionBytes(point1).Trimmed(),
                         DrawingOf(second).DescriptionBytes(point2).Trimmed());
}

void CompareSegments(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                     const ComparedObject& other, ChangeList& changes) {
    const auto typeOf = [](const Drawing& drawing, std::int32_t index) {
        return drawing.LineTypeBytes(drawing.Edges[index]).Trimmed();
    };
    changes.AddDifferent(u"lijntype", typeOf(DrawingOf(first), one.index), typeOf(DrawingOf(second), other.index));
    if (one.isReversed != other.isReversed) changes.Add(u"in omgekeerde volgorde");
}

// A centre that was computed from three places may be rounded to the next millimetre.
void CompareCentres(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                    const ComparedObject& other, ChangeList& changes) {
    const auto centreOf = [](const Drawing& drawing, std::int32_t firstSegment) -> const PointRec& {
        return drawing.Points[drawing.Edges[firstSegment].EndPt];
    };
    const PointRec& centre1 = centreOf(DrawingOf(first), one.index);
    const PointRec& centre2 = centreOf(DrawingOf(second), other.index);
    const auto isNear = [](double a, double b) {
        return Compared(a) - Compared(b) <= 1 && Compared(b) - Compared(a) <= 1;
    };
    if (isNear(centre1.East, centre2.East) && isNear(centre1.North, centre2.North)) return;
    const auto text = [](const PointRec& centre) {
        return Concat(FormatPicture(centre.East, "0.000"), u" ", FormatPicture(centre.North, "0.000"));
    };
    changes.Add(u"middelpunt", text(centre1), text(centre2));
}

void CompareTexts(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                  const ComparedObject& other, ChangeList& changes) {
    const TextRec& text1 = DrawingOf(first).Texts[one.index];
    const TextRec& text2 = DrawingOf(second).Texts[other.index];
    const auto quoted = [](const TextRec& text) {
        return Concat(u"\"", FromWindows1252(text.CharacterBytes().Trimmed()), u"\"");
    };
    if (one.content != other.content) changes.Add(u"tekst", quoted(text1), quoted(text2));
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
            CompareCentres(first, one, second, other, changes);
            break;
        case ComparedKind::Arc:
            CompareCentres(first, one, second, other, changes);
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
        constexpr std::size_t most = 5;  // that are told one by one
        Text text;
        for (std::size_t i = 0; i < std::min(values.size(), most); ++i) {
            AppendTo(text, Concat(text.empty() ? u"" : u", ", values[i]));
        }
        return values.size() > most ? Concat(text, u" en nog ", values.size() - most) : text;
    };
    ChangeList changes;
    changes.Add(what, joined(first), joined(second));
    return changes.Taken();
}

Text ChangesOfLine(const Drawing& first, const LineRec& one, const Drawing& second, const LineRec& other) {
    ChangeList changes;
    const auto shown = [](const Drawing& drawing, const LineRec& line) {
        const auto& description = drawing.DescriptionBytes(line);
        return description.NeverFilled() ? std::string_view() : description.Trimmed();
    };
    changes.AddDifferent(u"omschrijving", shown(first, one), shown(second, other));
    if (one.Flags1 != other.Flags1) changes.Add(u"vlaggen 1", Concat(one.Flags1), Concat(other.Flags1));
    if (one.Flags2 != other.Flags2) changes.Add(u"vlaggen 2", Concat(one.Flags2), Concat(other.Flags2));
    return changes.Taken();
}

}  // namespace korvande
