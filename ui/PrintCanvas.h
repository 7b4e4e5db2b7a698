#pragma once

#include <wx/graphics.h>

#include "picture/Canvas.h"
#include "picture/PixelView.h"

namespace korvande {

// Draws on paper, in lines and letters of the printer's own. The context must outlive it.
class PrintCanvas : public Canvas {
 public:
    // The thinnest line is so many dots wide.
    PrintCanvas(wxGraphicsContext& itsContext, const PixelView& itsView, double itsThinnest);

    void BeginCode(const PictureCode& code, const CodeStyle& style) override;
    void EndCode() override {}
    void MoveTo(PicturePlace place) override;
    void LineTo(PicturePlace place) override;
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override;
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override;
    void Stroke() override;
    void Dot(PicturePlace place, double radius) override;
    void Write(const PictureText& text, TextView characters) override;

 private:
    wxGraphicsContext& context;
    PixelView view;
    double thinnest;
    wxGraphicsPath path;
    wxColour colour;
    double letterScale = 0;  // of the font, for letters of the right height; 0: not measured yet
    PicturePlace last;
};

}  // namespace korvande
