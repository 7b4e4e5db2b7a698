#pragma once

#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/print.h>
#include <wx/weakref.h>

#include <cstdint>

#include "core/modScreen.h"
#include "ui/LogBookWindow.h"

namespace korvande {

struct FormKORVANDE;

// The screen of the window: status bar, progress gauge, message boxes, the text viewer and the printer. Without a
// window (as start-up runs) only the message boxes are shown.
class WindowScreen : public Screen {
 public:
    void Attach(wxFrame* itsFrame, wxGauge* itsGauge, const FormKORVANDE* itsForm);
    void Detach();

    // Where and how the listing is printed; as it stands, on the default printer.
    wxPrintData printData;

    void ShowStatus(TextView text) override;
    void ShowProgressMaximum(std::int64_t newMaximum) override;
    void ShowProgressValue(std::int64_t value) override;
    void PumpEvents() override;
    void ShowBusy(bool busy) override;
    Answer ShowMessage(const MessageBox& box) override;

    // A log book, in a window of the program's own or in the viewer, as the form's user chose.
    bool ViewTextFile(TextView name) override;
    bool Print(const MakePages& makePages) override;

    // Has an open window of a log book show that of the form's last run.
    void FollowRuns();

 private:
    wxFrame* frame = nullptr;
    wxGauge* gauge = nullptr;
    const FormKORVANDE* form = nullptr;  // whose run ends while events run, when that was asked
    std::int64_t maximum = 1;
    wxWeakRef<LogBookWindow> logBook;
};

}  // namespace korvande
