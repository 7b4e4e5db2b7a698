#include "picture/FramePixels.h"

#include "picture/DrawPicture.h"

namespace korvande {

namespace {

void DrawMark(const FrameMark& mark, const FrameOrder& order, Pixels& pixels) {
    constexpr double radius = 4;
    const Colour colour = ShownColour(mark.colour, {order.look.isDark});
    const auto at = [&order](const Position& place) {
        return PixelPlace{order.view.X(place.east), order.view.Y(place.north)};
    };
    for (const std::vector<Position>& line : mark.outline) {
        if (line.size() == 1) DrawDot(pixels, at(line.front()), radius * order.look.lineWidth, colour);
        for (std::size_t i = 1; i < line.size(); ++i) {
            PixelPlace from = at(line[i - 1]);
            PixelPlace to = at(line[i]);
            const double lineWidth = mark.width * order.look.lineWidth;
            if (CutToPixels(pixels, lineWidth, from, to)) DrawLine(pixels, from, to, lineWidth, colour);
        }
    }
}

}  // namespace

PictureBox ExtentOf(const std::vector<FrameSource>& sources) noexcept {
    PictureBox box;
    for (const FrameSource& source : sources) {
        const PictureBox& extent = source.list->extent;
        if (extent.IsEmpty()) continue;
        const PictureOrigin& first = sources.front().list->origin;
        const PictureOrigin& origin = source.list->origin;
        const auto add = [&](std::int32_t east, std::int32_t north) {
            box.Add(PlaceAt({static_cast<double>(origin.east - first.east) + east,
                             static_cast<double>(origin.north - first.north) + north}));
        };
        add(extent.minEast, extent.minNorth);
        add(extent.maxEast, extent.maxNorth);
    }
    return box;
}

FramePixels MakeFrame(const std::vector<FrameSource>& sources, const FrameOrder& order,
                      const std::atomic<bool>& isStopped) {
    FramePixels frame{order.view, Pixels(order.view.width, order.view.height, PaperOf(order.look))};
    for (const FrameSource& source : sources) {
        const PictureView view = InPlacesFrom(source.list->origin, sources.front().list->origin, order.view);
        PixelCanvas canvas(frame.pixels, PixelsOf(view), order.look, isStopped);
        DrawPicture(*source.drawing, *source.list, FrameOf(view), canvas, {source.index, &order.isHidden});
    }
    if (order.marks == nullptr) return frame;
    const PictureBox seen = FrameOf(order.view).box;
    for (const FrameMark& mark : *order.marks) {
        if (isStopped) break;
        if (mark.box.Overlaps(seen)) DrawMark(mark, order, frame.pixels);
    }
    return frame;
}

}  // namespace korvande
