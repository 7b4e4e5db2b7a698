#include <algorithm>
#include <cmath>
#include <memory>

#include "core/RuntimeError.h"
#include "picture/CairoText_posix.h"
#include "picture/PngPicture.h"

namespace korvande {

namespace {

constexpr double halfTurn = 3.14159265358979;

class CairoCanvas : public Canvas {
 public:
    CairoCanvas(const CairoLibrary& itsLibrary, cairo_t* itsContext, const PictureFrame& frame)
        : cairo(itsLibrary), context(itsContext), view(frame) {
        cairo.setLineCap(context, CAIRO_LINE_CAP_ROUND);
        cairo.setLineJoin(context, CAIRO_LINE_JOIN_ROUND);
        PrepareTexts(cairo, context, view);
    }

    void BeginCode(const PictureCode&, const CodeStyle& style) override {
        SetColour(cairo, context, style.colour);
        const double width = style.lineWidth * view.scale;
        cairo.setLineWidth(context, width);
        const double dashes[] = {8 * width, 4 * width};
        cairo.setDash(context, dashes, style.isDashed ? 2 : 0, 0);
    }
    void EndCode() override {}

    void MoveTo(PicturePlace place) override {
        last = place;
        cairo.moveTo(context, view.X(place.east), view.Y(place.north));
    }
    void LineTo(PicturePlace place) override {
        last = place;
        cairo.lineTo(context, view.X(place.east), view.Y(place.north));
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override {
        const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
        // From bearings clockwise from north to angles clockwise from east.
        const double from = arc.bearing - halfTurn / 2;
        const auto add = arc.sweep < 0 ? cairo.arcNegative : cairo.arc;
        add(context, view.X(arc.centre.east), view.Y(arc.centre.north), arc.radius * view.scale, from,
            from + arc.sweep);
        last = to;
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override {
        cairo.curveTo(context, view.X(first.east), view.Y(first.north), view.X(second.east), view.Y(second.north),
                      view.X(to.east), view.Y(to.north));
        last = to;
    }
    void Stroke() override { cairo.stroke(context); }

    void Dot(PicturePlace place, double radius) override {
        constexpr double leastPixels = 1;
        cairo.newPath(context);
        cairo.arc(context, view.X(place.east), view.Y(place.north), std::max(radius * view.scale, leastPixels), 0,
                  2 * halfTurn);
        cairo.fill(context);
    }

    void Write(const PictureText& text, TextView characters) override {
        constexpr double leastPixels = 1.5;  // smaller ones are only grey, and cost most
        if (textHeight * 1000 * view.scale < leastPixels) return;
        WriteText(cairo, context, view, text, characters);
    }

 private:
    const CairoLibrary& cairo;
    cairo_t* context;
    PixelView view;
    PicturePlace last;
};

cairo_status_t Take(void* bytes, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::string PngBytes(const PictureFrame& frame, const std::function<void(Canvas&)>& draw) {
    const std::int64_t height = HeightInPixels(frame);
    if (height > mostPixels || frame.pixels > mostPixels) throw RuntimeError(errors::outOfMemory);
    const CairoLibrary cairo;
    const CairoSurface surface(cairo.createImage(CAIRO_FORMAT_RGB24, frame.pixels, static_cast<int>(height)),
                               cairo.destroySurface);
    const CairoContext context(cairo.create(surface.get()), cairo.destroy);
    SetColour(cairo, context.get(), 0xFFFFFF);
    cairo.paint(context.get());
    CairoCanvas canvas(cairo, context.get(), frame);
    draw(canvas);
    std::string bytes;
    const bool isDrawn = cairo.status(context.get()) == CAIRO_STATUS_SUCCESS;
    if (!isDrawn || cairo.writePng(surface.get(), Take, &bytes) != CAIRO_STATUS_SUCCESS) {
        throw RuntimeError(errors::outOfMemory);
    }
    return bytes;
}

}  // namespace korvande
