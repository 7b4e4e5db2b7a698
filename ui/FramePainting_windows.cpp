#include <wx/msw/wrapwin.h>
// Behind the header above.
#include <wx/dcclient.h>
#include <wx/region.h>
#include <wx/settings.h>
#include <wx/statbox.h>

#include "ui/FramePainting.h"

namespace korvande {

namespace {

// From the frame's corner to its caption, and around the caption, in device-independent pixels.
constexpr int captionLeft = 8;
constexpr int captionRoom = 2;

// The controls in the frame paint themselves.
wxRegion WithoutControls(const wxStaticBox& frame) {
    wxRegion region(frame.GetClientRect());
    for (const wxWindow* const control : frame.GetChildren()) {
        if (control->IsShown()) region.Subtract(control->GetRect());
    }
    return region;
}

void Paint(wxStaticBox& frame) {
    wxPaintDC dc(&frame);
    dc.SetDeviceClippingRegion(WithoutControls(frame));
    // What the frame stands on, which need not be of one colour.
    const WXHDC device = dc.GetHDC();
    const WXHBRUSH ground = frame.MSWGetBgBrush(device);
    const auto fill = [&](const wxRect& place) {
        const RECT corners{place.GetLeft(), place.GetTop(), place.GetRight() + 1, place.GetBottom() + 1};
        ::FillRect(device, &corners,
                   ground != nullptr ? static_cast<HBRUSH>(ground) : ::GetSysColorBrush(COLOR_BTNFACE));
    };
    const wxRect whole = frame.GetClientRect();
    fill(whole);
    dc.SetFont(frame.GetFont());
    const wxString caption = frame.GetLabelText();
    const wxSize text = dc.GetTextExtent(caption);
    dc.SetPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(whole.x, whole.y + text.y / 2, whole.width, whole.height - text.y / 2);
    const int left = frame.FromDIP(captionLeft);
    const int room = frame.FromDIP(captionRoom);
    fill(wxRect(left - room, 0, text.x + 2 * room, text.y));
    dc.SetTextForeground(
        wxSystemSettings::GetColour(frame.IsEnabled() ? wxSYS_COLOUR_WINDOWTEXT : wxSYS_COLOUR_GRAYTEXT));
    dc.DrawText(caption, left, 0);
}

}  // namespace

void PaintWhole(wxStaticBox& frame) {
    frame.Bind(wxEVT_PAINT, [&frame](wxPaintEvent&) { Paint(frame); });
    // Its lines would stay where they were.
    frame.Bind(wxEVT_SIZE, [&frame](wxSizeEvent& event) {
        event.Skip();
        frame.Refresh();
    });
}

}  // namespace korvande
