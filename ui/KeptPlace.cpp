#include "ui/KeptPlace.h"

#include <wx/display.h>

#include <optional>
#include <vector>

#include "app/Remembered.h"
#include "ui/Controls.h"

namespace korvande {

namespace {

// What a window manager puts around a window at most, in device-independent pixels.
constexpr int frameRoom = 16;
constexpr int captionRoom = 40;

ScreenArea AreaOf(const wxRect& rect) { return {rect.x, rect.y, rect.width, rect.height}; }

std::vector<ScreenArea> Screens() {
    std::vector<ScreenArea> screens;
    for (unsigned i = 0; i < wxDisplay::GetCount(); ++i) screens.push_back(AreaOf(wxDisplay(i).GetClientArea()));
    return screens;
}

}  // namespace

void FitDisplay(wxTopLevelWindow& window) {
    wxSize room = wxDisplay(&window).GetClientArea().GetSize();
    room.DecBy(window.FromDIP(wxSize(frameRoom, captionRoom)));
    wxSize size = window.GetSize();
    size.DecTo(room);
    if (size != window.GetSize()) window.SetSize(size);
}

wxScrolledWindow* MakeContent(wxWindow* parent) {
    auto* const content = new wxScrolledWindow(parent);
    content->SetScrollRate(content->FromDIP(wideSpace), content->FromDIP(wideSpace));
    return content;
}

void FitContent(wxTopLevelWindow& window, const wxScrolledWindow& content, wxSize usual) {
    wxSize size = window.FromDIP(usual);
    size.IncTo(content.GetSizer()->CalcMin());
    window.SetClientSize(size);
    FitDisplay(window);
    wxSize least = content.GetSizer()->CalcMin();
    least.DecTo(window.GetClientSize());
    window.SetMinClientSize(least);
}

KeptPlace::KeptPlace(wxTopLevelWindow& itsWindow, TextView itsName) : window(itsWindow), name(itsName) {
    place.area = AreaOf(window.GetRect());
    Restore();
    window.Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
        event.Skip();
        if (event.IsShown()) Insist();
    });
    window.Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        Look();
    });
}

// A size is kept as it is at 96 dots to an inch, for the screens may be others the next time.
void KeptPlace::Restore() {
    std::optional<WindowPlace> kept = PlaceFromText(Remembered(name));
    if (!kept) return;
    const wxSize size = window.FromDIP(wxSize(kept->area.width, kept->area.height));
    kept->area.width = size.x;
    kept->area.height = size.y;
    const std::optional<WindowPlace> shown = PlaceInSight(*kept, Screens());
    if (!shown) return;
    place = *shown;
    const ScreenArea& area = place.area;
    window.SetSize(area.left, area.top, area.width, area.height);
    if (place.isMaximised) window.Maximize();
}

// What a window was told before it came onto the screen, a window manager may not have heard; and the toolkit asks
// nothing that it believes to be so already.
void KeptPlace::Insist() {
    if (place.isMaximised) return;
    const wxPoint wanted(place.area.left, place.area.top);
    window.Move(wanted + wxPoint(1, 0));
    window.Move(wanted);
}

// When nothing happens any more, a window is what it has become. As an icon it has no place.
void KeptPlace::Look() {
    if (!window.IsShown() || window.IsIconized()) return;
    place.isMaximised = window.IsMaximized();
    if (!place.isMaximised) place.area = AreaOf(window.GetRect());
}

void KeptPlace::Keep() {
    Look();
    WindowPlace kept = place;
    const wxSize size = window.ToDIP(wxSize(kept.area.width, kept.area.height));
    kept.area.width = size.x;
    kept.area.height = size.y;
    Remember(name, TextOfPlace(kept));
}

}  // namespace korvande
