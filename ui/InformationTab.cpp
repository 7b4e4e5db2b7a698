#include "ui/InformationTab.h"

#include "app/frmKORVANDE.h"
#include "core/Version.h"
#include "ui/Controls.h"
#include "ui/Folders.h"
#include "ui/Manual.h"
#include "ui/Page.h"
#include "ui/SelectableText.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr TextView explanation =
    u"KORVANDE vertaalt tekeningen tussen IDEX, het uitwisselformaat van LISCAD, en de uitwisselformaten "
    u"NEN1878 en SUF2 van de grootschalige basiskaart.\n\n"
    u"1.  Kies op het blad Algemeen een project, de bestanden en de soort vertaling.\n"
    u"2.  Kijk op het blad Instellingen of de opties van het project goed staan.\n"
    u"3.  De codetabellen op de bladen Puntobjecten, Lijnobjecten en Tekstobjecten zeggen welke LKI-code bij welke "
    u"Liscad code hoort. De eerste regel geldt voor alle codes die er niet in staan.\n"
    u"4.  Start Vertaling bewaart het project, vertaalt het bestand en maakt een logboek.";

// A fact with what stands behind it, or nothing there.
void AddFact(wxFlexGridSizer* facts, wxWindow* page, const char* name, TextView caption, TextView value,
             wxWindow* behind = nullptr) {
    facts->Add(MakeLabel(page, caption), InRow());
    wxTextCtrl* const text = MakeSelectable(page, name, value.empty() ? TextView(u"-") : value);
    facts->Add(text, InRow(1).Expand());
    if (behind == nullptr) {
        facts->AddSpacer(0);
    } else {
        behind->MoveAfterInTabOrder(text);
        facts->Add(behind, InRow());
    }
}

wxButton* MakeManualButton(wxWindow* page, const FormKORVANDE& form) {
    wxButton* const button = MakeButton(page, "cmdManual", u"&Handleiding",
                                        u"Opent de handleiding; F1 opent haar overal bij het blad dat u voor u hebt");
    button->Bind(wxEVT_BUTTON, [&form](wxCommandEvent&) { OpenManual(form.screen, {}); });
    return button;
}

wxButton* MakeFolderButton(wxWindow* page, const FormKORVANDE& form) {
    wxButton* const button =
        MakeButton(page, "cmdOpenProjects", u"&Map openen", u"Opent de map waarin de controletabellen staan");
    button->Bind(wxEVT_BUTTON, [&form](wxCommandEvent&) { OpenFolder(form.screen, form.ProjectFolder); });
    return button;
}

}  // namespace

wxScrolledWindow* MakeInformationTab(wxWindow* parent, const FormKORVANDE& form) {
    constexpr int lineLength = 520;
    auto* const page = new Page(parent);
    const int wide = page->FromDIP(wideSpace);
    auto* const column = new wxBoxSizer(wxVERTICAL);

    wxStaticText* const title = MakeLabel(page, u"KORVANDE");
    title->SetFont(title->GetFont().Bold());
    column->Add(title, wxSizerFlags().Expand().Border(wxALL, wide));
    column->Add(MakeLabel(page, {}, "lblVersion"), wxSizerFlags().Border(wxLEFT | wxRIGHT, wide));

    wxStaticText* const text = MakeLabel(page, explanation);
    text->Wrap(page->FromDIP(lineLength));
    column->Add(text, wxSizerFlags().Border(wxALL, wide));
    column->Add(MakeManualButton(page, form), wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));

    const LiscadInstallation& liscad = form.liscad;
    auto* const facts = new wxFlexGridSizer(3, page->FromDIP(wxSize(2 * wideSpace, narrowSpace)));
    facts->AddGrowableCol(1);
    AddFact(facts, page, "txtOwnVersion", u"KORVANDE-versie:", versionText);
    AddFact(facts, page, "txtLiscadVersion", u"LISCAD-versie:", liscad.version);
    AddFact(facts, page, "txtLiscadLanguage", u"Taal van LISCAD:", liscad.language);
    AddFact(facts, page, "txtLiscadData", u"Gegevensmap van LISCAD:", liscad.dataPath);
    AddFact(facts, page, "txtProjectFolder", u"Map met de projecten:", form.ProjectFolder,
            MakeFolderButton(page, form));
    column->Add(facts, wxSizerFlags().Expand().Border(wxALL, wide));
    page->SetSizer(column);
    return page;
}

}  // namespace korvande
