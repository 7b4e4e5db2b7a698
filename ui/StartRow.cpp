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

wxWindow* FrameOn(const wxWindow* page) { return page->FindWindow(frameName); }

// The list stands somewhat below the button's top; the button reaches as far below the list.
int ButtonHeight(const wxChoice& list) {
    const StartPlacement place = StartPlacementOn(tabGeneral, true);
    return list.GetBestSize().y + 2 * PixelsOf(list, place.listTop - place.buttonTop);
}

}  // namespace

StartRow::StartRow(wxScrolledWindow* general, wxScrolledWindow* settings)
    : generalPage(general),
      settingsPage(settings),
      ownPage(general),
      place(StartPlacementOn(tabGeneral, true)),
      label(MakeLabel(FrameOn(general), u"Soort &vertaling:", "lblXlateMode")),
      modes(new wxChoice(FrameOn(general), wxID_ANY)),
      start(MakeButton(FrameOn(general), "cmdStart", u"&Start Vertaling",
                       u"Bewaart het project en vertaalt het invoerbestand met de instellingen van dit project")) {
    modes->SetName("cboXlateMode");
    modes->SetToolTip(ToWx(u"Van welk formaat naar welk formaat wordt vertaald"));
    PassWheelOn(*modes);
    start->SetFont(start->GetFont().Bold());
    const int frameHeight = start->FromDIP(captionHeight + wideSpace) + ButtonHeight(*modes);
    // Where the row stands in its frame is known when the toolkit has placed the frame on its page, which is at no
    // moment that it tells.
    wxGetTopLevelParent(general)->Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        Place();
    });
    for (const wxWindow* const page : {generalPage, settingsPage}) {
        FrameOn(page)->SetMinSize(wxSize(-1, frameHeight));
    }
}

void StartRow::PlaceOn(int tab, bool startedInteractively) {
    place = StartPlacementOn(tab, startedInteractively);
    const bool isInSight = place.buttonLeft != outOfSight;
    if (isInSight) MoveTo(tab == tabGeneral ? generalPage : settingsPage);
    FrameOn(settingsPage)->Show(startedInteractively);
    Place();
}

// A place on the page, in twips, in the pixels of the frame, wherever the page has been scrolled to.
wxPoint StartRow::InFrame(int left, int top) const {
    const wxPoint onPage(PixelsOf(*ownPage, left), PixelsOf(*ownPage, top));
    if (left == outOfSight) return onPage;
    return FrameOn(ownPage)->ScreenToClient(ownPage->ClientToScreen(ownPage->CalcScrolledPosition(onPage)));
}

void StartRow::Place() {
    // No page knows its place before.
    if (!wxGetTopLevelParent(ownPage)->IsShown()) return;
    const wxRect list(InFrame(place.listLeft, place.listTop),
                      wxSize(PixelsOf(*modes, listWidth), modes->GetBestSize().y));
    const wxRect button(InFrame(place.buttonLeft, place.buttonTop),
                        wxSize(std::max(PixelsOf(*start, buttonWidth), start->GetBestSize().x), ButtonHeight(*modes)));
    if (modes->GetRect() == list && start->GetRect() == button) return;
    modes->SetSize(list);
    start->SetSize(button);
    const wxSize text = label->GetBestSize();
    label->SetSize(list.x - text.x - label->FromDIP(wideSpace), list.y + (list.height - text.y) / 2, text.x, text.y);
}

// The frame has its place in the order of the Tab key, and the row in the frame.
void StartRow::MoveTo(wxScrolledWindow* page) {
    if (ownPage == page) return;
    ownPage = page;
    for (wxWindow* const control : std::initializer_list<wxWindow*>{label, modes, start}) {
        control->Reparent(FrameOn(page));
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
