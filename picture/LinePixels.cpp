#include "picture/LinePixels.h"

#include <algorithm>
#include <cmath>

namespace korvande {

namespace {

// Lays a colour over a pixel that it covers for a part of 256.
void Cover(Colour& pixel, Colour colour, std::uint32_t part) noexcept {
    constexpr std::uint32_t outer = 0xFF00FF;
    constexpr std::uint32_t middle = 0x00FF00;
    const std::uint32_t rest = 256 - part;
    pixel = ((((pixel & outer) * rest + (colour & outer) * part) >> 8) & outer) |
            ((((pixel & middle) * rest + (colour & middle) * part) >> 8) & middle);
}

std::uint32_t PartOf(double coverage) noexcept { return static_cast<std::uint32_t>(coverage * 256); }

// The pixels of a picture as a line passes them that goes more along than across: column by column, or row by row.
struct Passing {
    Colour* values;
    std::ptrdiff_t alongStep;
    std::ptrdiff_t acrossStep;
    int alongCount;
    int acrossCount;
};

struct Span {
    double from;
    double to;
};

// Covers, of one column, what of each pixel lies in a span across it; all of that for this part.
void CoverSpan(const Passing& passing, int along, Span across, double part, Colour colour) noexcept {
    across.from = std::max(across.from, 0.0);
    across.to = std::min(across.to, static_cast<double>(passing.acrossCount));
    if (across.from >= across.to) return;
    const int first = static_cast<int>(across.from);
    const int last = std::min(static_cast<int>(across.to), passing.acrossCount - 1);
    Colour* pixel = passing.values + along * passing.alongStep + first * passing.acrossStep;
    for (int place = first; place <= last; ++place) {
        const double covered =
            std::min<double>(across.to, place + 1) - std::max<double>(across.from, static_cast<double>(place));
        if (covered > 0) Cover(*pixel, colour, PartOf(covered * part));
        pixel += passing.acrossStep;
    }
}

// From a to b, with a.x not behind b.x and less across than along.
void Pass(const Passing& passing, PixelPlace a, PixelPlace b, double width, Colour colour) noexcept {
    const double length = b.x - a.x;
    const double slope = length > 0 ? (b.y - a.y) / length : 0;
    const double half = width / 2 * std::sqrt(1 + slope * slope);
    const double begin = std::max(a.x, 0.0);
    const double end = std::min(b.x, static_cast<double>(passing.alongCount));
    if (begin >= end) return;
    const int last = std::min(static_cast<int>(end), passing.alongCount - 1);
    for (int along = static_cast<int>(begin); along <= last; ++along) {
        const double from = std::max(begin, static_cast<double>(along));
        const double to = std::min(end, static_cast<double>(along + 1));
        if (from >= to) continue;
        const double middle = a.y + slope * ((from + to) / 2 - a.x);
        CoverSpan(passing, along, {middle - half, middle + half}, to - from, colour);
    }
}

}  // namespace

void DrawLine(Pixels& pixels, PixelPlace from, PixelPlace to, double width, Colour colour) noexcept {
    const bool isSteep = std::fabs(to.y - from.y) > std::fabs(to.x - from.x);
    Passing passing{pixels.values.data(), 1, pixels.width, pixels.width, pixels.height};
    if (isSteep) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
        std::swap(passing.alongStep, passing.acrossStep);
        std::swap(passing.alongCount, passing.acrossCount);
    }
    if (from.x > to.x) std::swap(from, to);
    Pass(passing, from, to, width, colour);
}

void DrawDot(Pixels& pixels, PixelPlace centre, double radius, Colour colour) noexcept {
    const auto held = [](double value, int count) {
        return static_cast<int>(std::clamp(value, -1.0, static_cast<double>(count)));
    };
    const int left = std::max(held(std::floor(centre.x - radius), pixels.width), 0);
    const int right = std::min(held(centre.x + radius, pixels.width), pixels.width - 1);
    const int top = std::max(held(std::floor(centre.y - radius), pixels.height), 0);
    const int bottom = std::min(held(centre.y + radius, pixels.height), pixels.height - 1);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const double distance = std::hypot(x + 0.5 - centre.x, y + 0.5 - centre.y);
            const double covered = std::clamp(radius - distance + 0.5, 0.0, 1.0);
            if (covered > 0) Cover(pixels.At(x, y), colour, PartOf(covered));
        }
    }
}

bool CutToPixels(const Pixels& pixels, double room, PixelPlace& from, PixelPlace& to) noexcept {
    const auto isInside = [&](PixelPlace place) {
        return place.x >= 0 && place.y >= 0 && place.x <= pixels.width && place.y <= pixels.height;
    };
    if (isInside(from) && isInside(to)) return true;
    const auto part =
        PartInside({from.x, from.y}, {to.x, to.y}, {-room, -room}, {pixels.width + room, pixels.height + room});
    if (!part) return false;
    const PixelPlace start = from;
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    from = {start.x + part->begin * x, start.y + part->begin * y};
    to = {start.x + part->end * x, start.y + part->end * y};
    return true;
}

}  // namespace korvande
