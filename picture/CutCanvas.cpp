#include "picture/CutCanvas.h"

#include <algorithm>
#include <cmath>

namespace korvande {

void CutCanvas::MoveTo(PicturePlace place) {
    last = PositionOf(place);
    isJoined = false;
}

void CutCanvas::Join() {
    if (!isJoined) canvas.MoveTo(PlaceAt(last));
    isJoined = true;
}

void CutCanvas::LineTo(PicturePlace place) { GoTo(PositionOf(place)); }

void CutCanvas::GoTo(Position to) {
    const Position from = last;
    last = to;
    const auto part =
        PartInside(from, to, PositionOf({box.minEast, box.minNorth}), PositionOf({box.maxEast, box.maxNorth}));
    if (!part) {
        isJoined = false;
        return;
    }
    const auto at = [&](double way) {
        return PlaceAt({from.east + (to.east - from.east) * way, from.north + (to.north - from.north) * way});
    };
    if (!isJoined || part->begin > 0) canvas.MoveTo(at(part->begin));
    canvas.LineTo(at(part->end));
    isJoined = part->end == 1;
}

void CutCanvas::ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
    const Arc arc = ArcAbout(last, PositionOf(centre), PositionOf(to), isAnticlockwise);
    const PictureBox circle = BoxAbout(PlaceAt(arc.centre), arc.radius);
    if (box.Holds(circle)) {
        Join();
        canvas.ArcTo(centre, to, isAnticlockwise);
        last = PositionOf(to);
        return;
    }
    constexpr double most = 100'000;
    const double step = arc.radius > beside ? 2 * std::acos(1 - beside / arc.radius) : 1;
    const int steps = static_cast<int>(std::clamp(std::ceil(std::fabs(arc.sweep) / step), 1.0, most));
    for (int i = 1; i < steps; ++i) GoTo(PlaceOnArc(arc, static_cast<double>(i) / steps));
    LineTo(to);
}

void CutCanvas::CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
    PictureBox around;
    for (const PicturePlace place : {PlaceAt(last), first, second, to}) around.Add(place);
    if (box.Holds(around)) {
        Join();
        canvas.CurveTo(first, second, to);
        last = PositionOf(to);
        return;
    }
    constexpr int steps = 1024;
    const Position from = last;
    const Controls controls{PositionOf(first), PositionOf(second)};
    for (int i = 1; i < steps; ++i) {
        GoTo(PlaceOnCurve(from, controls, PositionOf(to), static_cast<double>(i) / steps));
    }
    LineTo(to);
}

}  // namespace korvande
