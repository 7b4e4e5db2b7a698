#pragma once

#include <cairo.h>
#include <dlfcn.h>

#include <memory>

#include "core/RuntimeError.h"

namespace korvande {

// The procedures of the drawing library, which is loaded when something is to be drawn: with all that it brings it
// takes longer to load than a small drawing to translate.
class CairoLibrary {
 public:
    // A run-time error when the system does not have it.
    CairoLibrary() {
        Take(arc, "cairo_arc");
        Take(arcNegative, "cairo_arc_negative");
        Take(create, "cairo_create");
        Take(curveTo, "cairo_curve_to");
        Take(destroy, "cairo_destroy");
        Take(fill, "cairo_fill");
        Take(createFontOptions, "cairo_font_options_create");
        Take(destroyFontOptions, "cairo_font_options_destroy");
        Take(setAntialias, "cairo_font_options_set_antialias");
        Take(setHintMetrics, "cairo_font_options_set_hint_metrics");
        Take(setHintStyle, "cairo_font_options_set_hint_style");
        Take(createImage, "cairo_image_surface_create");
        Take(createImageFor, "cairo_image_surface_create_for_data");
        Take(lineTo, "cairo_line_to");
        Take(moveTo, "cairo_move_to");
        Take(newPath, "cairo_new_path");
        Take(paint, "cairo_paint");
        Take(restore, "cairo_restore");
        Take(rotate, "cairo_rotate");
        Take(save, "cairo_save");
        Take(selectFontFace, "cairo_select_font_face");
        Take(setDash, "cairo_set_dash");
        Take(setFontOptions, "cairo_set_font_options");
        Take(setFontSize, "cairo_set_font_size");
        Take(setLineCap, "cairo_set_line_cap");
        Take(setLineJoin, "cairo_set_line_join");
        Take(setLineWidth, "cairo_set_line_width");
        Take(setSourceRgb, "cairo_set_source_rgb");
        Take(showText, "cairo_show_text");
        Take(status, "cairo_status");
        Take(stroke, "cairo_stroke");
        Take(destroySurface, "cairo_surface_destroy");
        Take(flush, "cairo_surface_flush");
        Take(writePng, "cairo_surface_write_to_png_stream");
        Take(textExtents, "cairo_text_extents");
        Take(translate, "cairo_translate");
    }

    decltype(&cairo_arc) arc = nullptr;
    decltype(&cairo_arc_negative) arcNegative = nullptr;
    decltype(&cairo_create) create = nullptr;
    decltype(&cairo_curve_to) curveTo = nullptr;
    decltype(&cairo_destroy) destroy = nullptr;
    decltype(&cairo_fill) fill = nullptr;
    decltype(&cairo_font_options_create) createFontOptions = nullptr;
    decltype(&cairo_font_options_destroy) destroyFontOptions = nullptr;
    decltype(&cairo_font_options_set_antialias) setAntialias = nullptr;
    decltype(&cairo_font_options_set_hint_metrics) setHintMetrics = nullptr;
    decltype(&cairo_font_options_set_hint_style) setHintStyle = nullptr;
    decltype(&cairo_image_surface_create) createImage = nullptr;
    decltype(&cairo_image_surface_create_for_data) createImageFor = nullptr;
    decltype(&cairo_line_to) lineTo = nullptr;
    decltype(&cairo_move_to) moveTo = nullptr;
    decltype(&cairo_new_path) newPath = nullptr;
    decltype(&cairo_paint) paint = nullptr;
    decltype(&cairo_restore) restore = nullptr;
    decltype(&cairo_rotate) rotate = nullptr;
    decltype(&cairo_save) save = nullptr;
    decltype(&cairo_select_font_face) selectFontFace = nullptr;
    decltype(&cairo_set_dash) setDash = nullptr;
    decltype(&cairo_set_font_options) setFontOptions = nullptr;
    decltype(&cairo_set_font_size) setFontSize = nullptr;
    decltype(&cairo_set_line_cap) setLineCap = nullptr;
    decltype(&cairo_set_line_join) setLineJoin = nullptr;
    decltype(&cairo_set_line_width) setLineWidth = nullptr;
    decltype(&cairo_set_source_rgb) setSourceRgb = nullptr;
    decltype(&cairo_show_text) showText = nullptr;
    decltype(&cairo_status) status = nullptr;
    decltype(&cairo_stroke) stroke = nullptr;
    decltype(&cairo_surface_destroy) destroySurface = nullptr;
    decltype(&cairo_surface_flush) flush = nullptr;
    decltype(&cairo_surface_write_to_png_stream) writePng = nullptr;
    decltype(&cairo_text_extents) textExtents = nullptr;
    decltype(&cairo_translate) translate = nullptr;

 private:
    template <class Procedure>
    void Take(Procedure& procedure, const char* name) {
        procedure = reinterpret_cast<Procedure>(handle == nullptr ? nullptr : dlsym(handle, name));
        if (procedure == nullptr) {
            throw RuntimeError(errors::fileNotFound, u"De tekenbibliotheek libcairo.so.2 is niet gevonden");
        }
    }

    // It stays for good: its fonts outlive every picture.
    void* handle = dlopen("libcairo.so.2", RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
};

using CairoSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using CairoContext = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

}  // namespace korvande
