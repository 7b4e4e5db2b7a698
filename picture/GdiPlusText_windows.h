#pragma once

// GDI+ needs these before its own header.
#include <algorithm>
#include <cmath>

#include <windows.h>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

#include <memory>

#include "core/RuntimeError.h"
#include "core/WideText_windows.h"
#include "picture/PixelView.h"
#include "picture/TextLayout.h"

namespace korvande {

// The library, as long as it is used.
class GdiPlusLibrary {
 public:
    GdiPlusLibrary() {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) throw RuntimeError(errors::outOfMemory);
    }
    GdiPlusLibrary(const GdiPlusLibrary&) = delete;
    GdiPlusLibrary& operator=(const GdiPlusLibrary&) = delete;
    ~GdiPlusLibrary() { Gdiplus::GdiplusShutdown(token); }

 private:
    ULONG_PTR token = 0;
};

inline Gdiplus::Color GdiPlusColour(Colour colour) noexcept {
    return {static_cast<BYTE>(colour >> 16), static_cast<BYTE>(colour >> 8), static_cast<BYTE>(colour)};
}

// The family of the letters: the one of SVG pictures, what stands in for it, or whatever there is.
inline std::unique_ptr<Gdiplus::FontFamily> LetterFamily() {
    for (const wchar_t* const name : {L"Arial", L"Liberation Sans", L"Tahoma"}) {
        auto family = std::make_unique<Gdiplus::FontFamily>(name);
        if (family->IsAvailable() != FALSE) return family;
    }
    // Not the generic family: the window's library, which brings GDI+ along, has no place to keep it.
    auto family = std::make_unique<Gdiplus::FontFamily>();
    int found = 0;
    Gdiplus::InstalledFontCollection().GetFamilies(1, family.get(), &found);
    return family;
}

// What texts are written with at this scale.
class GdiPlusText {
 public:
    GdiPlusText(Gdiplus::Graphics& itsGraphics, const PixelView& itsView)
        : graphics(itsGraphics),
          view(itsView),
          font(LetterFamily().get(), static_cast<float>(textHeight * 1000 * view.scale), Gdiplus::FontStyleRegular,
               Gdiplus::UnitPixel) {
        graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    }

    void Write(const PictureText& text, TextView characters, const Gdiplus::Brush& brush) {
        constexpr double degreesPerGrad = 0.9;
        const std::wstring wide = ToWide(characters);
        const Gdiplus::StringFormat* const format = Gdiplus::StringFormat::GenericTypographic();
        const int length = static_cast<int>(wide.size());
        Gdiplus::RectF box;
        graphics.MeasureString(wide.c_str(), length, &font, Gdiplus::PointF(), format, &box);
        const Gdiplus::GraphicsState state = graphics.Save();
        graphics.TranslateTransform(static_cast<float>(view.X(text.at.east)),
                                    static_cast<float>(view.Y(text.at.north)));
        graphics.RotateTransform(static_cast<float>(-text.direction * degreesPerGrad));
        // A string is placed by its top left corner, from which its baseline lies nine tenths of its size.
        constexpr double toBaseline = 0.905;
        const double baseline = -FrameOf(text).bottom * view.scale;
        const Gdiplus::PointF corner(static_cast<float>(-PartLeftOf(text) * box.Width),
                                     static_cast<float>(baseline - toBaseline * textHeight * 1000 * view.scale));
        graphics.DrawString(wide.c_str(), length, &font, corner, format, &brush);
        graphics.Restore(state);
    }

 private:
    Gdiplus::Graphics& graphics;
    PixelView view;
    Gdiplus::Font font;
};

}  // namespace korvande
