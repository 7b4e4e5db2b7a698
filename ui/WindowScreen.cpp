#include "ui/WindowScreen.h"

#include <wx/app.h>
#include <wx/utils.h>

#include <algorithm>

#include "app/LogBookView.h"
#include "app/RunActivity.h"
#include "ui/MessageDialog.h"
#include "ui/Printing.h"
#include "ui/Viewer.h"
#include "ui/WxText.h"

// Windows has a macro of this name.
#undef MessageBox

namespace korvande {

namespace {

Answer AnswerOf(int button, Buttons buttons) {
    switch (button) {
        case wxID_YES:
            return Answer::Yes;
        case wxID_NO:
            return Answer::No;
        case wxID_OK:
            return buttons == Buttons::RetryCancel ? Answer::Retry : Answer::Ok;
        default:
            break;
    }
    switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::YesNo:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

}  // namespace

void WindowScreen::Attach(wxFrame* itsFrame, wxGauge* itsGauge, const FormKORVANDE* itsForm) {
    frame = itsFrame;
    gauge = itsGauge;
    form = itsForm;
}

void WindowScreen::Detach() { Attach(nullptr, nullptr, nullptr); }

void WindowScreen::ShowStatus(TextView text) {
    if (frame != nullptr) frame->SetStatusText(ToWx(text));
}

void WindowScreen::ShowProgressMaximum(std::int64_t newMaximum) {
    maximum = std::max<std::int64_t>(newMaximum, 1);
    ShowProgressValue(0);
}

void WindowScreen::ShowProgressValue(std::int64_t value) {
    if (gauge == nullptr) return;
    const double share =
        static_cast<double>(std::clamp<std::int64_t>(value, 0, maximum)) / static_cast<double>(maximum);
    gauge->SetValue(wxRound(share * gauge->GetRange()));
}

void WindowScreen::PumpEvents() {
    // Not again while events are being let run already: then they are.
    wxTheApp->Yield(true);
    if (form != nullptr) EndRunIfAsked(*form);
}

void WindowScreen::ShowBusy(bool busy) {
    if (busy) {
        wxBeginBusyCursor();
    } else if (wxIsBusy()) {
        wxEndBusyCursor();
    }
}

Answer WindowScreen::ShowMessage(const MessageBox& box) {
    const TextView title = box.title.empty() ? TextView(u"KORVANDE") : TextView(box.title);
    MessageDialog dialog(frame, box.text, title, box.icon, box.buttons);
    return AnswerOf(dialog.ShowModal(), box.buttons);
}

bool WindowScreen::ViewTextFile(TextView name) {
    if (form == nullptr || !ShowsLogBookItself(*form)) return StartViewer(name);
    const bool isNew = logBook == nullptr;
    if (isNew) logBook = new LogBookWindow(frame, *form);
    if (!logBook->Open(Text(name))) {
        if (isNew) delete logBook;
        return false;
    }
    logBook->BringToFront();
    return true;
}

void WindowScreen::FollowRuns() {
    if (logBook != nullptr) logBook->FollowRuns();
}

bool WindowScreen::Print(const MakePages& makePages) { return PrintPages(frame, printData, makePages); }

}  // namespace korvande
