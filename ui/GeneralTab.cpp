#include "ui/GeneralTab.h"

#include <wx/choice.h>
#include <wx/listbox.h>

#include <algorithm>

#include "app/TabPlacement.h"
#include "ui/Controls.h"
#include "ui/Page.h"
#include "ui/StartRow.h"
#include "ui/Viewer.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr TextView browseTip = u"Zoekt het bestand op, of de map en de naam voor een nieuw bestand";

constexpr TextView recentTip =
    u"De bestanden die het laatst zijn vertaald: zet het bestand en de soort vertaling van toen klaar";

// The rows of a group that may be higher than they need.
void AddInTheMiddle(Group& group, wxSizer* rows) {
    group.rows->AddStretchSpacer();
    group.rows->Add(rows, wxSizerFlags().Expand());
    group.rows->AddStretchSpacer();
}

wxSizer* MakeProjects(wxWindow* page) {
    Group group(page, "framProject", u"Project");
    wxWindow* const box = group.box;
    wxTextCtrl* const project =
        MakeTextBox(box, "txtProject", 20, 0,
                    u"Het geladen project: de instellingen en codetabellen hiernaast en op de andere bladen");
    project->SetEditable(false);
    group.Add(project);

    auto* const list = new wxListBox(box, wxID_ANY, wxDefaultPosition, box->FromDIP(wxSize(120, 60)), 0, nullptr,
                                     wxLB_SINGLE | wxLB_NEEDED_SB);
    list->SetName("File1");
    list->SetToolTip(ToWx(u"Een ander project kiezen bewaart eerst het geladen project"));
    auto* const buttons = new wxBoxSizer(wxVERTICAL);
    const auto flags = wxSizerFlags().Expand().Border(wxBOTTOM, box->FromDIP(narrowSpace));
    buttons->Add(MakeButton(box, "cmdNewJob", u"&Nieuw...", u"Maakt een nieuw project met de standaardinstellingen"),
                 flags);
    buttons->Add(MakeButton(box, "cmdCopyJob", u"&Dupliceren...",
                            u"Maakt een nieuw project met de instellingen en codetabellen van het geladen project"),
                 flags);
    buttons->Add(MakeButton(box, "cmdDelJob", u"&Wissen...", u"Verwijdert een project voorgoed"), flags);

    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(list, wxSizerFlags(1).Expand().Border(wxRIGHT, box->FromDIP(narrowSpace)));
    row->Add(buttons);
    group.Add(row, 1);
    return group.frame;
}

void AddFileRow(wxFlexGridSizer* rows, wxWindow* box, TextView caption, const char* textName, const char* buttonName,
                TextView buttonCaption, const char* recentName, TextView tip) {
    rows->Add(MakeLabel(box, caption), InRow());
    rows->Add(MakeTextBox(box, textName, 24, 0, tip), InRow(1).Expand());
    rows->Add(MakeButton(box, buttonName, buttonCaption, browseTip), InRow());
    rows->Add(MakeButton(box, recentName, u"Recent...", recentTip), InRow());
}

wxSizer* MakeFiles(wxWindow* page) {
    Group group(page, "framStandalone", u"Bestanden");
    wxWindow* const box = group.box;
    auto* const rows = new wxFlexGridSizer(4, box->FromDIP(wxSize(narrowSpace, narrowSpace)));
    rows->AddGrowableCol(1);
    AddFileRow(rows, box, u"&IDEX:", "txtFileIDEX", "cmdBrowseIDEX", u"&Bladeren...", "cmdRecentIDEX",
               u"Het IDEX-bestand. Is het de uitvoer en leeg, dan krijgt het de naam van het invoerbestand met IDX");
    AddFileRow(rows, box, u"NEN1878/S&UF2:", "txtFileSUFNEN", "cmdBrowseSUFNEN", u"Bl&aderen...", "cmdRecentSUFNEN",
               u"Het NEN1878- of SUF2-bestand. Is het de uitvoer en leeg, dan krijgt het de naam van het invoerbestand "
               u"met SFN");
    AddInTheMiddle(group, rows);
    return group.frame;
}

// What a log book on the screen is shown in.
wxSizer* MakeViewerChoice(wxWindow* box) {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(MakeLabel(box, u"Logboek op scherm:"), InRow().Border(wxRIGHT, box->FromDIP(narrowSpace)));
    auto* const viewers = new wxChoice(box, wxID_ANY);
    viewers->SetName("cboLogBookViewer");
    viewers->Append(ToWx(u"In een venster"));
    viewers->Append(ToWx(ViewerPlace()));
    viewers->SetToolTip(
        ToWx(u"Waarin het logboek verschijnt, ook met de knop Logboek onderaan. Het venster kleurt de fouten en zoekt "
             u"ze op"));
    PassWheelOn(*viewers);
    row->Add(viewers, InRow());
    return row;
}

wxSizer* MakeReport(wxWindow* page) {
    Group group(page, "framReport", u"Logboek");
    wxWindow* const box = group.box;
    auto* const options = new wxFlexGridSizer(2, box->FromDIP(wxSize(2 * wideSpace, narrowSpace)));
    options->Add(MakeOption(box, "optReportScreen", u"Tonen op het scher&m", InGroup::First,
                            u"Opent het logboek na de vertaling; het blijft ook bewaard"));
    options->Add(MakeOption(box, "optReportDisk", u"Alleen b&ewaren", InGroup::Next,
                            u"Het logboek staat naast het uitvoerbestand, met LOG achter de naam"));
    options->Add(MakeOption(box, "optReportPrinter", u"A&fdrukken", InGroup::Next,
                            u"Drukt het logboek af op de standaardprinter; er blijft geen bestand over"));
    options->Add(MakeOption(box, "optReportNone", u"&Geen logboek", InGroup::Next,
                            u"Na de vertaling blijft er geen logboek over"));
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(options, wxSizerFlags().Expand().Border(wxBOTTOM, box->FromDIP(narrowSpace)));
    rows->Add(MakeViewerChoice(box));
    AddInTheMiddle(group, rows);
    return group.frame;
}

// A caption and the box of one of the owner's fields. The box of a long field takes what room there is.
void AddField(wxSizer* row, wxWindow* box, TextView caption, const char* name, unsigned length, TextView tip = {}) {
    constexpr unsigned longField = 20;
    const int proportion = length > longField ? 1 : 0;
    row->Add(MakeLabel(box, caption), InRow().Border(wxRIGHT, box->FromDIP(narrowSpace)));
    wxTextCtrl* const text = MakeTextBox(box, name, static_cast<int>(std::min(length, longField)) + 2, length, tip);
    row->Add(text, InRow(proportion).Border(wxRIGHT, box->FromDIP(wideSpace)));
}

wxSizer* MakeOwner(wxWindow* page) {
    Group group(page, "framOwner", u"Gegevensleverancier");
    wxWindow* const box = group.box;
    const auto addRow = [&group](auto addFields) {
        auto* const row = new wxBoxSizer(wxHORIZONTAL);
        addFields(row);
        group.Add(row);
    };
    addRow([box](wxSizer* row) {
        AddField(row, box, u"&Lange naam:", "txtNameLong", 35,
                 u"Naam van de leverancier in de kop van het NEN1878-bestand");
        AddField(row, box, u"&Korte naam:", "txtNameShort", 8);
        AddField(row, box, u"B&ron:", "txtSource", 5,
                 u"Code van de leverancier in elk object; leeg: de eerste vijf tekens van de korte naam");
    });
    addRow([box](wxSizer* row) {
        AddField(row, box, u"S&traat:", "txtStreet", 24);
        AddField(row, box, u"&Huisnummer:", "txtNumber", 5);
        AddField(row, box, u"T&oevoeging:", "txtSuffix", 5);
    });
    addRow([box](wxSizer* row) {
        AddField(row, box, u"Post&code:", "txtZipcode", 6);
        AddField(row, box, u"&Plaats:", "txtCity", 24);
    });
    return group.frame;
}

}  // namespace

wxScrolledWindow* MakeGeneralTab(wxWindow* parent) {
    auto* const page = new Page(parent);
    const int narrow = page->FromDIP(narrowSpace);
    const int wide = page->FromDIP(wideSpace);
    wxSizer* const projects = MakeProjects(page);
    auto* const right = new wxBoxSizer(wxVERTICAL);
    right->Add(MakeFiles(page), wxSizerFlags(1).Expand().Border(wxBOTTOM, narrow));
    right->Add(MakeReport(page), wxSizerFlags(1).Expand());
    wxSizer* const upper = page->Columns(projects, 2, right, 3);

    auto* const column = new wxBoxSizer(wxVERTICAL);
    AddStartFrame(column, page, tabGeneral, upper);
    column->AddSpacer(narrow);
    column->Add(MakeOwner(page), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));
    page->SetSizer(column);
    return page;
}

}  // namespace korvande
