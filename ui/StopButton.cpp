#include "ui/StopButton.h"

#include "app/RunActivity.h"
#include "app/frmKORVANDE.h"
#include "ui/WxText.h"

namespace korvande {

StopButton::StopButton(wxStatusBar* bar, FormKORVANDE& itsForm)
    : wxButton(bar, wxID_ANY, ToWx(u"Stop"), wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT), form(itsForm) {
    SetName("cmdStop");
    SetToolTip(ToWx(u"Breekt de vertaling of de controle af; het uitvoerbestand blijft zoals het was (Esc)"));
    Hide();
    Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Stop(); });
    wxGetTopLevelParent(bar)->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const bool stops = event.GetKeyCode() == WXK_ESCAPE && !event.HasAnyModifiers() && IsRunning(form);
        if (stops) {
            Stop();
        } else {
            event.Skip();
        }
    });
}

bool StopButton::ShowForm() {
    const bool isRunning = IsRunning(form);
    Enable(isRunning && !IsStopAsked(form));
    return Show(isRunning) && isRunning;
}

void StopButton::Stop() {
    StopRun(form);
    Disable();
}

}  // namespace korvande
