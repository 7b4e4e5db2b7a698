#include <memory>

#include "picture/CairoText_posix.h"
#include "picture/PixelLetters.h"

namespace korvande {

struct PixelLetters::Tools {
    std::unique_ptr<cairo_surface_t, DestroyCairo> surface;
    std::unique_ptr<cairo_t, DestroyCairo> context;
};

PixelLetters::PixelLetters(Pixels& itsPixels, const PixelView& itsView) : pixels(itsPixels), view(itsView) {}

PixelLetters::~PixelLetters() = default;

void PixelLetters::Write(const PictureText& text, TextView characters, Colour colour) {
    if (tools == nullptr) {
        // It has these pixels, too: 32 bits each.
        auto* const bytes = reinterpret_cast<unsigned char*>(pixels.values.data());
        tools = std::make_unique<Tools>();
        tools->surface.reset(cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_RGB24, pixels.width, pixels.height,
                                                                 pixels.width * 4));
        tools->context.reset(cairo_create(tools->surface.get()));
        PrepareTexts(tools->context.get(), view);
    }
    SetColour(tools->context.get(), colour);
    WriteText(tools->context.get(), view, text, characters);
    cairo_surface_flush(tools->surface.get());
}

}  // namespace korvande
