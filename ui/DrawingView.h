#pragma once

#include <wx/graphics.h>
#include <wx/window.h>

#include <functional>
#include <memory>
#include <optional>

#include "app/PreviewFrames.h"
#include "picture/Outline.h"

namespace korvande {

// Shows a drawing: the wheel zooms at the pointer, dragging moves it, and so do the keys. While it moves, the frame
// drawn last is shown moved and scaled, until the exact one is there.
class DrawingView : public wxWindow {
 public:
    explicit DrawingView(wxWindow* parent);

    // A click or the space bar, at what is seen there, within reach (millimetres of the drawing); a double click or
    // Enter, for going there; the pointer, or the middle after a key, or nothing when the pointer is elsewhere.
    std::function<void(PicturePlace place, double reach)> onPick = [](PicturePlace, double) {};
    std::function<void()> onGoTo = [] {};
    std::function<void(const std::optional<Position>&)> onPointer = [](const std::optional<Position>&) {};

    // The drawing must outlive it, or the next one that is shown. Marks lie over it.
    void ShowDrawing(std::vector<FrameSource> itsSources, std::shared_ptr<const FrameMarks> itsMarks);
    bool HasDrawing() const noexcept { return frames != nullptr; }

    void Hide(const std::vector<bool>& codes);
    void ShowMarks(std::shared_ptr<const FrameMarks> itsMarks);
    void Highlight(Outline outline);

    void ShowAll();
    bool ShowsAll() const noexcept { return isFitted; }
    void GoTo(const PictureBox& box);
    void BringIntoView(const PictureBox& box);
    void Zoom(double factor);

    const PictureView& View() const noexcept { return view; }
    void SetView(const PictureView& itsView);

    // Whether what is shown is the exact frame.
    bool IsExact() const { return frames == nullptr || (frames->IsIdle() && shown == view); }
    long PaintCount() const noexcept { return paints; }

 private:
    double Factor() const { return GetContentScaleFactor(); }
    PixelLook Look() const;
    void Ask();
    void TakeFrame();
    void OnPaint();
    void PaintFrame(wxGraphicsContext& context);
    void OnSize();
    void OnLeftDown(wxMouseEvent& event);
    void OnLeftUp(wxMouseEvent& event);
    void OnMotion(wxMouseEvent& event);
    void OnWheel(wxMouseEvent& event);
    void OnKey(wxKeyEvent& event);
    bool DoKey(int key, bool isShift);
    void Pick(double x, double y);
    void EndDrag();

    PictureView view;
    bool isFitted = true;  // shows everything, also in another size
    PictureBox extent;
    std::vector<FrameSource> sources;
    std::shared_ptr<const FrameMarks> marks;
    std::vector<bool> isHidden;
    Outline highlight;
    PictureView shown;  // of the frame
    wxGraphicsBitmap frame;
    long paints = 0;
    std::optional<wxPoint> dragged;  // where the pointer was last
    bool hasMoved = false;
    std::unique_ptr<PreviewFrames> frames;
};

}  // namespace korvande
