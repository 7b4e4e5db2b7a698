#pragma once

#include "picture/CairoLibrary_posix.h"
#include "picture/PixelView.h"
#include "picture/TextLayout.h"

namespace korvande {

inline void SetColour(const CairoLibrary& cairo, cairo_t* context, Colour colour) noexcept {
    const auto part = [colour](int shift) { return (colour >> shift & 0xFF) / 255.0; };
    cairo.setSourceRgb(context, part(16), part(8), part(0));
}

// Makes a context ready for texts at this scale.
inline void PrepareTexts(const CairoLibrary& cairo, cairo_t* context, const PixelView& view) {
    cairo.selectFontFace(context, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    // Letters may lie at any angle and be a few pixels high, where hints would cost them their accents.
    const std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(
        cairo.createFontOptions(), cairo.destroyFontOptions);
    cairo.setHintStyle(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo.setHintMetrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo.setAntialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo.setFontOptions(context, options.get());
    cairo.setFontSize(context, textHeight * 1000 * view.scale);
}

inline void WriteText(const CairoLibrary& cairo, cairo_t* context, const PixelView& view, const PictureText& text,
                      TextView characters) {
    constexpr double radiansPerGrad = 3.14159265358979 / 200;
    const std::string utf8 = ToUtf8(characters);
    cairo_text_extents_t extents;
    cairo.textExtents(context, utf8.c_str(), &extents);
    cairo.save(context);
    cairo.translate(context, view.X(text.at.east), view.Y(text.at.north));
    cairo.rotate(context, -text.direction * radiansPerGrad);
    cairo.moveTo(context, -PartLeftOf(text) * extents.x_advance, -FrameOf(text).bottom * view.scale);
    cairo.showText(context, utf8.c_str());
    cairo.restore(context);
    cairo.newPath(context);
}

}  // namespace korvande
