#include "ui/OutcomeLine.h"

#include <wx/dialog.h>
#include <wx/settings.h>
#include <wx/utils.h>

#include "app/frmKORVANDE.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// Red on a light window, and lighter on a dark one.
wxColour WarningColour() {
    return wxSystemSettings::GetAppearance().IsDark() ? wxColour(255, 128, 128) : wxColour(176, 0, 0);
}

// Everything that is told of a run, in lines.
Text OverviewOf(const RunReport& run) {
    Text text = Concat(run.sentence, u"\n");
    const auto add = [&text](const std::vector<Text>& lines) {
        for (const Text& line : lines) AppendTo(text, Concat(u"\n", line));
    };
    add(run.lists);
    if (!run.lists.empty()) AppendTo(text, u"\n");
    AppendTo(text, u"\nObjectbalans:");
    add(run.account);
    return text;
}

}  // namespace

OutcomeLine::OutcomeLine(wxWindow* parent, const FormKORVANDE& itsForm)
    : wxPanel(parent),
      form(itsForm),
      line(new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE)),
      logBook(MakeButton(this, "cmdShowLogBook", u"Logboek", u"Opent het logboek van deze vertaling")) {
    SetName("framOutcome");
    line->SetName("lblOutcome");
    wxButton* const overview = MakeButton(this, "cmdShowOverview", u"Overzicht...",
                                          u"Wat niet of anders is overgekomen, wat is weggelaten en de objectbalans");
    wxButton* const folder = MakeButton(this, "cmdOpenFolder", u"Map openen", u"Opent de map van het uitvoerbestand");
    overview->MoveBeforeInTabOrder(logBook);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(line, InRow(1).Border(wxALL, FromDIP(narrowSpace)));
    for (wxButton* const button : {overview, logBook, folder}) {
        row->Add(button, InRow().Border(wxTOP | wxBOTTOM | wxRIGHT, FromDIP(narrowSpace)));
    }
    SetSizer(row);
    Hide();
    overview->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowOverview(); });
    logBook->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowLogBook(); });
    folder->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OpenFolder(); });
}

void OutcomeLine::ShowForm() {
    const RunReport& run = form.lastRun;
    if (run.outcome.empty()) return;
    const wxString text = ToWx(run.outcome);
    if (line->GetLabelText() != text) {
        line->SetLabelText(text);
        line->SetToolTip(text);
    }
    line->SetForegroundColour(run.wentWell ? wxNullColour : WarningColour());
    line->Refresh();
    logBook->Enable(FileExistsAt(run.logBook));
    if (IsShown()) return;
    Show();
    GetParent()->Layout();
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

void OutcomeLine::ShowLogBook() {
    const Text& name = form.lastRun.logBook;
    if (!form.screen.ViewTextFile(name)) {
        ShowMessage(form.screen, Concat(u"Het logboek kan niet worden getoond. Het is opgeslagen in:\n\n", name));
    }
}

void OutcomeLine::OpenFolder() {
    const Text folder = FolderOf(form.lastRun.output);
    try {
        if (wxLaunchDefaultApplication(ToWx(FromUtf8(NativePath(folder.empty() ? Text(u".") : folder))))) return;
    } catch (const RuntimeError&) {
        // A folder that cannot be named cannot be opened.
    }
    ShowMessage(form.screen, Concat(u"De map kan niet worden geopend:\n", folder));
}

}  // namespace korvande
