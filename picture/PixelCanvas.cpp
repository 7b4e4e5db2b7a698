#include "picture/PixelCanvas.h"

#include <algorithm>
#include <cmath>

#include "core/modAzimuth.h"
#include "picture/TextLayout.h"

namespace korvande {

namespace {

constexpr Colour whitePaper = 0xFFFFFF;
constexpr Colour darkPaper = 0x1E1E1E;
constexpr Colour pale = 0xB4B4B4;
constexpr Colour paleOnDark = 0x686868;

// What of a line is drawn and what not, as parts of its width.
constexpr double dash = 8;
constexpr double gap = 4;

int PartOf(Colour colour, int shift) noexcept { return static_cast<int>(colour >> shift & 0xFF); }

}  // namespace

Colour PaperOf(const PixelLook& look) noexcept { return look.isDark ? darkPaper : whitePaper; }

// On dark paper each colour is as far from black as it was from white.
Colour ShownColour(Colour colour, const PixelLook& look) noexcept {
    if (look.isPale) return look.isDark ? paleOnDark : pale;
    if (!look.isDark) return colour;
    const int parts[] = {PartOf(colour, 16), PartOf(colour, 8), PartOf(colour, 0)};
    const int added = 255 - *std::max_element(parts, parts + 3) - *std::min_element(parts, parts + 3);
    Colour shown = 0;
    for (const int part : parts) shown = shown << 8 | static_cast<Colour>(std::clamp(part + added, 0, 255));
    return shown;
}

PixelCanvas::PixelCanvas(Pixels& itsPixels, const PixelView& itsView, const PixelLook& itsLook,
                         const std::atomic<bool>& itsStop)
    : pixels(itsPixels), view(itsView), look(itsLook), isStopped(itsStop), letters(itsPixels, itsView) {}

void PixelCanvas::BeginCode(const PictureCode& /*code*/, const CodeStyle& style) {
    colour = ShownColour(style.colour, look);
    isDashed = style.isDashed;
}

void PixelCanvas::MoveTo(PicturePlace place) {
    last = place;
    lastPixel = PixelOf(PositionOf(place));
    dashed = 0;
}

void PixelCanvas::LineTo(PicturePlace place) {
    last = place;
    GoTo(PixelOf(PositionOf(place)));
}

void PixelCanvas::ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
    const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
    const double radius = arc.radius * view.scale;
    // A quarter of a pixel beside the arc is not seen.
    constexpr double most = 1024;
    const double step = radius > 1 ? 2 * std::acos(1 - 0.25 / radius) : 2;
    const int steps = static_cast<int>(std::clamp(std::ceil(std::fabs(arc.sweep) / step), 1.0, most));
    for (int i = 1; i < steps; ++i) GoTo(PixelOf(PlaceOnArc(arc, static_cast<double>(i) / steps)));
    LineTo(to);
}

void PixelCanvas::CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
    constexpr double pixelsPerStep = 4;
    constexpr double most = 256;
    const Position from = PositionOf(last);
    const Controls controls{PositionOf(first), PositionOf(second)};
    const Position end = PositionOf(to);
    const double length = Distance(controls.first.east - from.east, controls.first.north - from.north) +
                          Distance(end.east - controls.first.east, end.north - controls.first.north);
    const int steps = static_cast<int>(std::clamp(length * view.scale / pixelsPerStep, 1.0, most));
    for (int i = 1; i < steps; ++i) GoTo(PixelOf(PlaceOnCurve(from, controls, end, static_cast<double>(i) / steps)));
    LineTo(to);
}

void PixelCanvas::GoTo(PixelPlace to) {
    PixelPlace from = lastPixel;
    lastPixel = to;
    if (isStopped) return;
    const double length = isDashed ? std::hypot(to.x - from.x, to.y - from.y) : 0;
    const PixelPlace start = from;
    if (CutToPixels(pixels, look.lineWidth, from, to)) {
        if (isDashed) {
            GoDashed(from, to, dashed + std::hypot(from.x - start.x, from.y - start.y));
        } else if (from.x == to.x && from.y == to.y) {
            DrawDot(pixels, from, look.lineWidth / 2, colour);
        } else {
            DrawLine(pixels, from, to, look.lineWidth, colour);
        }
    }
    dashed += length;
}

void PixelCanvas::GoDashed(PixelPlace from, PixelPlace to, double skipped) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double period = (dash + gap) * look.lineWidth;
    const double phase = std::fmod(skipped, period);
    const auto at = [&](double distance) {
        return PixelPlace{from.x + (to.x - from.x) * distance / length, from.y + (to.y - from.y) * distance / length};
    };
    const int periods = static_cast<int>((length + phase) / period) + 1;
    for (int i = 0; i < periods; ++i) {
        const double begin = i * period - phase;
        const double first = std::max(begin, 0.0);
        const double end = std::min(begin + dash * look.lineWidth, length);
        if (first < end) DrawLine(pixels, at(first), at(end), look.lineWidth, colour);
    }
}

void PixelCanvas::Dot(PicturePlace place, double radius) {
    constexpr double leastPixels = 1;
    if (isStopped) return;
    const double least = leastPixels * look.lineWidth;
    DrawDot(pixels, PixelOf(PositionOf(place)), std::max(radius * view.scale, least), colour);
}

void PixelCanvas::Write(const PictureText& text, TextView characters) {
    constexpr double leastPixels = 1.5;
    constexpr double leastReadable = 5;
    const double height = textHeight * 1000 * view.scale;
    if (isStopped || height < leastPixels) return;
    if (height < leastReadable) return WriteStroke(text, height);
    letters.Write(text, characters, colour);
}

// Through the middle of the letters, where they would be.
void PixelCanvas::WriteStroke(const PictureText& text, double height) {
    const TextFrame frame = FrameOf(text);
    const double turn = GradsToRadians(text.direction);
    const double middle = frame.bottom + frame.height / 2;
    const auto at = [&](double along) {
        return PixelOf({text.at.east + along * std::cos(turn) - middle * std::sin(turn),
                        text.at.north + along * std::sin(turn) + middle * std::cos(turn)});
    };
    PixelPlace from = at(frame.left);
    PixelPlace to = at(frame.left + frame.width);
    constexpr double inked = 0.4;  // of the height
    if (CutToPixels(pixels, height, from, to)) DrawLine(pixels, from, to, height * inked, colour);
}

}  // namespace korvande
