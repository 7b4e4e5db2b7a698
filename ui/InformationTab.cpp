#include "ui/InformationTab.h"

#include "app/frmKORVANDE.h"
#include "ui/Controls.h"
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

void AddFact(wxFlexGridSizer* facts, wxWindow* page, TextView caption, TextView value) {
    facts->Add(MakeLabel(page, caption), InRow());
    auto* const text = new wxStaticText(page, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                        wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
    text->SetLabelText(ToWx(value.empty() ? TextView(u"-") : value));
    facts->Add(text, InRow(1).Expand());
}

}  // namespace

wxScrolledWindow* MakeInformationTab(wxWindow* parent, const FormKORVANDE& form) {
    constexpr int lineLength = 520;
    wxScrolledWindow* const page = MakePage(parent);
    const int wide = page->FromDIP(wideSpace);
    auto* const column = new wxBoxSizer(wxVERTICAL);

    wxStaticText* const title = MakeLabel(page, u"KORVANDE");
    title->SetFont(title->GetFont().Bold());
    column->Add(title, wxSizerFlags().Expand().Border(wxALL, wide));
    column->Add(MakeLabel(page, {}, "lblVersion"), wxSizerFlags().Border(wxLEFT | wxRIGHT, wide));

    wxStaticText* const text = MakeLabel(page, explanation);
    text->Wrap(page->FromDIP(lineLength));
    column->Add(text, wxSizerFlags().Border(wxALL, wide));

    const LiscadInstallation& liscad = form.liscad;
    auto* const facts = new wxFlexGridSizer(2, page->FromDIP(wxSize(2 * wideSpace, narrowSpace)));
    facts->AddGrowableCol(1);
    AddFact(facts, page, u"LISCAD-versie:", liscad.version);
    AddFact(facts, page, u"Taal van LISCAD:", liscad.language);
    AddFact(facts, page, u"Gegevensmap van LISCAD:", liscad.dataPath);
    AddFact(facts, page, u"Map met de projecten:", form.ProjectFolder);
    column->Add(facts, wxSizerFlags().Expand().Border(wxALL, wide));
    page->SetSizer(column);
    return page;
}

}  // namespace korvande
