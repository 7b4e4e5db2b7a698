#include "ui/DrawingOverlay.h"

#include <wx/brush.h>
#include <wx/pen.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>

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

void PaintScaleBar(wxDC& dc, const PictureView& view, const OverlayLook& look) {
    constexpr int longest = 160;
    constexpr int ends = 5;
    const auto pixels = [&look](double independent) { return static_cast<int>(std::lround(independent * look.unit)); };
    const int space = pixels(narrowSpace);
    const ScaleBar bar = ScaleBarOf(view.scale, longest * look.unit);
    const wxString text = ToWx(bar.text);
    dc.SetFont(look.font);
    const wxSize size = dc.GetTextExtent(text);
    const int width = static_cast<int>(std::lround(bar.pixels));
    const int left = 2 * space;
    const int bottom = view.height - 2 * space;
    const int top = bottom - pixels(ends) - size.y;
    dc.SetBrush(wxBrush(ToColour(PaperOf(look.drawing))));
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.DrawRectangle(left - space, top - space / 2, std::max(width, size.x) + 2 * space, bottom - top + space);
    const wxColour ink = ToColour(ShownColour(0, {look.drawing.isDark}));
    dc.SetTextForeground(ink);
    dc.DrawText(text, left, top);
    dc.SetPen(wxPen(ink, std::max(1, static_cast<int>(look.unit))));
    dc.DrawLine(left, bottom - pixels(ends), left, bottom);
    dc.DrawLine(left, bottom, left + width, bottom);
    dc.DrawLine(left + width, bottom - pixels(ends), left + width, bottom + 1);
}

void PaintFocus(wxGraphicsContext& context, const PictureView& view, const OverlayLook& look) {
    const double arm = 7 * look.unit;
    context.SetPen(
        wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), std::max(1, static_cast<int>(look.unit))));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    context.DrawRectangle(look.unit / 2, look.unit / 2, view.width - 2 * look.unit, view.height - 2 * look.unit);
    const double x = view.width / 2.0;
    const double y = view.height / 2.0;
    context.StrokeLine(x - arm, y, x + arm, y);
    context.StrokeLine(x, y - arm, x, y + arm);
}

}  // namespace korvande
