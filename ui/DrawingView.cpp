#include "ui/DrawingView.h"

#include <wx/dcbuffer.h>
#include <wx/image.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "ui/DrawingOverlay.h"

namespace korvande {

namespace {

// In device-independent pixels.
constexpr int clickReach = 6;
constexpr int dragReach = 3;

constexpr double keyZoom = 1.25;
constexpr double leastExtent = 2000;  // millimetres, of what an object is shown with

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
    if (!FrameOf(view).box.Holds(box)) GoTo(box);
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

// Everything is in the pixels of the screen. Letters are the window's own: those of the graphics need fonts that not
// every system has.
void DrawingView::OnPaint() {
    ++paints;
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(wxBrush(ToColour(PaperOf(Look()))));
    dc.Clear();
    if (frames == nullptr) return;
    const OverlayLook look{Look(), std::max(Factor(), GetDPIScaleFactor()),
                           GetFont().Scaled(static_cast<float>(Factor()))};
    if (const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc)); context != nullptr) {
        context->Scale(1 / Factor(), 1 / Factor());
        PaintFrame(*context);
        PaintOutline(*context, highlight, view, look);
        if (HasFocus()) PaintFocus(*context, view, look);
    }
    dc.SetUserScale(1 / Factor(), 1 / Factor());
    PaintScaleBar(dc, view, look);
}

void DrawingView::PaintFrame(wxGraphicsContext& context) {
    if (frame.IsNull()) return;
    const ShownAs place = ShownIn(shown, view);
    context.SetInterpolationQuality(wxINTERPOLATION_FAST);
    context.DrawBitmap(frame, place.left, place.top, shown.width * place.times, shown.height * place.times);
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
    } else {
        // Where the cross is.
        onPointer(view.At(view.width / 2.0, view.height / 2.0));
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
