#include "picture/Outline.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/modAzimuth.h"
#include "picture/TextLayout.h"

namespace korvande {

namespace {

// Walks over the parts of a line string and keeps where they go.
struct OutlineVisitor {
    Outline& outline;
    double beside = 0;
    PicturePlace last{};

    void Begin(PicturePlace place, bool isResumed) {
        if (!isResumed || outline.empty()) outline.push_back({PositionOf(place)});
        last = place;
    }
    void Straight(PicturePlace to) {
        outline.back().push_back(PositionOf(to));
        last = to;
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
        constexpr double most = 720;
        const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
        const double step = arc.radius > beside ? 2 * std::acos(1 - beside / arc.radius) : 1;
        const int steps = static_cast<int>(std::clamp(std::ceil(std::fabs(arc.sweep) / step), 1.0, most));
        for (int i = 1; i < steps; ++i) outline.back().push_back(PlaceOnArc(arc, static_cast<double>(i) / steps));
        Straight(to);
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
        constexpr int steps = 24;
        const Controls controls{PositionOf(first), PositionOf(second)};
        for (int i = 1; i < steps; ++i) {
            outline.back().push_back(
                PlaceOnCurve(PositionOf(last), controls, PositionOf(to), static_cast<double>(i) / steps));
        }
        Straight(to);
    }
};

// The first part of a line string, or where it would be: they stand by their numbers.
std::uint32_t FirstPartOf(const DisplayList& list, std::int32_t lineNo) {
    const auto part =
        std::lower_bound(list.lines.begin(), list.lines.end(), lineNo,
                         [](const PictureLine& line, std::int32_t number) { return line.lineNo < number; });
    return static_cast<std::uint32_t>(part - list.lines.begin());
}

// Of the line string that a part belongs to; its parts follow each other.
Outline OutlineFrom(const DisplayList& list, std::uint32_t part, double beside) {
    const std::int32_t lineNo = list.lines[part].lineNo;
    const auto isResumed = [&](std::size_t place) {
        return list.steps[list.lines[place].firstPlace] == PictureStep::Resume;
    };
    std::size_t first = part;
    while (first > 0 && isResumed(first) && list.lines[first - 1].lineNo == lineNo) --first;
    Outline outline;
    OutlineVisitor visitor{outline, beside};
    for (std::size_t place = first; place < list.lines.size(); ++place) {
        if (place > first && (list.lines[place].lineNo != lineNo || !isResumed(place))) break;
        WalkLine(list, list.lines[place], visitor);
    }
    return outline;
}

Outline OutlineOfText(const PictureText& text) {
    const TextFrame frame = FrameOf(text);
    const double turn = GradsToRadians(text.direction);
    const Position at = PositionOf(text.at);
    const auto corner = [&](double along, double above) {
        return Position{at.east + along * std::cos(turn) - above * std::sin(turn),
                        at.north + along * std::sin(turn) + above * std::cos(turn)};
    };
    const double right = frame.left + frame.width;
    const double top = frame.bottom + frame.height;
    return {{corner(frame.left, frame.bottom), corner(right, frame.bottom), corner(right, top), corner(frame.left, top),
             corner(frame.left, frame.bottom)}};
}

// Keeps the curves of a line string.
struct CurveCollector {
    std::vector<PictureCurve>& curves;
    PicturePlace last{};

    void Begin(PicturePlace place, bool) { last = place; }
    void Straight(PicturePlace to) { last = to; }
    void ArcTo(PicturePlace, PicturePlace to, bool) { last = to; }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
        curves.push_back({last, first, second, to});
        last = to;
    }
};

bool BeginsBefore(const PictureCurve& curve, PicturePlace place) noexcept {
    return std::pair(curve.from.east, curve.from.north) < std::pair(place.east, place.north);
}

}  // namespace

Outline OutlineOf(const DisplayList& list, PictureRef ref, double beside) {
    switch (ref.kind) {
        case PictureKind::Point:
            return {{PositionOf(list.points[ref.place].at)}};
        case PictureKind::LineString:
            return OutlineFrom(list, ref.place, beside);
        default:
            return OutlineOfText(list.texts[ref.place]);
    }
}

Outline OutlineOfLine(const DisplayList& list, std::int32_t lineNo, double beside) {
    const std::uint32_t part = FirstPartOf(list, lineNo);
    const bool isThere = part < list.lines.size() && list.lines[part].lineNo == lineNo;
    return isThere ? OutlineFrom(list, part, beside) : Outline();
}

Outline OutlineOfArc(PicturePlace start, PicturePlace centre, PicturePlace end, bool isAnticlockwise, double beside) {
    Outline outline;
    OutlineVisitor visitor{outline, beside};
    visitor.Begin(start, false);
    if (end == start) {
        const Position from = PositionOf(start);
        const Position middle = PositionOf(centre);
        visitor.ArcTo(centre, PlaceAt({2 * middle.east - from.east, 2 * middle.north - from.north}), isAnticlockwise);
    }
    visitor.ArcTo(centre, end, isAnticlockwise);
    return outline;
}

Outline CurveOutlines::Between(const DisplayList& list, std::int32_t itsLineNo, PicturePlace from, PicturePlace to,
                               double beside) {
    if (lineNo != itsLineNo) {
        lineNo = itsLineNo;
        curves.clear();
        CurveCollector collector{curves};
        for (std::size_t part = FirstPartOf(list, lineNo); part < list.lines.size(); ++part) {
            if (list.lines[part].lineNo != lineNo) break;
            WalkLine(list, list.lines[part], collector);
        }
        std::stable_sort(curves.begin(), curves.end(), [](const PictureCurve& one, const PictureCurve& other) {
            return BeginsBefore(one, other.from);
        });
    }
    auto curve = std::lower_bound(curves.begin(), curves.end(), from, BeginsBefore);
    while (curve != curves.end() && curve->from == from && !(curve->to == to)) ++curve;
    Outline outline;
    OutlineVisitor visitor{outline, beside};
    visitor.Begin(from, false);
    if (curve != curves.end() && curve->from == from) {
        visitor.CurveTo(curve->first, curve->second, to);
    } else {
        visitor.Straight(to);
    }
    return outline;
}

PictureBox BoxOf(const Outline& outline) noexcept {
    PictureBox box;
    for (const std::vector<Position>& line : outline) {
        for (const Position& place : line) box.Add(PlaceAt(place));
    }
    return box;
}

}  // namespace korvande
