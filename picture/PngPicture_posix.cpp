#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "core/RuntimeError.h"
#include "picture/PixelView.h"
#include "picture/PngPicture.h"
#include "picture/TextLayout.h"

namespace korvande {

namespace {

constexpr double halfTurn = 3.14159265358979;
constexpr double degreesPerGrad = 0.9;

struct Destroy {
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
    void operator()(cairo_font_options_t* options) const noexcept { cairo_font_options_destroy(options); }
    void operator()(cairo_t* context) const noexcept { cairo_destroy(context); }
};

void SetColour(cairo_t* context, Colour colour) {
    const auto part = [colour](int shift) { return (colour >> shift & 0xFF) / 255.0; };
    cairo_set_source_rgb(context, part(16), part(8), part(0));
}

class CairoCanvas : public Canvas {
 public:
    CairoCanvas(cairo_t* itsContext, const PictureFrame& frame) : context(itsContext), view(frame) {
        cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
        cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
        cairo_select_font_face(context, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
        // Letters may lie at any angle and be a few pixels high, where hints would cost them their accents.
        const std::unique_ptr<cairo_font_options_t, Destroy> options(cairo_font_options_create());
        cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
        cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
        cairo_set_font_options(context, options.get());
        cairo_set_font_size(context, textHeight * 1000 * view.scale);
    }

    void BeginCode(const PictureCode&, const CodeStyle& style) override {
        SetColour(context, style.colour);
        const double width = style.lineWidth * view.scale;
        cairo_set_line_width(context, width);
        const double dashes[] = {8 * width, 4 * width};
        cairo_set_dash(context, dashes, style.isDashed ? 2 : 0, 0);
    }
    void EndCode() override {}

    void MoveTo(PicturePlace place) override {
        last = place;
        cairo_move_to(context, view.X(place.east), view.Y(place.north));
    }
    void LineTo(PicturePlace place) override {
        last = place;
        cairo_line_to(context, view.X(place.east), view.Y(place.north));
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override {
        const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
        // From bearings clockwise from north to angles clockwise from east.
        const double from = arc.bearing - halfTurn / 2;
        const auto add = arc.sweep < 0 ? cairo_arc_negative : cairo_arc;
        add(context, view.X(arc.centre.east), view.Y(arc.centre.north), arc.radius * view.scale, from,
            from + arc.sweep);
        last = to;
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override {
        cairo_curve_to(context, view.X(first.east), view.Y(first.north), view.X(second.east), view.Y(second.north),
                       view.X(to.east), view.Y(to.north));
        last = to;
    }
    void Stroke() override { cairo_stroke(context); }

    void Dot(PicturePlace place, double radius) override {
        constexpr double leastPixels = 1;
        cairo_new_path(context);
        cairo_arc(context, view.X(place.east), view.Y(place.north), std::max(radius * view.scale, leastPixels), 0,
                  2 * halfTurn);
        cairo_fill(context);
    }

    void Write(const PictureText& text, TextView characters) override {
        constexpr double leastPixels = 1.5;  // smaller ones are only grey, and cost most
        if (textHeight * 1000 * view.scale < leastPixels) return;
        const std::string utf8 = ToUtf8(characters);
        cairo_text_extents_t extents;
        cairo_text_extents(context, utf8.c_str(), &extents);
        cairo_save(context);
        cairo_translate(context, view.X(text.at.east), view.Y(text.at.north));
        cairo_rotate(context, -text.direction * degreesPerGrad * halfTurn / 180);
        cairo_move_to(context, -PartLeftOf(text) * extents.x_advance, -FrameOf(text).bottom * view.scale);
        cairo_show_text(context, utf8.c_str());
        cairo_restore(context);
        cairo_new_path(context);
    }

 private:
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
    const std::unique_ptr<cairo_surface_t, Destroy> surface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, frame.pixels, static_cast<int>(height)));
    const std::unique_ptr<cairo_t, Destroy> context(cairo_create(surface.get()));
    SetColour(context.get(), 0xFFFFFF);
    cairo_paint(context.get());
    CairoCanvas canvas(context.get(), frame);
    draw(canvas);
    std::string bytes;
    const bool isDrawn = cairo_status(context.get()) == CAIRO_STATUS_SUCCESS;
    if (!isDrawn || cairo_surface_write_to_png_stream(surface.get(), Take, &bytes) != CAIRO_STATUS_SUCCESS) {
        throw RuntimeError(errors::outOfMemory);
    }
    return bytes;
}

}  // namespace korvande
