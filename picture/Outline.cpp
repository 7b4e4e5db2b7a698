#include "picture/Outline.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

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

// The parts of a line string follow each other.
Outline OutlineOfLine(const DisplayList& list, std::uint32_t part, double beside) {
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

bool AreNear(PicturePlace one, PicturePlace other) noexcept {
    return std::abs(std::int64_t{one.east} - other.east) <= 1 && std::abs(std::int64_t{one.north} - other.north) <= 1;
}

// Keeps the piece that joins two places, as it goes.
struct PieceVisitor {
    PicturePlace from;
    PicturePlace to;
    double beside = 0;
    Outline found{};
    PicturePlace last{};

    bool IsIt(PicturePlace end) const {
        return found.empty() &&
               ((AreNear(last, from) && AreNear(end, to)) || (AreNear(last, to) && AreNear(end, from)));
    }
    template <class Draw>
    void Take(PicturePlace end, Draw draw) {
        if (IsIt(end)) {
            OutlineVisitor visitor{found, beside};
            visitor.Begin(last, false);
            draw(visitor);
        }
        last = end;
    }
    void Begin(PicturePlace place, bool) { last = place; }
    void Straight(PicturePlace end) {
        Take(end, [&](OutlineVisitor& visitor) { visitor.Straight(end); });
    }
    void ArcTo(PicturePlace centre, PicturePlace end, bool isAnticlockwise) {
        Take(end, [&](OutlineVisitor& visitor) { visitor.ArcTo(centre, end, isAnticlockwise); });
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace end) {
        Take(end, [&](OutlineVisitor& visitor) { visitor.CurveTo(first, second, end); });
    }
};

}  // namespace

Outline OutlineOf(const DisplayList& list, PictureRef ref, double beside) {
    switch (ref.kind) {
        case PictureKind::Point:
            return {{PositionOf(list.points[ref.place].at)}};
        case PictureKind::LineString:
            return OutlineOfLine(list, ref.place, beside);
        default:
            return OutlineOfText(list.texts[ref.place]);
    }
}

Outline OutlineBetween(const DisplayList& list, const SpatialIndex& index, PicturePlace from, PicturePlace to,
                       double beside) {
    PieceVisitor visitor{from, to, beside};
    index.Find(list, BoxAbout(from, 1), [&](PictureRef ref) {
        if (ref.kind == PictureKind::LineString) WalkLine(list, list.lines[ref.place], visitor);
    });
    if (!visitor.found.empty()) return visitor.found;
    return {{PositionOf(from), PositionOf(to)}};
}

PictureBox BoxOf(const Outline& outline) noexcept {
    PictureBox box;
    for (const std::vector<Position>& line : outline) {
        for (const Position& place : line) box.Add(PlaceAt(place));
    }
    return box;
}

}  // namespace korvande
