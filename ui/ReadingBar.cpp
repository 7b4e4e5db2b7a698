#include "ui/ReadingBar.h"

#include <wx/sizer.h>

#include <algorithm>
#include <cmath>

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr int gaugeRange = 1000;

}  // namespace

ReadingBar::ReadingBar(wxWindow* parent)
    : wxPanel(parent),
      label(MakeLabel(this, u"Bezig met lezen...", "lblReading")),
      gauge(new wxGauge(this, wxID_ANY, gaugeRange)),
      stop(MakeButton(this, "cmdStopReading", u"Stop", u"Breekt het lezen af (Esc)")) {
    SetName("framReading");
    gauge->SetName("gaugeReading");
    stop->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onStop(); });
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    const int narrow = FromDIP(narrowSpace);
    row->Add(label, InRow(1).Border(wxALL, narrow));
    row->Add(gauge, InRow(1).Border(wxALL, narrow));
    row->Add(stop, InRow().Border(wxALL, narrow));
    SetSizer(row);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        if (!notice.empty() && GetClientSize().x != wrapped) CallAfter([this] { Wrap(); });
    });
}

void ReadingBar::ShowProgress(TextView text, double part) {
    if (!IsShown() || !gauge->IsShown()) Present(true);
    // What changes nothing is not painted.
    if (label->GetLabelText() != ToWx(text)) label->SetLabelText(ToWx(text));
    gauge->SetValue(static_cast<int>(std::lround(part * gaugeRange)));
}

void ReadingBar::ShowNotice(TextView text) {
    notice = text;
    if (!text.empty()) return Present(false);
    Hide();
    LayOutParent();
}

void ReadingBar::Present(bool isReading) {
    if (isReading) notice.clear();
    gauge->Show(isReading);
    stop->Show(isReading);
    label->SetForegroundColour(isReading ? wxNullColour : WarningColour());
    Show();
    LayOutParent();
    Wrap();
}

// Long lines go on below.
void ReadingBar::Wrap() {
    if (notice.empty()) return;
    constexpr int least = 100;
    wrapped = GetClientSize().x;
    label->SetLabelText(ToWx(notice));
    label->Wrap(std::max(wrapped - 2 * FromDIP(narrowSpace), FromDIP(least)));
    LayOutParent();
}

void ReadingBar::LayOutParent() {
    InvalidateBestSize();
    Layout();
    GetParent()->FitInside();
    GetParent()->Layout();
    // Where something stood before.
    GetParent()->Refresh();
}

}  // namespace korvande
