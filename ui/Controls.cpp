#include "ui/Controls.h"

#include <wx/settings.h>

#include <algorithm>

#include "app/TabPlacement.h"
#include "ui/FramePainting.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

template <class Control>
Control* Named(Control* control, const char* name, TextView tip) {
    control->SetName(name);
    if (!tip.empty()) control->SetToolTip(ToWx(tip));
    return control;
}

}  // namespace

int PixelsOf(const wxWindow& window, int twips) {
    return wxRound(window.FromDIP(wxSize(twips, 0)).x / static_cast<double>(twipsPerPixel));
}

int TwipsOf(const wxWindow& window, int pixels) { return window.ToDIP(wxSize(pixels * twipsPerPixel, 0)).x; }

Group::Group(wxWindow* page, const char* name, TextView caption)
    : frame(new wxStaticBoxSizer(wxVERTICAL, page, ToWx(caption))),
      box(frame->GetStaticBox()),
      rows(new wxBoxSizer(wxVERTICAL)) {
    box->SetName(name);
    PaintWhole(*box);
    frame->Add(rows, wxSizerFlags(1).Expand().Border(wxALL, page->FromDIP(narrowSpace)));
}

void Group::Add(wxWindow* control, int proportion) const {
    if (!rows->IsEmpty()) rows->AddSpacer(box->FromDIP(narrowSpace));
    rows->Add(control, wxSizerFlags(proportion).Expand());
}

void Group::Add(wxSizer* row, int proportion) const {
    if (!rows->IsEmpty()) rows->AddSpacer(box->FromDIP(narrowSpace));
    rows->Add(row, wxSizerFlags(proportion).Expand());
}

wxStaticText* MakeLabel(wxWindow* parent, TextView caption, const char* name) {
    return Named(new wxStaticText(parent, wxID_ANY, ToWx(caption)), name, {});
}

void FitTextBox(wxTextCtrl& box, int characters) {
    constexpr int aroundText = 8;
    wxSize size = box.GetSizeFromTextSize(box.GetTextExtent(wxString('0', static_cast<size_t>(characters))).x);
    // The toolkit's own height cuts large letters.
    size.IncTo(wxSize(0, box.GetCharHeight() + box.FromDIP(aroundText)));
    box.SetInitialSize(size);
}

wxTextCtrl* MakeTextBox(wxWindow* parent, const char* name, int characters, unsigned longest, TextView tip) {
    auto* const box = Named(new wxTextCtrl(parent, wxID_ANY), name, tip);
    FitTextBox(*box, characters);
    box->SetMaxLength(longest);
    return box;
}

wxCheckBox* MakeCheckBox(wxWindow* parent, const char* name, TextView caption, TextView tip) {
    return Named(new wxCheckBox(parent, wxID_ANY, ToWx(caption)), name, tip);
}

wxButton* MakeButton(wxWindow* parent, const char* name, TextView caption, TextView tip) {
    return Named(new wxButton(parent, wxID_ANY, ToWx(caption)), name, tip);
}

wxRadioButton* MakeOption(wxWindow* parent, const char* name, TextView caption, InGroup place, TextView tip) {
    const long style = place == InGroup::First ? wxRB_GROUP : 0;
    return Named(new wxRadioButton(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize, style), name,
                 tip);
}

void PassWheelOn(wxWindow& list) {
    // A wheel may turn by parts of a notch.
    list.Bind(wxEVT_MOUSEWHEEL, [&list, turned = 0](wxMouseEvent& event) mutable {
        wxWindow* parent = list.GetParent();
        while (parent != nullptr && dynamic_cast<wxScrolledWindow*>(parent) == nullptr) parent = parent->GetParent();
        if (parent == nullptr) return;
        auto& page = dynamic_cast<wxScrolledWindow&>(*parent);
        turned += event.GetWheelRotation() * event.GetLinesPerAction();
        const int lines = turned / event.GetWheelDelta();
        turned -= lines * event.GetWheelDelta();
        const wxPoint view = page.GetViewStart();
        page.Scroll(view.x, std::max(view.y - lines, 0));
    });
}

wxColour WarningColour() {
    return wxSystemSettings::GetAppearance().IsDark() ? wxColour(255, 128, 128) : wxColour(176, 0, 0);
}

void LetShrink(wxWindow& list) {
    constexpr int width = 240;
    constexpr int height = 100;
    list.SetMinSize(list.FromDIP(wxSize(width, height)));
}

wxSizerFlags InRow(int proportion) { return wxSizerFlags(proportion).CenterVertical(); }

}  // namespace korvande
