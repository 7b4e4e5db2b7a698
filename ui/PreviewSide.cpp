#include "ui/PreviewSide.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr std::array<TextView, differenceKinds> kindCaptions = {u"&Gewijzigd", u"Ont&breekt", u"&Toegevoegd"};
constexpr std::array<const char*, differenceKinds> kindNames = {"chkChanged", "chkMissing", "chkAdded"};

}  // namespace

PreviewSide::PreviewSide(wxWindow* parent, bool compares)
    : wxPanel(parent),
      codes(new CodeList(this)),
      differences(new DifferenceList(this)),
      object(new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, FromDIP(wxSize(-1, 120)),
                            wxTE_MULTILINE | wxTE_READONLY)) {
    const int narrow = FromDIP(narrowSpace);
    object->SetName("txtObject");
    LetShrink(*codes);
    LetShrink(*differences);
    codes->Show(!compares);
    differences->Show(compares);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(compares ? static_cast<wxWindow*>(differences) : codes, wxSizerFlags(1).Expand());
    column->Add(compares ? MakeDifferenceChoice() : MakeCodeChoice(),
                wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, narrow));
    column->Add(object, wxSizerFlags().Expand());
    SetSizer(column);
    object->MoveAfterInTabOrder(GetChildren().GetLast()->GetData());
}

wxSizer* PreviewSide::MakeCodeChoice() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    wxButton* const all = MakeButton(this, "cmdShowCodes", u"Alles &tonen", u"Toont de objecten van alle codes");
    wxButton* const none = MakeButton(this, "cmdHideCodes", u"&Niets tonen", u"Verbergt de objecten van alle codes");
    all->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { codes->ShowAllCodes(true); });
    none->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { codes->ShowAllCodes(false); });
    row->Add(all, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
    row->Add(none, InRow());
    return row;
}

wxSizer* PreviewSide::MakeDifferenceChoice() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(MakeKinds(), InRow(1));
    wxButton* const previous = MakeButton(this, "cmdPreviousDifference", u"&Vorige", u"Het vorige verschil (Shift+F8)");
    wxButton* const next = MakeButton(this, "cmdNextDifference", u"V&olgende", u"Het volgende verschil (F8)");
    previous->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onNext(false); });
    next->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onNext(true); });
    row->Add(previous, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
    row->Add(next, InRow());
    return row;
}

// In their colours, which tell what is what in the drawing.
wxSizer* PreviewSide::MakeKinds() {
    auto* const column = new wxBoxSizer(wxVERTICAL);
    for (const DifferenceKind kind : {DifferenceKind::Missing, DifferenceKind::Changed, DifferenceKind::Added}) {
        const auto place = static_cast<std::size_t>(kind);
        wxCheckBox* const box = MakeCheckBox(this, kindNames[place], kindCaptions[place]);
        box->SetValue(true);
        box->SetForegroundColour(DifferenceColour(kind));
        box->Bind(wxEVT_CHECKBOX, [this, kind](wxCommandEvent& event) { onShow(kind, event.IsChecked()); });
        kinds[place] = box;
        column->Add(box);
    }
    return column;
}

void PreviewSide::ShowCounts(const PreviewDifferences& counted) {
    for (std::size_t place = 0; place < differenceKinds; ++place) {
        const auto count = static_cast<std::int64_t>(counted.CountOf(static_cast<DifferenceKind>(place)));
        kinds[place]->SetLabel(ToWx(Concat(kindCaptions[place], u" (", count, u")")));
        kinds[place]->Enable(count > 0);
    }
    InvalidateBestSize();
    Layout();
    // Where something stood before.
    Refresh();
}

void PreviewSide::ShowObject(TextView text) { object->ChangeValue(ToWx(text)); }

}  // namespace korvande
