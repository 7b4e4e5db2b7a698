#include "ui/BatchWindow.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <utility>

#include "app/LogBookView.h"
#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/Folders.h"
#include "ui/Icons.h"
#include "ui/KeptPlace.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { inputColumn, resultColumn, objectsColumn, errorsColumn };

bool WentWell(const std::vector<BatchOutcome>& outcomes) {
    return std::all_of(outcomes.begin(), outcomes.end(), [](const BatchOutcome& outcome) { return outcome.wentWell; });
}

}  // namespace

BatchWindow::BatchWindow(wxWindow* parent, Screen& itsScreen, std::vector<BatchOutcome> itsOutcomes)
    : wxFrame(parent, wxID_ANY, ToWx(u"Vertaalde bestanden")), screen(itsScreen), outcomes(std::move(itsOutcomes)) {
    constexpr float larger = 1.2F;
    constexpr int width = 820;
    constexpr int height = 360;
    SetName("frmBatchOutcomes");
    SetIcons(ProgramIcons());
    wxScrolledWindow* const content = MakeContent(this);
    wxStaticText* const summary = MakeLabel(content, Concat(SummaryOf(outcomes), u"."), "lblBatchSummary");
    summary->SetFont(summary->GetFont().Bold().Scaled(larger));
    if (!WentWell(outcomes)) summary->SetForegroundColour(WarningColour());
    MakeList(content);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    const auto around = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, FromDIP(wideSpace));
    column->Add(summary, around);
    column->Add(list, wxSizerFlags(around).Proportion(1));
    column->Add(MakeButtons(content), wxSizerFlags().Expand().Border(wxALL, FromDIP(wideSpace)));
    content->SetSizer(column);
    FitContent(*this, *content, wxSize(width, height));
    CentreOnParent();
    ShowSelected();
    list->SetFocus();
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE) {
            Close();
        } else {
            event.Skip();
        }
    });
}

void BatchWindow::MakeList(wxWindow* content) {
    constexpr int inputWidth = 160;
    constexpr int objectsWidth = 130;
    constexpr int errorsWidth = 65;
    list = new wxListCtrl(content, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_SINGLE_SEL);
    list->SetName("lstOutcomes");
    LetShrink(*list);
    list->AppendColumn(ToWx(u"Bestand"), wxLIST_FORMAT_LEFT, FromDIP(inputWidth));
    list->AppendColumn(ToWx(u"Resultaat"));
    list->AppendColumn(ToWx(u"Objecten"), wxLIST_FORMAT_RIGHT, FromDIP(objectsWidth));
    list->AppendColumn(ToWx(u"Fouten"), wxLIST_FORMAT_RIGHT, FromDIP(errorsWidth));
    for (const BatchOutcome& outcome : outcomes) AddRow(outcome);
    list->SetColumnWidth(resultColumn, wxLIST_AUTOSIZE);
    for (const auto& event : {wxEVT_LIST_ITEM_SELECTED, wxEVT_LIST_ITEM_DESELECTED}) {
        list->Bind(event, [this](wxListEvent&) { ShowSelected(); });
    }
    list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { ShowLogBook(); });
}

void BatchWindow::AddRow(const BatchOutcome& outcome) {
    const long item = list->InsertItem(list->GetItemCount(), ToWx(FileNameOf(outcome.input)));
    list->SetItem(item, resultColumn, ToWx(outcome.result));
    if (outcome.isTranslated) {
        list->SetItem(item, objectsColumn, ToWx(Concat(outcome.written, u" van ", outcome.read)));
        list->SetItem(item, errorsColumn, ToWx(Concat(outcome.errors)));
    }
    if (!outcome.wentWell) list->SetItemTextColour(item, WarningColour());
}

wxSizer* BatchWindow::MakeButtons(wxWindow* content) {
    logBook = MakeButton(content, "cmdBatchLogBook", u"&Logboek", u"Opent het logboek van het gekozen bestand");
    folder = MakeButton(content, "cmdBatchOpenFolder", u"&Map openen", u"Opent de map van de uitvoer");
    auto* const close = new wxButton(content, wxID_ANY, ToWx(u"&Sluiten"));
    close->SetName("cmdCloseBatch");
    logBook->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowLogBook(); });
    folder->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowFolder(); });
    close->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Close(); });
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(logBook, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
    row->Add(folder, InRow());
    row->AddStretchSpacer();
    row->Add(close, InRow());
    return row;
}

const BatchOutcome* BatchWindow::Selected() const {
    const long item = list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item < 0 ? nullptr : &outcomes[static_cast<std::size_t>(item)];
}

void BatchWindow::ShowSelected() {
    const BatchOutcome* const outcome = Selected();
    logBook->Enable(outcome != nullptr && FileExistsAt(outcome->logBook));
    folder->Enable(outcome != nullptr);
}

void BatchWindow::ShowLogBook() {
    const BatchOutcome* const outcome = Selected();
    if (outcome != nullptr && FileExistsAt(outcome->logBook)) ViewLogBook(screen, outcome->logBook);
}

void BatchWindow::ShowFolder() {
    const BatchOutcome* const outcome = Selected();
    if (outcome == nullptr) return;
    OpenFolder(screen, FolderOf(outcome->output.empty() ? outcome->input : outcome->output));
}

}  // namespace korvande
