#include "ui/WindowScreen.h"

#include <wx/app.h>
#include <wx/msgdlg.h>
#include <wx/utils.h>

#include <algorithm>

#include "app/RunTranslation.h"
#include "ui/Printing.h"
#include "ui/Viewer.h"
#include "ui/WxText.h"

// Windows has a macro of this name.
#undef MessageBox

namespace korvande {

namespace {

long IconStyle(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return wxICON_INFORMATION;
        case Icon::Question:
            return wxICON_QUESTION;
        case Icon::Critical:
            return wxICON_ERROR;
        case Icon::None:
            break;
    }
    return wxICON_NONE;
}

long ButtonStyle(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
        case Buttons::RetryCancel:
            return wxOK | wxCANCEL;
        case Buttons::YesNoCancel:
            return wxYES_NO | wxCANCEL;
        case Buttons::Ok:
            break;
    }
    return wxOK;
}

void LabelButtons(wxMessageDialog& dialog, Buttons buttons) {
    const wxString cancel = ToWx(u"&Annuleren");
    switch (buttons) {
        case Buttons::Ok:
            dialog.SetOKLabel(ToWx(u"&OK"));
            break;
        case Buttons::OkCancel:
            dialog.SetOKCancelLabels(ToWx(u"&OK"), cancel);
            break;
        case Buttons::RetryCancel:
            dialog.SetOKCancelLabels(ToWx(u"Op&nieuw"), cancel);
            break;
        case Buttons::YesNoCancel:
            dialog.SetYesNoCancelLabels(ToWx(u"&Ja"), ToWx(u"&Nee"), cancel);
            break;
    }
}

Answer AnswerOf(int button, Buttons buttons) {
    switch (button) {
        case wxID_YES:
            return Answer::Yes;
        case wxID_NO:
            return Answer::No;
        case wxID_OK:
            return buttons == Buttons::RetryCancel ? Answer::Retry : Answer::Ok;
        default:
            return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
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
    const wxString title = ToWx(box.title.empty() ? TextView(u"KORVANDE") : TextView(box.title));
    wxMessageDialog dialog(frame, ToWx(box.text), title, ButtonStyle(box.buttons) | IconStyle(box.icon) | wxCENTRE);
    LabelButtons(dialog, box.buttons);
    return AnswerOf(dialog.ShowModal(), box.buttons);
}

bool WindowScreen::ViewTextFile(TextView name) { return StartViewer(name); }

bool WindowScreen::Print(const MakePages& makePages) { return PrintPages(frame, printData, makePages); }

}  // namespace korvande
