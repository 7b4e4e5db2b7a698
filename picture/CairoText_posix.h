#pragma once

#include <cairo.h>

#include <memory>

#include "picture/PixelView.h"
#include "picture/TextLayout.h"

namespace korvande {

struct DestroyCairo {
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
    void operator()(cairo_font_options_t* options) const noexcept { cairo_font_options_destroy(options); }
    void operator()(cairo_t* context) const noexcept { cairo_destroy(context); }
};

inline void SetColour(cairo_t* context, Colour colour) noexcept {
    const auto part = [colour](int shift) { return (colour >> shift & 0xFF) / 255.0; };
    cairo_set_source_rgb(context, part(16), part(8), part(0));
}

// Makes a context ready for texts at this scale.
inline void PrepareTexts(cairo_t* context, const PixelView& view) {
    cairo_select_font_face(context, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    // Letters may lie at any angle and be a few pixels high, where hints would cost them their accents.
    const std::unique_ptr<cairo_font_options_t, DestroyCairo> options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(context, options.get());
    cairo_set_font_size(context, textHeight * 1000 * view.scale);
}

inline void WriteText(cairo_t* context, const PixelView& view, const PictureText& text, TextView characters) {
    constexpr double radiansPerGrad = 3.14159265358979 / 200;
    const std::string utf8 = ToUtf8(characters);
    cairo_text_extents_t extents;
    cairo_text_extents(context, utf8.c_str(), &extents);
    cairo_save(context);
    cairo_translate(context, view.X(text.at.east), view.Y(text.at.north));
    cairo_rotate(context, -text.direction * radiansPerGrad);
    cairo_move_to(context, -PartLeftOf(text) * extents.x_advance, -FrameOf(text).bottom * view.scale);
    cairo_show_text(context, utf8.c_str());
    cairo_restore(context);
    cairo_new_path(context);
}

}  // namespace korvande
