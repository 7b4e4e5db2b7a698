#include "ui/BatchDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/FileDialogs.h"
#include "ui/MessageDialog.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { inputColumn, formatColumn, outputColumn };

constexpr std::array<Variant, 2> targets = {Variant::Nen1878, Variant::Suf2};

Text NoteOf(const Batch& batch) {
    if (batch.passedOver == 1) return u"1 ander bestand in de map is geen tekening en doet niet mee.";
    return Concat(batch.passedOver, u" andere bestanden in de map zijn geen tekening en doen niet mee.");
}

}  // namespace

BatchDialog::BatchDialog(wxWindow* parent, const FormKORVANDE& itsForm, Batch itsBatch)
    : wxDialog(parent, wxID_ANY, ToWx(u"Bestanden vertalen"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      form(itsForm),
      batch(std::move(itsBatch)) {
    SetName("frmBatch");
    MakeList();
    auto* const column = new wxBoxSizer(wxVERTICAL);
    const auto around = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, FromDIP(wideSpace));
    column->Add(MakeLabel(this, u"Deze &bestanden worden vertaald met het project op het scherm:"), around);
    column->Add(list, wxSizerFlags(around).Proportion(1));
    column->Add(MakeListButtons(), around);
    column->Add(MakeChoices(), around);
    column->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxALL, FromDIP(wideSpace)));
    ShowFiles();
    SetSizerAndFit(column);
    CentreOnParent();
}

void BatchDialog::MakeList() {
    constexpr int inputWidth = 270;
    constexpr int formatWidth = 110;
    constexpr int outputWidth = 240;
    constexpr int height = 220;
    list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition,
                          FromDIP(wxSize(inputWidth + formatWidth + outputWidth + 3 * wideSpace, height)), wxLC_REPORT);
    list->SetName("lstBatch");
    list->AppendColumn(ToWx(u"Bestand"), wxLIST_FORMAT_LEFT, FromDIP(inputWidth));
    list->AppendColumn(ToWx(u"Formaat"), wxLIST_FORMAT_LEFT, FromDIP(formatWidth));
    list->AppendColumn(ToWx(u"Wordt"), wxLIST_FORMAT_LEFT, FromDIP(outputWidth));
    list->Bind(wxEVT_LIST_KEY_DOWN, [this](wxListEvent& event) {
        event.Skip();
        if (event.GetKeyCode() == WXK_DELETE) DropSelected();
    });
}

wxSizer* BatchDialog::MakeListButtons() {
    wxButton* const drop = MakeButton(this, "cmdDropFile", u"&Uit de lijst halen",
                                      u"Het gekozen bestand wordt niet vertaald; het bestand zelf blijft (Delete)");
    drop->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { DropSelected(); });
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    wxStaticText* const note = MakeLabel(this, NoteOf(batch), "lblPassedOver");
    note->Show(batch.passedOver > 0);
    row->Add(note, InRow(1));
    if (!note->IsShown()) row->AddStretchSpacer();
    row->Add(drop, InRow());
    return row;
}

wxSizer* BatchDialog::MakeChoices() {
    constexpr int folderLength = 24;  // at least; it takes what is left of the row
    auto* const rows = new wxFlexGridSizer(2, FromDIP(wxSize(narrowSpace, narrowSpace)));
    rows->AddGrowableCol(1);
    rows->Add(MakeLabel(this, u"&IDEX wordt:", "lblBatchTarget"), InRow());
    target = new wxChoice(this, wxID_ANY);
    target->SetName("cboBatchTarget");
    for (const Variant variant : targets) {
        target->Append(ToWx(NameOf(variant == Variant::Nen1878 ? Format::Nen1878 : Format::Suf2)));
        if (variant == batch.variant) target->SetSelection(static_cast<int>(target->GetCount()) - 1);
    }
    target->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
        ChooseVariant(batch, targets[static_cast<std::size_t>(event.GetSelection())]);
        ShowFiles();
    });
    rows->Add(target, InRow());
    rows->Add(MakeLabel(this, u"&Map voor de resultaten:"), InRow());
    folder = MakeTextBox(this, "txtBatchFolder", folderLength, 0,
                         u"Hier komen de uitvoerbestanden, elk met zijn logboek ernaast");
    folder->ChangeValue(ToWx(batch.folder));
    folder->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ChooseFolder(batch, FromWx(folder->GetValue())); });
    wxButton* const browse = MakeButton(this, "cmdBatchFolder", u"B&laderen...", u"Zoekt de map op, of maakt er een");
    browse->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { BrowseFolder(); });
    auto* const folderRow = new wxBoxSizer(wxHORIZONTAL);
    folderRow->Add(folder, InRow(1).Border(wxRIGHT, FromDIP(narrowSpace)));
    folderRow->Add(browse, InRow());
    rows->Add(folderRow, wxSizerFlags().Expand());
    return rows;
}

wxSizer* BatchDialog::MakeButtons() {
    auto* const translate = new wxButton(this, wxID_OK, ToWx(u"&Vertalen"));
    translate->SetName("cmdTranslateBatch");
    auto* const buttons = new wxStdDialogButtonSizer();
    buttons->AddButton(translate);
    buttons->AddButton(new wxButton(this, wxID_CANCEL, ToWx(u"&Annuleren")));
    buttons->Realize();
    translate->SetDefault();
    translate->SetFocus();
    translate->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Translate(); });
    return buttons;
}

void BatchDialog::ShowFiles() {
    const long top = list->GetTopItem();
    list->DeleteAllItems();
    for (const BatchFile& file : batch.files) {
        const long item = list->InsertItem(list->GetItemCount(), ToWx(FileNameOf(file.input)));
        list->SetItem(item, formatColumn, ToWx(file.format ? NameOf(*file.format) : TextView(u"geen tekening")));
        list->SetItem(item, outputColumn, ToWx(file.format ? FileNameOf(file.output) : Text(u"niet vertaald")));
        if (!file.format) list->SetItemTextColour(item, WarningColour());
    }
    if (top > 0 && top < list->GetItemCount()) list->EnsureVisible(top);
    target->Enable(HasIdex(batch));
}

void BatchDialog::DropSelected() {
    std::vector<long> items;
    long item = -1;
    while ((item = list->GetNextItem(item, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) != -1) items.push_back(item);
    if (items.empty()) return;
    for (auto place = items.rbegin(); place != items.rend(); ++place) {
        DropFile(batch, static_cast<std::size_t>(*place));
    }
    ShowFiles();
}

void BatchDialog::BrowseFolder() {
    const std::optional<Text> chosen = ShowFolderDialog(this, u"Map voor de resultaten");
    if (chosen) folder->SetValue(ToWx(*chosen));
}

void BatchDialog::Translate() {
    const Text obstacle = ObstacleTo(form, batch);
    if (obstacle.empty()) return EndModal(wxID_OK);
    MessageDialog(this, obstacle, u"KORVANDE", Icon::None, Buttons::Ok).ShowModal();
}

}  // namespace korvande
