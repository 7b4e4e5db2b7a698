#include "ui/OutcomeLine.h"

#include <wx/dialog.h>

#include <vector>

#include "app/LogBookView.h"
#include "app/Projects.h"
#include "app/UnknownCodes.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/Folders.h"
#include "ui/SelectableText.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// Everything that is told of a run, in lines.
Text OverviewOf(const RunReport& run) {
    Text text = Concat(run.sentence, u"\n");
    const auto add = [&text](const std::vector<Text>& lines) {
        for (const Text& line : lines) AppendTo(text, Concat(u"\n", line));
    };
    add(run.lists);
    if (run.account.empty()) return text;
    if (!run.lists.empty()) AppendTo(text, u"\n");
    AppendTo(text, u"\nObjectbalans:");
    add(run.account);
    return text;
}

}  // namespace

OutcomeLine::OutcomeLine(wxWindow* parent, const FormKORVANDE& itsForm)
    : wxPanel(parent),
      form(itsForm),
      line(MakeSelectable(this, "lblOutcome")),
      logBook(MakeButton(this, "cmdShowLogBook", u"Logboek", u"Opent het logboek van deze vertaling")),
      unknownCodes(MakeButton(this, "cmdUnknownCodes", u"Onbekende codes...",
                              u"Toont de codes die niet in de codetabellen staan, om ze toe te voegen")),
      compare(MakeButton(this, "cmdCompare", u"Vergelijken",
                         u"Toont de uitvoer over de invoer: wat is weggelaten of veranderd, en waarom")),
      buttons(new wxBoxSizer(wxHORIZONTAL)),
      parts(new wxBoxSizer(wxHORIZONTAL)) {
    SetName("framOutcome");
    wxButton* const overview = MakeButton(this, "cmdShowOverview", u"Overzicht...",
                                          u"Wat niet of anders is overgekomen, wat is weggelaten en de objectbalans");
    wxButton* const folder = MakeButton(this, "cmdOpenFolder", u"Map openen", u"Opent de map van het uitvoerbestand");
    overview->MoveBeforeInTabOrder(logBook);
    for (const auto& row : {std::vector<wxButton*>{overview, logBook, folder}, {unknownCodes, compare}}) {
        auto* const some = new wxBoxSizer(wxHORIZONTAL);
        for (wxButton* const button : row) {
            some->Add(button, InRow().Border(wxTOP | wxBOTTOM | wxRIGHT, FromDIP(narrowSpace)));
        }
        buttons->Add(some);
    }
    parts->Add(line, wxSizerFlags(1).Border(wxALL, FromDIP(narrowSpace)).CenterVertical());
    parts->Add(buttons);
    SetSizer(parts);
    Hide();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        PlaceParts();
        event.Skip();
    });
    overview->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowOverview(); });
    unknownCodes->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onUnknownCodes(); });
    compare->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onCompare(); });
    logBook->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ViewLogBook(form.screen, form.lastRun.logBook); });
    folder->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OpenFolder(form.screen, FolderOf(form.lastRun.output)); });
}

void OutcomeLine::ShowForm() {
    const RunReport& run = form.lastRun;
    if (run.outcome.empty()) return;
    ShowSelectable(*line, run.outcome);
    line->SetForegroundColour(run.wentWell ? wxNullColour : WarningColour());
    line->Refresh();
    logBook->Enable(FileExistsAt(run.logBook));
    unknownCodes->Enable(!IsBusy(form) && !StillUnknown(form, run.unknownCodes).codes.empty());
    compare->Enable(!IsBusy(form) && run.wroteOutput);
    PlaceParts();
    if (IsShown()) return;
    Show();
    GetParent()->Layout();
}

void OutcomeLine::PlaceParts() {
    const int lineWidth = GetTextExtent(line->GetValue()).x + 4 * FromDIP(narrowSpace);
    int buttonsWidth = 0;
    for (wxSizerItem* const some : buttons->GetChildren()) buttonsWidth += some->GetSizer()->CalcMin().x;
    const bool fits = lineWidth + buttonsWidth <= GetClientSize().x;
    // Large ones take two rows.
    const int along = buttonsWidth <= GetClientSize().x ? wxHORIZONTAL : wxVERTICAL;
    if ((parts->GetOrientation() == wxHORIZONTAL) == fits && buttons->GetOrientation() == along) return;
    buttons->SetOrientation(along);
    for (wxSizerItem* const some : buttons->GetChildren()) some->SetFlag(along == wxVERTICAL ? wxALIGN_RIGHT : 0);
    parts->SetOrientation(fits ? wxHORIZONTAL : wxVERTICAL);
    wxSizerItem& lineItem = *parts->GetItem(line);
    lineItem.SetProportion(fits ? 1 : 0);
    const int across = fits ? static_cast<int>(wxALIGN_CENTER_VERTICAL) : static_cast<int>(wxEXPAND);
    lineItem.SetFlag(static_cast<int>(wxALL) | across);
    parts->GetItem(buttons)->SetFlag(fits ? 0 : wxALIGN_RIGHT);
    InvalidateBestSize();
    // The line takes another height, which is asked for when this size has been dealt with.
    GetParent()->CallAfter([parent = GetParent()] { parent->Layout(); });
}

void OutcomeLine::ShowOverview() {
    constexpr int width = 640;
    constexpr int height = 360;
    wxDialog dialog(this, wxID_ANY, ToWx(u"Overzicht van de vertaling"), wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    dialog.SetName("frmOverview");
    auto* const text = new wxTextCtrl(&dialog, wxID_ANY, ToWx(OverviewOf(form.lastRun)), wxDefaultPosition,
                                      FromDIP(wxSize(width, height)), wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP);
    text->SetName("txtOverview");
    auto* const close = new wxButton(&dialog, wxID_CANCEL, ToWx(u"&Sluiten"));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(text, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(wideSpace)));
    column->Add(close, wxSizerFlags().Right().Border(wxRIGHT | wxBOTTOM, FromDIP(wideSpace)));
    dialog.SetSizerAndFit(column);
    dialog.CentreOnParent();
    close->SetDefault();
    close->SetFocus();
    dialog.ShowModal();
}

}  // namespace korvande
