#include "picture/HitTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/modAzimuth.h"
#include "picture/TextLayout.h"

namespace korvande {

namespace {

double ToSegment(Position place, Position from, Position to) {
    const double east = to.east - from.east;
    const double north = to.north - from.north;
    const double square = east * east + north * north;
    const double along =
        square > 0 ? ((place.east - from.east) * east + (place.north - from.north) * north) / square : 0;
    const double held = std::clamp(along, 0.0, 1.0);
    return Distance(place.east - from.east - held * east, place.north - from.north - held * north);
}

double ToArc(Position place, const Arc& arc) {
    const double bearing = Azimuth(place.east - arc.centre.east, place.north - arc.centre.north);
    const double turn = arc.sweep < 0 ? AngleFromTo(bearing, arc.bearing) : AngleFromTo(arc.bearing, bearing);
    if (turn <= std::fabs(arc.sweep)) {
        return std::fabs(Distance(place.east - arc.centre.east, place.north - arc.centre.north) - arc.radius);
    }
    const auto to = [&](double part) {
        const Position end = PlaceOnArc(arc, part);
        return Distance(place.east - end.east, place.north - end.north);
    };
    return std::min(to(0), to(1));
}

struct DistanceVisitor {
    explicit DistanceVisitor(PicturePlace from) : place(PositionOf(from)) {}

    Position place;
    Position last{};
    double nearest = std::numeric_limits<double>::infinity();

    void Begin(PicturePlace at, bool) { last = PositionOf(at); }
    void Straight(PicturePlace to) { LineTo(PositionOf(to)); }
    void LineTo(Position to) {
        nearest = std::min(nearest, ToSegment(place, last, to));
        last = to;
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
        const Position end = PositionOf(to);
        nearest = std::min(nearest, ToArc(place, ArcAbout(last, PositionOf(centre), end, isAnticlockwise)));
        last = end;
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
        constexpr int parts = 16;
        const Position from = last;
        const Controls controls{PositionOf(first), PositionOf(second)};
        for (int part = 1; part <= parts; ++part) {
            LineTo(PlaceOnCurve(from, controls, PositionOf(to), static_cast<double>(part) / parts));
        }
    }
};

}  // namespace

double DistanceTo(const DisplayList& list, const PictureLine& line, PicturePlace place) noexcept {
    DistanceVisitor visitor(place);
    WalkLine(list, line, visitor);
    return visitor.nearest;
}

double DistanceTo(const PictureText& text, PicturePlace place) noexcept {
    const TextFrame frame = FrameOf(text);
    const double east = place.east - static_cast<double>(text.at.east);
    const double north = place.north - static_cast<double>(text.at.north);
    const double turn = GradsToRadians(text.direction);
    const double along = east * std::cos(turn) + north * std::sin(turn);
    const double above = north * std::cos(turn) - east * std::sin(turn);
    const double off = std::max({frame.left - along, along - frame.left - frame.width, 0.0});
    const double over = std::max({frame.bottom - above, above - frame.bottom - frame.height, 0.0});
    return Distance(off, over);
}

std::optional<PictureRef> ObjectAt(const DisplayList& list, const SpatialIndex& index, PicturePlace place, double reach,
                                   const std::vector<bool>& isHidden) {
    struct Found {
        std::optional<PictureRef> ref{};
        double distance = 0;
    };
    Found point;
    Found line;
    Found text;
    const auto take = [&](Found& best, PictureRef ref, std::uint32_t code, double distance) {
        if (distance > reach || (code < isHidden.size() && isHidden[code])) return;
        if (best.ref && best.distance <= distance) return;
        best = {ref, distance};
    };
    index.Find(list, BoxAbout(place, reach), [&](PictureRef ref) {
        switch (ref.kind) {
            case PictureKind::Point: {
                const PicturePoint& found = list.points[ref.place];
                const Position at = PositionOf(found.at);
                return take(point, ref, found.code, Distance(at.east - place.east, at.north - place.north));
            }
            case PictureKind::LineString: {
                const PictureLine& found = list.lines[ref.place];
                return take(line, ref, found.code, DistanceTo(list, found, place));
            }
            default: {
                const PictureText& found = list.texts[ref.place];
                return take(text, ref, found.code, DistanceTo(found, place));
            }
        }
    });
    if (point.ref) return point.ref;
    return text.ref ? text.ref : line.ref;
}

}  // namespace korvande
