#include <memory>

#include "picture/GdiPlusText_windows.h"
#include "picture/PixelLetters.h"

namespace korvande {

// In the order in which they need each other. The bitmap has these pixels, too: 32 bits each.
struct PixelLetters::Tools {
    Tools(Pixels& pixels, const PixelView& view)
        : bitmap(pixels.width, pixels.height, pixels.width * 4, PixelFormat32bppRGB,
                 reinterpret_cast<BYTE*>(pixels.values.data())),
          graphics(&bitmap),
          text(graphics, view) {}

    GdiPlusLibrary library;
    Gdiplus::Bitmap bitmap;
    Gdiplus::Graphics graphics;
    GdiPlusText text;
};

PixelLetters::PixelLetters(Pixels& itsPixels, const PixelView& itsView) : pixels(itsPixels), view(itsView) {}

PixelLetters::~PixelLetters() = default;

void PixelLetters::Write(const PictureText& text, TextView characters, Colour colour) {
    if (tools == nullptr) tools = std::make_unique<Tools>(pixels, view);
    const Gdiplus::SolidBrush brush(GdiPlusColour(colour));
    tools->text.Write(text, characters, brush);
    tools->graphics.Flush(Gdiplus::FlushIntentionSync);
}

}  // namespace korvande
