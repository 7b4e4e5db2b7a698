#pragma once

#include <wx/frame.h>
#include <wx/scrolwin.h>
#include <wx/splitter.h>
#include <wx/timer.h>

#include <functional>
#include <memory>
#include <optional>

#include "app/PreviewCodes.h"
#include "app/PreviewDifferences.h"
#include "app/ReadPreview.h"
#include "app/UnknownCodes.h"
#include "ui/DrawingView.h"
#include "ui/KeptPlace.h"
#include "ui/PreviewOutput.h"
#include "ui/PreviewSide.h"
#include "ui/ReadingBar.h"

namespace korvande {

// Shows a drawing with its codes, or the output of a translation over its input with what differs. It can stay open
// beside the main window; the drawing is read on a thread of its own.
class PreviewWindow : public wxFrame {
 public:
    PreviewWindow(wxWindow* parent, FormKORVANDE& itsForm, PreviewOrder itsOrder);
    PreviewWindow(const PreviewWindow&) = delete;
    PreviewWindow& operator=(const PreviewWindow&) = delete;
    ~PreviewWindow() override;

    // Called when a person wants to add unknown codes; `look` shows the first object of one in the drawing. Whether
    // the tables know some of them now.
    using Look = std::function<void(const UnknownCode&)>;
    std::function<bool(const UnknownCodes& unknown, const Look& look)> onUnknownCodes =
        [](const UnknownCodes&, const Look&) { return false; };

    // Where and how the drawing is printed.
    PrintSettings printing;

    bool IsReading() const noexcept { return reading != nullptr; }
    const Preview* Shown() const noexcept { return preview.get(); }  // null until it is read
    DrawingView& View() noexcept { return *view; }
    const PreviewCodes& Codes() const noexcept { return codes; }

 private:
    int WidthOfSide() const;
    wxSizer* MakeButtons();
    void Add(wxSizer* row, const char* name, TextView caption, TextView tip, std::function<void()> action);
    void BindEvents();
    void BindSide();
    void OnClose(wxCloseEvent& event);
    void BeginReading();
    void StopReading();
    void LookAtReading();
    void ShowRead(std::unique_ptr<Preview> read);
    void ShowCodes(bool isAgain);
    std::shared_ptr<const FrameMarks> ShowDifferences();
    void Pick(PicturePlace at, double reach);
    void Select(const std::optional<PictureRef>& ref);
    void SelectDifference(std::size_t row);
    void GoToSelection();
    void GoToNext(bool isForward);
    void OnKey(wxKeyEvent& event);
    bool OnCommandKey(int key);
    void EnableButtons();
    SeenPreview Seen() const;
    void SaveAs();
    void Print();
    bool IsBusyElsewhere();
    void AddUnknownCodes();
    void LookAt(const UnknownCode& code);
    void ReadAgain();

    FormKORVANDE& form;
    PreviewOrder order;
    std::unique_ptr<PreviewReading> reading;
    bool isClosing = false;  // as soon as the reading has stopped
    std::unique_ptr<Preview> preview;
    PreviewCodes codes;
    PreviewDifferences differences;
    FrameMarks marks;  // for each difference
    std::optional<PictureRef> selected;
    std::optional<std::size_t> selectedDifference;  // its row
    wxScrolledWindow* content;
    ReadingBar* progress;
    wxSplitterWindow* splitter;
    PreviewSide* side;
    DrawingView* view;
    wxTimer timer;
    std::unique_ptr<KeptPlace> place;
};

}  // namespace korvande
