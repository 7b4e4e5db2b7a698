#include "ui/PrintCanvas.h"

#include <wx/brush.h>
#include <wx/font.h>
#include <wx/pen.h>

#include <algorithm>
#include <cmath>

#include "core/modAzimuth.h"
#include "picture/TextLayout.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr double halfTurn = 3.14159265358979;

wxGraphicsFont FontOf(wxGraphicsContext& context, const wxColour& colour) {
    constexpr int size = 20;  // points, of which the scale is measured
    return context.CreateFont(wxFont(wxFontInfo(size).Family(wxFONTFAMILY_SWISS).FaceName("Arial")), colour);
}

// What makes letters of this font one dot high, whatever the device takes a point for.
double ScaleOfLetters(wxGraphicsContext& context) {
    constexpr int sampleLength = 100;
    constexpr double digitWidth = 0.556;  // of the font's size, in Arial and what replaces it
    context.SetFont(FontOf(context, *wxBLACK));
    double width = 0;
    double height = 0;
    context.GetTextExtent(wxString('0', sampleLength), &width, &height);
    return sampleLength * digitWidth / std::max(width, 1.0);
}

}  // namespace

PrintCanvas::PrintCanvas(wxGraphicsContext& itsContext, const PixelView& itsView, double itsThinnest)
    : context(itsContext), view(itsView), thinnest(itsThinnest), path(itsContext.CreatePath()) {}

void PrintCanvas::BeginCode(const PictureCode& /*code*/, const CodeStyle& style) {
    constexpr Colour byte = 0xFF;
    colour =
        wxColour(static_cast<unsigned char>(style.colour >> 16 & byte),
                 static_cast<unsigned char>(style.colour >> 8 & byte), static_cast<unsigned char>(style.colour & byte));
    const double width = std::max(style.lineWidth * view.scale, thinnest);
    context.SetPen(
        context.CreatePen(wxGraphicsPenInfo(colour, width, style.isDashed ? wxPENSTYLE_SHORT_DASH : wxPENSTYLE_SOLID)));
    context.SetBrush(wxBrush(colour));
    if (letterScale > 0) context.SetFont(FontOf(context, colour));
}

void PrintCanvas::MoveTo(PicturePlace place) {
    last = place;
    path.MoveToPoint(view.X(place.east), view.Y(place.north));
}

void PrintCanvas::LineTo(PicturePlace place) {
    last = place;
    path.AddLineToPoint(view.X(place.east), view.Y(place.north));
}

void PrintCanvas::ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
    const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
    // From bearings clockwise from north to angles clockwise from east.
    const double from = arc.bearing - halfTurn / 2;
    const double radius = arc.radius * view.scale;
    if (radius > 0) {
        path.AddArc(view.X(arc.centre.east), view.Y(arc.centre.north), radius, from, from + arc.sweep, arc.sweep > 0);
    }
    last = to;
}

void PrintCanvas::CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
    path.AddCurveToPoint(view.X(first.east), view.Y(first.north), view.X(second.east), view.Y(second.north),
                         view.X(to.east), view.Y(to.north));
    last = to;
}

void PrintCanvas::Stroke() {
    context.StrokePath(path);
    path = context.CreatePath();
}

void PrintCanvas::Dot(PicturePlace place, double radius) {
    const double dots = std::max(radius * view.scale, thinnest);
    wxGraphicsPath circle = context.CreatePath();
    circle.AddCircle(view.X(place.east), view.Y(place.north), dots);
    context.FillPath(circle);
}

void PrintCanvas::Write(const PictureText& text, TextView characters) {
    if (letterScale == 0) {
        letterScale = ScaleOfLetters(context);
        context.SetFont(FontOf(context, colour));
    }
    const double scale = letterScale * textHeight * 1000 * view.scale;
    const wxString shown = ToWx(characters);
    double width = 0;
    double height = 0;
    double descent = 0;
    context.GetTextExtent(shown, &width, &height, &descent);
    context.PushState();
    context.Translate(view.X(text.at.east), view.Y(text.at.north));
    context.Rotate(-GradsToRadians(text.direction));
    context.Translate(0, -FrameOf(text).bottom * view.scale);
    context.Scale(scale, scale);
    context.DrawText(shown, -PartLeftOf(text) * width, descent - height);
    context.PopState();
}

}  // namespace korvande
