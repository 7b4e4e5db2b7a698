#include <memory>

#include "picture/CairoText_posix.h"
#include "picture/PixelLetters.h"

namespace korvande {

struct PixelLetters::Tools {
    // It has these pixels, too: 32 bits each.
    explicit Tools(Pixels& pixels)
        : surface(cairo.createImageFor(reinterpret_cast<unsigned char*>(pixels.values.data()), CAIRO_FORMAT_RGB24,
                                       pixels.width, pixels.height, pixels.width * 4),
                  cairo.destroySurface),
          context(cairo.create(surface.get()), cairo.destroy) {}

    CairoLibrary cairo;
    CairoSurface surface;
    CairoContext context;
};

PixelLetters::PixelLetters(Pixels& itsPixels, const PixelView& itsView) : pixels(itsPixels), view(itsView) {}

PixelLetters::~PixelLetters() = default;

void PixelLetters::Write(const PictureText& text, TextView characters, Colour colour) {
    if (tools == nullptr) {
        tools = std::make_unique<Tools>(pixels);
        PrepareTexts(tools->cairo, tools->context.get(), view);
    }
    SetColour(tools->cairo, tools->context.get(), colour);
    WriteText(tools->cairo, tools->context.get(), view, text, characters);
    tools->cairo.flush(tools->surface.get());
}

}  // namespace korvande
