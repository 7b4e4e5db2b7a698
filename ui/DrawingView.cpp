#include "ui/DrawingView.h"

#include <wx/dcbuffer.h>
#include <wx/image.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "picture/ScaleBar.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// All of these in device-independent pixels.
constexpr int clickReach = 6;
constexpr int dragReach = 3;
constexpr int barLength = 160;
constexpr int barHeight = 5;

constexpr double keyZoom = 1.25;
constexpr double leastExtent = 2000;  // millimetres, of what an object is shown with

wxColour ToColour(Colour colour) {
    constexpr Colour byte = 0xFF;
    return {static_cast<unsigned char>(colour >> 16 & byte), static_cast<unsigned char>(colour >> 8 & byte),
            static_cast<unsigned char>(colour & byte)};
}

wxImage ToImage(const Pixels& pixels) {
    wxImage image(pixels.width, pixels.height, false);
    unsigned char* byte = image.GetData();
    for (const Colour colour : pixels.values) {
        *byte++ = static_cast<unsigned char>(colour >> 16);
        *byte++ = static_cast<unsigned char>(colour >> 8);
        *byte++ = static_cast<unsigned char>(colour);
    }
    return image;
}

}  // namespace

DrawingView::DrawingView(wxWindow* parent) {
    // A style of the background is to be set before there is a window.
    wxWindow::SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE);
    SetName("drawing");
    SetCursor(wxCursor(wxCURSOR_CROSS));
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { OnPaint(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        OnSize();
    });
    Bind(wxEVT_LEFT_DOWN, &DrawingView::OnLeftDown, this);
    Bind(wxEVT_LEFT_UP, &DrawingView::OnLeftUp, this);
    Bind(wxEVT_MOTION, &DrawingView::OnMotion, this);
    Bind(wxEVT_MOUSEWHEEL, &DrawingView::OnWheel, this);
    Bind(wxEVT_KEY_DOWN, &DrawingView::OnKey, this);
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent& event) {
        Pick(event.GetX() * Factor(), event.GetY() * Factor());
        onGoTo();
    });
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent&) { onPointer({}); });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { dragged.reset(); });
    for (const auto& focus : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
        Bind(focus, [this](wxFocusEvent& event) {
            event.Skip();
            Refresh(false);
        });
    }
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        Ask();
    });
}

void DrawingView::ShowDrawing(std::vector<FrameSource> itsSources, std::shared_ptr<const FrameMarks> itsMarks) {
    // The frames of the drawing before, before that.
    frames.reset();
    sources = std::move(itsSources);
    marks = std::move(itsMarks);
    isHidden.clear();
    highlight.clear();
    frame = wxGraphicsBitmap();
    extent = ExtentOf(sources);
    frames = std::make_unique<PreviewFrames>(sources, [this] { CallAfter([this] { TakeFrame(); }); });
    ShowAll();
}

void DrawingView::Hide(const std::vector<bool>& codes) {
    isHidden = codes;
    Ask();
}

void DrawingView::ShowMarks(std::shared_ptr<const FrameMarks> itsMarks) {
    marks = std::move(itsMarks);
    Ask();
}

void DrawingView::Highlight(Outline outline) {
    highlight = std::move(outline);
    Refresh(false);
}

void DrawingView::ShowAll() {
    SetView(Fitting(view, extent, leastExtent));
    isFitted = true;
}

void DrawingView::GoTo(const PictureBox& box) {
    constexpr double room = 2;
    const PictureView fitting = Fitting(view, box, leastExtent * room);
    SetView(Zoomed(fitting, 1 / room, view.width / 2.0, view.height / 2.0));
}

// As it is when it is seen well already.
void DrawingView::BringIntoView(const PictureBox& box) {
    const PictureBox seen = FrameOf(view).box;
    const bool isSeen = seen.minEast <= box.minEast && seen.minNorth <= box.minNorth && seen.maxEast >= box.maxEast &&
                        seen.maxNorth >= box.maxNorth;
    if (!isSeen) GoTo(box);
}

void DrawingView::Zoom(double factor) { SetView(Zoomed(view, factor, view.width / 2.0, view.height / 2.0)); }

void DrawingView::SetView(const PictureView& itsView) {
    view = itsView;
    isFitted = false;
    Ask();
    Refresh(false);
}

PixelLook DrawingView::Look() const {
    constexpr double lineWidth = 1.25;
    return {wxSystemSettings::GetAppearance().IsDark(), !(marks == nullptr),
            lineWidth * std::max(Factor(), GetDPIScaleFactor())};
}

void DrawingView::Ask() {
    if (frames != nullptr && view.width > 1) frames->Ask({view, Look(), isHidden, marks});
}

void DrawingView::TakeFrame() {
    if (frames == nullptr) return;
    const std::optional<FramePixels> made = frames->Take();
    if (!made) return;
    frame = wxGraphicsRenderer::GetDefaultRenderer()->CreateBitmapFromImage(ToImage(made->pixels));
    shown = made->view;
    Refresh(false);
}

void DrawingView::OnPaint() {
    ++paints;
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(wxBrush(ToColour(PaperOf(Look()))));
    dc.Clear();
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
    if (context == nullptr || frames == nullptr) return;
    // Everything is in the pixels of the screen.
    context->Scale(1 / Factor(), 1 / Factor());
    PaintFrame(*context);
    PaintHighlight(*context);
    PaintScaleBar(*context);
    if (HasFocus()) PaintFocus(*context);
}

void DrawingView::PaintFrame(wxGraphicsContext& context) {
    if (frame.IsNull()) return;
    const ShownAs place = ShownIn(shown, view);
    context.SetInterpolationQuality(wxINTERPOLATION_FAST);
    context.DrawBitmap(frame, place.left, place.top, shown.width * place.times, shown.height * place.times);
}

void DrawingView::PaintHighlight(wxGraphicsContext& context) {
    constexpr double width = 3;
    constexpr double radius = 8;
    const double unit = std::max(Factor(), GetDPIScaleFactor());
    context.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), static_cast<int>(width * unit)));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    wxGraphicsPath path = context.CreatePath();
    // Places far outside the window are no pixels any more.
    const double far = 20.0 * (view.width + view.height);
    const auto x = [&](const Position& place) { return std::clamp(view.X(place.east), -far, far); };
    const auto y = [&](const Position& place) { return std::clamp(view.Y(place.north), -far, far); };
    for (const std::vector<Position>& line : highlight) {
        if (line.size() == 1) path.AddCircle(x(line.front()), y(line.front()), radius * unit);
        if (line.size() > 1) path.MoveToPoint(x(line.front()), y(line.front()));
        for (std::size_t i = 1; i < line.size(); ++i) path.AddLineToPoint(x(line[i]), y(line[i]));
    }
    context.StrokePath(path);
}

// In a corner, on paper of its own.
void DrawingView::PaintScaleBar(wxGraphicsContext& context) {
    const double unit = std::max(Factor(), GetDPIScaleFactor());
    const double space = narrowSpace * unit;
    const ScaleBar bar = ScaleBarOf(view.scale, barLength * unit);
    const Colour ink = ShownColour(0, {Look().isDark});
    context.SetFont(context.CreateFont(GetFont().Scaled(static_cast<float>(Factor())), ToColour(ink)));
    double width = 0;
    double height = 0;
    context.GetTextExtent(ToWx(bar.text), &width, &height);
    const double left = 2 * space;
    const double bottom = view.height - 2 * space;
    const double top = bottom - barHeight * unit - height;
    wxColour paper = ToColour(PaperOf(Look()));
    context.SetBrush(wxBrush(wxColour(paper.Red(), paper.Green(), paper.Blue(), 200)));
    context.SetPen(*wxTRANSPARENT_PEN);
    context.DrawRectangle(left - space, top - space / 2, std::max(bar.pixels, width) + 2 * space, bottom - top + space);
    context.DrawText(ToWx(bar.text), left, top);
    context.SetPen(wxPen(ToColour(ink), std::max(1, static_cast<int>(unit))));
    wxGraphicsPath path = context.CreatePath();
    path.MoveToPoint(left, bottom - barHeight * unit);
    path.AddLineToPoint(left, bottom);
    path.AddLineToPoint(left + bar.pixels, bottom);
    path.AddLineToPoint(left + bar.pixels, bottom - barHeight * unit);
    context.StrokePath(path);
}

// A frame, and a cross where the space bar picks.
void DrawingView::PaintFocus(wxGraphicsContext& context) {
    constexpr double arm = 7;
    const double unit = std::max(Factor(), GetDPIScaleFactor());
    context.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), std::max(1, static_cast<int>(unit))));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    context.DrawRectangle(0, 0, view.width - 1, view.height - 1);
    const double x = view.width / 2.0;
    const double y = view.height / 2.0;
    context.StrokeLine(x - arm * unit, y, x + arm * unit, y);
    context.StrokeLine(x, y - arm * unit, x, y + arm * unit);
}

void DrawingView::OnSize() {
    const wxSize size = GetClientSize();
    const auto pixels = [this](int logical) { return static_cast<int>(std::lround(logical * Factor())); };
    view = Resized(view, pixels(size.x), pixels(size.y));
    if (isFitted) return ShowAll();
    Ask();
}

void DrawingView::OnLeftDown(wxMouseEvent& event) {
    SetFocus();
    if (!HasCapture()) CaptureMouse();
    dragged = event.GetPosition();
    hasMoved = false;
}

void DrawingView::OnLeftUp(wxMouseEvent& event) {
    const bool isClick = dragged && !hasMoved;
    EndDrag();
    if (isClick) Pick(event.GetX() * Factor(), event.GetY() * Factor());
}

void DrawingView::EndDrag() {
    dragged.reset();
    if (HasCapture()) ReleaseMouse();
}

void DrawingView::OnMotion(wxMouseEvent& event) {
    const wxPoint at = event.GetPosition();
    if (dragged && event.LeftIsDown()) {
        const wxPoint by = at - *dragged;
        hasMoved = hasMoved || std::max(std::abs(by.x), std::abs(by.y)) > FromDIP(dragReach);
        if (hasMoved) {
            dragged = at;
            SetView(Moved(view, by.x * Factor(), by.y * Factor()));
        }
    }
    onPointer(view.At(at.x * Factor(), at.y * Factor()));
}

void DrawingView::OnWheel(wxMouseEvent& event) {
    if (event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL || event.GetWheelDelta() == 0) return;
    const double notches = static_cast<double>(event.GetWheelRotation()) / event.GetWheelDelta();
    SetView(Zoomed(view, std::pow(keyZoom, notches), event.GetX() * Factor(), event.GetY() * Factor()));
}

void DrawingView::OnKey(wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_TAB) {
        Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
    } else if (event.ControlDown() || event.AltDown() || !DoKey(event.GetKeyCode(), event.ShiftDown())) {
        event.Skip();
    }
}

bool DrawingView::DoKey(int key, bool isShift) {
    const double step = isShift ? 0.5 : 0.125;  // of the window
    switch (key) {
        case WXK_LEFT:
        case WXK_NUMPAD_LEFT:
            SetView(Moved(view, view.width * step, 0));
            return true;
        case WXK_RIGHT:
        case WXK_NUMPAD_RIGHT:
            SetView(Moved(view, -view.width * step, 0));
            return true;
        case WXK_UP:
        case WXK_NUMPAD_UP:
            SetView(Moved(view, 0, view.height * step));
            return true;
        case WXK_DOWN:
        case WXK_NUMPAD_DOWN:
            SetView(Moved(view, 0, -view.height * step));
            return true;
        case '+':
        case '=':
        case WXK_NUMPAD_ADD:
        case WXK_PAGEUP:
            Zoom(keyZoom);
            return true;
        case '-':
        case WXK_NUMPAD_SUBTRACT:
        case WXK_PAGEDOWN:
            Zoom(1 / keyZoom);
            return true;
        case WXK_HOME:
        case WXK_NUMPAD_HOME:
            ShowAll();
            return true;
        case WXK_SPACE:
            Pick(view.width / 2.0, view.height / 2.0);
            return true;
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            onGoTo();
            return true;
        default:
            return false;
    }
}

void DrawingView::Pick(double x, double y) {
    const double reach = FromDIP(clickReach) * Factor() / view.scale;
    onPick(PlaceAt(view.At(x, y)), reach);
}

}  // namespace korvande
