#include "ui/StartRow.h"

#include <algorithm>

#include "app/TabPlacement.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr char frameName[] = "framStart";

// From the top of the frame to the top of the button, in device-independent pixels.
constexpr int captionHeight = 26;

// In twips. The list fits between its place and the button's on every tab.
constexpr int listWidth = 2850;
constexpr int buttonWidth = 2400;

// The list stands somewhat below the button's top; the button reaches as far below the list.
int ButtonHeight(const wxChoice& list) {
    const StartPlacement place = StartPlacementOn(tabGeneral, true);
    return list.GetBestSize().y + 2 * PixelsOf(list, place.listTop - place.buttonTop);
}

}  // namespace

StartRow::StartRow(wxWindow* general, wxWindow* settings)
    : generalPage(general),
      settingsPage(settings),
      label(MakeLabel(general, u"Soort &vertaling:", "lblXlateMode")),
      modes(new wxChoice(general, wxID_ANY)),
      start(MakeButton(general, "cmdStart", u"&Start Vertaling",
                       u"Bewaart het project en vertaalt het invoerbestand met de instellingen van dit project")) {
    modes->SetName("cboXlateMode");
    modes->SetToolTip(ToWx(u"Van welk formaat naar welk formaat wordt vertaald"));
    start->SetFont(start->GetFont().Bold());
    const int frameHeight = start->FromDIP(captionHeight + wideSpace) + ButtonHeight(*modes);
    for (wxWindow* const page : {generalPage, settingsPage}) {
        page->FindWindow(frameName)->SetMinSize(wxSize(-1, frameHeight));
    }
}

void StartRow::PlaceOn(int tab, bool startedInteractively) {
    const StartPlacement place = StartPlacementOn(tab, startedInteractively);
    const bool isInSight = place.buttonLeft != outOfSight;
    if (isInSight) MoveTo(tab == tabGeneral ? generalPage : settingsPage);
    settingsPage->FindWindow(frameName)->Show(startedInteractively);
    modes->SetSize(PixelsOf(*modes, place.listLeft), PixelsOf(*modes, place.listTop), PixelsOf(*modes, listWidth),
                   modes->GetBestSize().y);
    start->SetSize(PixelsOf(*start, place.buttonLeft), PixelsOf(*start, place.buttonTop),
                   std::max(PixelsOf(*start, buttonWidth), start->GetBestSize().x), ButtonHeight(*modes));
    const wxRect list = modes->GetRect();
    const wxSize text = label->GetBestSize();
    label->SetSize(list.x - text.x - label->FromDIP(wideSpace), list.y + (list.height - text.y) / 2, text.x, text.y);
}

// On a page the row comes behind its frame, also for the Tab key.
void StartRow::MoveTo(wxWindow* page) {
    if (start->GetParent() == page) return;
    wxWindow* previous = page->FindWindow(frameName);
    for (wxWindow* const control : std::initializer_list<wxWindow*>{label, modes, start}) {
        control->Reparent(page);
        control->MoveAfterInTabOrder(previous);
        previous = control;
    }
}

void AddStartFrame(wxSizer* column, wxWindow* page, int tab, wxSizer* upper) {
    const int wide = page->FromDIP(wideSpace);
    const int narrow = page->FromDIP(narrowSpace);
    const int room = PixelsOf(*page, StartPlacementOn(tab, true).buttonTop) - page->FromDIP(captionHeight);
    if (upper == nullptr) {
        column->AddSpacer(room);
    } else {
        upper->SetMinSize(-1, room - wide - narrow);
        column->AddSpacer(wide);
        column->Add(upper, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, wide));
        column->AddSpacer(narrow);
    }
    auto* const frame = new wxStaticBox(page, wxID_ANY, ToWx(u"Vertaling"));
    frame->SetName(frameName);
    column->Add(frame, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, wide));
}

}  // namespace korvande
