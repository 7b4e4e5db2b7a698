#pragma once

#include <atomic>

#include "picture/LinePixels.h"
#include "picture/PixelLetters.h"
#include "picture/PixelView.h"

namespace korvande {

// How a picture looks on a screen.
struct PixelLook {
    bool isDark = false;   // light on dark
    bool isPale = false;   // everything in one grey, for what is drawn over it
    double lineWidth = 1;  // pixels, whatever the scale
};

Colour PaperOf(const PixelLook& look) noexcept;

// A colour that can be read on white paper, as it is shown.
Colour ShownColour(Colour colour, const PixelLook& look) noexcept;

// Draws on pixels, fast enough for a picture that moves: a million segments in some tenths of a second. Lines are as
// wide at every scale; letters too small to be read are a stroke. The pixels must outlive it.
class PixelCanvas : public Canvas {
 public:
    // Once `isStopped` is true, nothing is drawn any more.
    PixelCanvas(Pixels& itsPixels, const PixelView& itsView, const PixelLook& itsLook,
                const std::atomic<bool>& itsStop);

    void BeginCode(const PictureCode& code, const CodeStyle& style) override;
    void EndCode() override {}
    void MoveTo(PicturePlace place) override;
    void LineTo(PicturePlace place) override;
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override;
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override;
    void Stroke() override {}
    void Dot(PicturePlace place, double radius) override;
    void Write(const PictureText& text, TextView characters) override;

 private:
    PixelPlace PixelOf(Position place) const noexcept { return {view.X(place.east), view.Y(place.north)}; }
    void GoTo(PixelPlace to);
    void GoDashed(PixelPlace from, PixelPlace to, double skipped);
    void WriteStroke(const PictureText& text, double height);

    Pixels& pixels;
    PixelView view;
    PixelLook look;
    const std::atomic<bool>& isStopped;
    PixelLetters letters;
    Colour colour = 0;
    bool isDashed = false;
    double dashed = 0;  // pixels of the line so far
    PicturePlace last;
    PixelPlace lastPixel;
};

}  // namespace korvande
