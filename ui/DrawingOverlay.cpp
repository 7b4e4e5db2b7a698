#include "ui/DrawingOverlay.h"

#include <wx/brush.h>
#include <wx/pen.h>
#include <wx/settings.h>

#include <algorithm>

#include "picture/ScaleBar.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

wxColour ToColour(Colour colour) {
    constexpr Colour byte = 0xFF;
    return {static_cast<unsigned char>(colour >> 16 & byte), static_cast<unsigned char>(colour >> 8 & byte),
            static_cast<unsigned char>(colour & byte)};
}

void PaintOutline(wxGraphicsContext& context, const Outline& outline, const PictureView& view,
                  const OverlayLook& look) {
    constexpr double width = 3;
    constexpr double radius = 8;
    context.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), static_cast<int>(width * look.unit)));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    wxGraphicsPath path = context.CreatePath();
    // Places far outside the window are no pixels any more.
    const double far = 20.0 * (view.width + view.height);
    const auto x = [&](const Position& place) { return std::clamp(view.X(place.east), -far, far); };
    const auto y = [&](const Position& place) { return std::clamp(view.Y(place.north), -far, far); };
    for (const std::vector<Position>& line : outline) {
        if (line.size() == 1) path.AddCircle(x(line.front()), y(line.front()), radius * look.unit);
        if (line.size() > 1) path.MoveToPoint(x(line.front()), y(line.front()));
        for (std::size_t i = 1; i < line.size(); ++i) path.AddLineToPoint(x(line[i]), y(line[i]));
    }
    context.StrokePath(path);
}

void PaintScaleBar(wxGraphicsContext& context, const PictureView& view, const OverlayLook& look) {
    constexpr double longest = 160;
    constexpr double ends = 5;
    constexpr unsigned char nearlyWhole = 200;
    const double space = narrowSpace * look.unit;
    const ScaleBar bar = ScaleBarOf(view.scale, longest * look.unit);
    const wxColour ink = ToColour(ShownColour(0, {look.drawing.isDark}));
    context.SetFont(context.CreateFont(look.font, ink));
    double width = 0;
    double height = 0;
    context.GetTextExtent(ToWx(bar.text), &width, &height);
    const double left = 2 * space;
    const double bottom = view.height - 2 * space;
    const double top = bottom - ends * look.unit - height;
    const wxColour paper = ToColour(PaperOf(look.drawing));
    context.SetBrush(wxBrush(wxColour(paper.Red(), paper.Green(), paper.Blue(), nearlyWhole)));
    context.SetPen(*wxTRANSPARENT_PEN);
    context.DrawRectangle(left - space, top - space / 2, std::max(bar.pixels, width) + 2 * space, bottom - top + space);
    context.DrawText(ToWx(bar.text), left, top);
    context.SetPen(wxPen(ink, std::max(1, static_cast<int>(look.unit))));
    wxGraphicsPath path = context.CreatePath();
    path.MoveToPoint(left, bottom - ends * look.unit);
    path.AddLineToPoint(left, bottom);
    path.AddLineToPoint(left + bar.pixels, bottom);
    path.AddLineToPoint(left + bar.pixels, bottom - ends * look.unit);
    context.StrokePath(path);
}

void PaintFocus(wxGraphicsContext& context, const PictureView& view, const OverlayLook& look) {
    const double arm = 7 * look.unit;
    context.SetPen(
        wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), std::max(1, static_cast<int>(look.unit))));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    context.DrawRectangle(0, 0, view.width - 1, view.height - 1);
    const double x = view.width / 2.0;
    const double y = view.height / 2.0;
    context.StrokeLine(x - arm, y, x + arm, y);
    context.StrokeLine(x, y - arm, x, y + arm);
}

}  // namespace korvande
