#include "ui/StartRow.h"

#include <algorithm>

#include "app/TabPlacement.h"
#include "ui/Controls.h"
#include "ui/FramePainting.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr char frameName[] = "framStart";

// From the top of the frame to the top of the button, in device-independent pixels: what the described places leave.
constexpr int captionHeight = 26;

// In twips. The list fits between its place and the button's on every tab.
constexpr int listWidth = 2850;
constexpr int buttonWidth = 2400;

// The same for the size of the text.
int RoomForCaption(const wxWindow& window) {
    return std::max(window.FromDIP(captionHeight), window.GetCharHeight() + window.FromDIP(narrowSpace));
}

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
                       u"Bewaart het project en vertaalt het invoerbestand met de instellingen van dit project")),
      check(MakeButton(FrameOn(general), "cmdCheck", u"Controleer",
                       u"Gaat het invoerbestand na en laat zien wat er bij een vertaling mis zou gaan; er wordt niets "
                       u"geschreven (F7)")),
      preview(MakeButton(FrameOn(general), "cmdPreview", u"Voorbeeld",
                         u"Toont de tekening in het invoerbestand, met de codes die erin voorkomen (F8)")) {
    modes->SetName("cboXlateMode");
    modes->SetToolTip(ToWx(u"Van welk formaat naar welk formaat wordt vertaald"));
    PassWheelOn(*modes);
    start->SetFont(start->GetFont().Bold());
    // A higher caption takes its room from the frame, too.
    const int frameHeight =
        2 * RoomForCaption(*start) - start->FromDIP(captionHeight) + start->FromDIP(wideSpace) + ButtonHeight(*modes);
    // Where the row stands in its frame is known when the toolkit has placed the frame on its page, which is at no
    // moment that it tells.
    wxGetTopLevelParent(general)->Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        Place();
    });
    for (const int tab : {tabGeneral, tabSettings}) {
        const wxWindow* const page = tab == tabGeneral ? generalPage : settingsPage;
        const StartPlacement described = StartPlacementOn(tab, true);
        const int left = page->FromDIP(wideSpace);
        const Parts parts = Arranged(wxPoint(PixelsOf(*page, described.listLeft) - left, 0),
                                     wxPoint(PixelsOf(*page, described.buttonLeft) - left, 0));
        FrameOn(page)->SetMinSize(wxSize(parts.check.GetRight() + left, frameHeight));
    }
}

void StartRow::PlaceOn(int tab, bool startedInteractively) {
    place = StartPlacementOn(tab, startedInteractively);
    const bool isInSight = place.buttonLeft != outOfSight;
    if (isInSight) MoveTo(tab == tabGeneral ? generalPage : settingsPage);
    FrameOn(settingsPage)->Show(startedInteractively);
    check->Show(startedInteractively);
    preview->Show(startedInteractively);
    Place();
}

// A place on the page, in twips, in the pixels of the frame, wherever the page has been scrolled to.
wxPoint StartRow::InFrame(int left, int top) const {
    const wxPoint onPage(PixelsOf(*ownPage, left), PixelsOf(*ownPage, top));
    if (left == outOfSight) return onPage;
    return FrameOn(ownPage)->ScreenToClient(ownPage->ClientToScreen(ownPage->CalcScrolledPosition(onPage)));
}

// The row as it is described, and further on where a large text needs more room than there is.
StartRow::Parts StartRow::Arranged(wxPoint listAt, wxPoint startAt) const {
    const int wide = start->FromDIP(wideSpace);
    const int narrow = start->FromDIP(narrowSpace);
    const wxSize list = modes->GetBestSize();
    const wxSize button = start->GetBestSize();
    const wxSize text = label->GetBestSize();
    Parts parts;
    parts.list = wxRect(listAt, wxSize(std::max(PixelsOf(*modes, listWidth), list.x), list.y));
    parts.start = wxRect(startAt, wxSize(std::max(PixelsOf(*start, buttonWidth), button.x), ButtonHeight(*modes)));
    parts.list.x = std::max(listAt.x, wide + text.x + wide);
    parts.start.x = std::max(startAt.x, parts.list.GetRight() + 1 + narrow);
    const int below = RoomForCaption(*label->GetParent()) - label->FromDIP(captionHeight);
    parts.list.y += below;
    parts.start.y += below;
    parts.label = wxRect(parts.list.x - text.x - wide, parts.list.y + (list.y - text.y) / 2, text.x, text.y);
    // One above the other, beside the middle of the start button.
    const wxSize small(std::max(check->GetBestSize().x, preview->GetBestSize().x), list.y);
    const int middle = parts.start.y + parts.start.height / 2;
    // Of a large text the upper one would reach above the frame.
    const int upper = std::max(middle - small.y - narrow / 4, 0);
    parts.check = wxRect(wxPoint(parts.start.GetRight() + wide, upper), small);
    parts.preview = wxRect(wxPoint(parts.check.x, upper + small.y + narrow / 2), small);
    return parts;
}

// Out of sight they are where they are described.
void StartRow::Place() {
    // No page knows its place before.
    if (!wxGetTopLevelParent(ownPage)->IsShown()) return;
    const wxPoint listAt = InFrame(place.listLeft, place.listTop);
    const wxPoint startAt = InFrame(place.buttonLeft, place.buttonTop);
    Parts parts = Arranged(listAt, startAt);
    if (place.buttonLeft == outOfSight) {
        parts.list.SetPosition(listAt);
        parts.start.SetPosition(startAt);
        parts.label.x = listAt.x;
        parts.check.x = parts.preview.x = startAt.x;
    }
    if (modes->GetRect() == parts.list && start->GetRect() == parts.start) return;
    modes->SetSize(parts.list);
    start->SetSize(parts.start);
    check->SetSize(parts.check);
    preview->SetSize(parts.preview);
    label->SetSize(parts.label);
}

// The frame has its place in the order of the Tab key, and the row in the frame.
void StartRow::MoveTo(wxScrolledWindow* page) {
    if (ownPage == page) return;
    ownPage = page;
    for (wxWindow* const control : std::initializer_list<wxWindow*>{label, modes, start, check, preview}) {
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
    PaintWhole(*frame);
    column->Add(frame, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, wide));
}

}  // namespace korvande
