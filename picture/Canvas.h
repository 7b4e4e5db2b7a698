#pragma once

#include "core/Text.h"
#include "picture/DisplayList.h"

namespace korvande {

// Red, green and blue, 0xRRGGBB.
using Colour = std::uint32_t;

// How the objects of a code are drawn.
struct CodeStyle {
    Colour colour = 0;
    double lineWidth = 0;  // millimetres of the drawing
    bool isDashed = false;
    bool isFilled = false;  // dots and letters; everything else is lines
};

// What a picture is drawn on. Places are those of a display list; everything between BeginCode and EndCode is of one
// code. A line begins with MoveTo and is drawn by Stroke; it may begin anew on its way.
class Canvas {
 public:
    Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    virtual ~Canvas() = default;

    // Whether each object is drawn for itself and in one piece. On another canvas a long line string is drawn in parts,
    // and what lies exactly under the next one is left out.
    virtual bool IsOfObjects() const { return false; }

    virtual void BeginCode(const PictureCode& code, const CodeStyle& style) = 0;
    virtual void EndCode() = 0;

    virtual void MoveTo(PicturePlace place) = 0;
    virtual void LineTo(PicturePlace place) = 0;
    virtual void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) = 0;
    virtual void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) = 0;
    virtual void Stroke() = 0;

    // A filled circle; millimetres.
    virtual void Dot(PicturePlace place, double radius) = 0;

    virtual void Write(const PictureText& text, TextView characters) = 0;
};

}  // namespace korvande
