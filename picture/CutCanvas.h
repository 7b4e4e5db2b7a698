#pragma once

#include "picture/Canvas.h"

namespace korvande {

// Draws on another canvas no line that goes far beyond a box: lines are cut off there. For canvases whose pixels have
// numbers of few digits.
class CutCanvas : public Canvas {
 public:
    // The curves that it cuts are made of straight lines, no farther from them than `itsBeside` (millimetres).
    CutCanvas(Canvas& itsCanvas, const PictureBox& itsBox, double itsBeside)
        : canvas(itsCanvas), box(itsBox), beside(itsBeside) {}

    void BeginCode(const PictureCode& code, const CodeStyle& style) override { canvas.BeginCode(code, style); }
    void EndCode() override { canvas.EndCode(); }
    void MoveTo(PicturePlace place) override;
    void LineTo(PicturePlace place) override;
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override;
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override;
    void Stroke() override { canvas.Stroke(); }
    void Dot(PicturePlace place, double radius) override { canvas.Dot(place, radius); }
    void Write(const PictureText& text, TextView characters) override { canvas.Write(text, characters); }

 private:
    void Join();
    void GoTo(Position to);

    Canvas& canvas;
    PictureBox box;
    double beside;
    Position last{};
    bool isJoined = false;  // the other canvas is where this one is
};

}  // namespace korvande
