#include "ui/CheckWindow.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include <algorithm>
#include <utility>

#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/FramePainting.h"
#include "ui/Icons.h"
#include "ui/KeptPlace.h"
#include "ui/ListColumns.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { lineColumn, kindColumn, sentenceColumn };

// It tells the width of all.
wxString LongestSentence(const CheckReport& report) {
    const auto longest = std::max_element(
        report.findings.begin(), report.findings.end(),
        [](const Finding& one, const Finding& other) { return one.sentence.size() < other.sentence.size(); });
    return longest == report.findings.end() ? wxString() : ToWx(longest->sentence);
}

}  // namespace

FindingList::FindingList(wxWindow* parent, const CheckReport& itsReport)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL), report(itsReport) {
    SetName("lstFindings");
    wxString widestKind;
    for (std::size_t i = 0; i < findingKinds; ++i) {
        const wxString name = ToWx(NameOf(static_cast<FindingKind>(i)));
        if (name.length() > widestKind.length()) widestKind = name;
    }
    AppendColumn(ToWx(u"Regel"), wxLIST_FORMAT_RIGHT, WidthInList(*this, "99999999"));
    AppendColumn(ToWx(u"Soort"), wxLIST_FORMAT_LEFT, WidthInList(*this, widestKind));
    constexpr int sentenceWidth = 400;
    AppendColumn(ToWx(u"Melding"), wxLIST_FORMAT_LEFT,
                 std::max(WidthInList(*this, LongestSentence(report)), FromDIP(sentenceWidth)));
    warning.SetTextColour(WarningColour());
    ShowWanted(true);
}

std::vector<std::size_t> FindingList::Selected() const {
    std::vector<std::size_t> places;
    long item = -1;
    while ((item = GetNextItem(item, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) != -1) {
        places.push_back(shown[static_cast<std::size_t>(item)]);
    }
    return places;
}

void FindingList::ShowWanted(bool withWanted) {
    constexpr long allItems = -1;
    if (GetItemCount() > 0) SetItemState(allItems, 0, wxLIST_STATE_SELECTED);
    shown.clear();
    for (std::size_t place = 0; place < report.findings.size(); ++place) {
        if (withWanted || report.findings[place].kind != FindingKind::Wanted) shown.push_back(place);
    }
    SetItemCount(static_cast<long>(shown.size()));
    Refresh();
}

const Finding& FindingList::FindingAt(long item) const {
    return report.findings[shown[static_cast<std::size_t>(item)]];
}

wxListItemAttr* FindingList::OnGetItemAttr(long item) const {
    const FindingKind kind = FindingAt(item).kind;
    return kind == FindingKind::Error || kind == FindingKind::Loss ? &warning : nullptr;
}

wxString FindingList::OnGetItemText(long item, long column) const {
    const Finding& finding = FindingAt(item);
    switch (column) {
        case lineColumn:
            return finding.line > 0 ? wxString::Format("%lld", static_cast<long long>(finding.line)) : wxString();
        case kindColumn:
            return ToWx(NameOf(finding.kind));
        default:
            return ToWx(finding.sentence);
    }
}

CheckWindow::CheckWindow(wxWindow* parent, CheckReport itsReport)
    : wxFrame(parent, wxID_ANY, ToWx(Concat(u"Controle van ", FileNameOf(itsReport.input)))),
      report(std::move(itsReport)) {
    constexpr int width = 720;
    constexpr int height = 480;
    SetName("frmCheck");
    SetIcons(ProgramIcons());
    wxScrolledWindow* const content = MakeContent(this);
    list = new FindingList(content, report);
    list->Show(!report.findings.empty());
    LetShrink(*list);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    const auto around = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, FromDIP(wideSpace));
    column->Add(MakeHeading(), around);
    column->Add(list, wxSizerFlags(around).Proportion(1));
    column->Add(MakeAccount(), around);
    if (report.findings.empty()) column->AddStretchSpacer();
    column->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxALL, FromDIP(wideSpace)));
    content->SetSizer(column);
    FitContent(*this, *content, wxSize(width, height));
    CentreOnParent();
    Bind(wxEVT_CHAR_HOOK, &CheckWindow::OnKey, this);
}

// What everything comes to, so that it is seen from afar, and below it of which file.
wxSizer* CheckWindow::MakeHeading() {
    constexpr float larger = 1.2F;
    wxWindow* const content = list->GetParent();
    auto* const picture = new wxStaticBitmap(
        content, wxID_ANY,
        wxArtProvider::GetBitmapBundle(IsFlawless(report) ? wxART_TICK_MARK : wxART_WARNING, wxART_MESSAGE_BOX));
    wxStaticText* const summary = MakeLabel(content, SummaryOf(report), "lblCheckSummary");
    summary->SetFont(summary->GetFont().Bold().Scaled(larger));
    if (!IsFlawless(report)) summary->SetForegroundColour(WarningColour());
    auto* const input = new wxStaticText(content, wxID_ANY, ToWx(Concat(report.input, u"  (", report.modeText, u")")),
                                         wxDefaultPosition, wxDefaultSize, wxST_ELLIPSIZE_START);
    input->SetName("lblCheckInput");
    input->SetMinSize(wxSize(0, wxDefaultCoord));
    auto* const texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(summary);
    if (const Text remarks = RemarksOf(report); !remarks.empty()) {
        texts->Add(MakeLabel(content, remarks, "lblCheckRemarks"), wxSizerFlags().Border(wxTOP, FromDIP(narrowSpace)));
    }
    texts->Add(input, wxSizerFlags().Expand().Border(wxTOP, FromDIP(narrowSpace)));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(picture, InRow().Border(wxRIGHT, FromDIP(wideSpace)));
    row->Add(texts, InRow(1));
    return row;
}

wxSizer* CheckWindow::MakeAccount() {
    wxWindow* const content = list->GetParent();
    Text account;
    for (const Text& line : report.account) {
        if (!account.empty()) AppendTo(account, u"\n");
        AppendTo(account, line);
    }
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, content, ToWx(u"Objectbalans"));
    PaintWhole(*group->GetStaticBox());
    group->Add(
        MakeLabel(group->GetStaticBox(), account.empty() ? Text(u"Geen objecten gelezen") : account, "lblCheckAccount"),
        wxSizerFlags().Expand().Border(wxALL, FromDIP(narrowSpace)));
    return group;
}

wxSizer* CheckWindow::MakeButtons() {
    wxWindow* const content = list->GetParent();
    wxButton* const copy = MakeButton(content, "cmdCopyFindings", u"&Kopiëren",
                                      u"Kopieert de gekozen meldingen, of alles als er geen zijn gekozen");
    auto* const close = new wxButton(content, wxID_ANY, ToWx(u"&Sluiten"));
    close->SetName("cmdCloseCheck");
    copy->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Copy(); });
    close->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Close(); });
    (list->IsShown() ? static_cast<wxWindow*>(list) : close)->SetFocus();
    wxCheckBox* const wanted =
        MakeCheckBox(content, "chkShowWanted", u"&Ook tonen wat volgens de instellingen wordt weggelaten");
    wanted->SetValue(true);
    wanted->Show(report.counts[static_cast<std::size_t>(FindingKind::Wanted)] > 0);
    wanted->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent& event) { list->ShowWanted(event.IsChecked()); });
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(wanted, InRow());
    row->AddStretchSpacer();
    row->Add(copy, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
    row->Add(close, InRow());
    return row;
}

void CheckWindow::OnKey(wxKeyEvent& event) {
    constexpr long allItems = -1;
    const bool isControl = event.GetModifiers() == wxMOD_CONTROL;
    if (event.GetKeyCode() == WXK_ESCAPE) {
        Close();
    } else if (isControl && event.GetKeyCode() == 'C') {
        Copy();
    } else if (isControl && event.GetKeyCode() == 'A') {
        list->SetItemState(allItems, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    } else {
        event.Skip();
    }
}

void CheckWindow::Copy() const {
    const std::vector<std::size_t> selected = list->Selected();
    const Text text = selected.empty() ? TextOf(report) : TextOf(report, selected);
    const wxClipboardLocker clipboard;
    if (!!clipboard) wxTheClipboard->SetData(new wxTextDataObject(ToWx(text)));
}

}  // namespace korvande
