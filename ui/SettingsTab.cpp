#include "ui/SettingsTab.h"

#include <wx/choice.h>
#include <wx/listbox.h>

#include "app/TabPlacement.h"
#include "project/Options.h"
#include "ui/Controls.h"
#include "ui/Page.h"
#include "ui/StartRow.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr TextView symRotationTip =
    u"Aangevinkt wijst de lijn van het eerste naar het tweede punt van een symbool naar het noorden van het symbool";

// The option to write something as texts, with the box for their code behind it.
void AddTextOption(wxSizer* rows, wxWindow* box, const char* name, TextView caption, TextView tip,
                   const char* codeName) {
    constexpr int codeLength = 7;
    rows->Add(MakeCheckBox(box, name, caption, tip), InRow());
    rows->Add(MakeTextBox(box, codeName, codeLength + 2, codeLength, u"LKI-code van deze teksten"), InRow());
}

void AddRange(wxSizer* rows, wxWindow* box, TextView caption, const char* least, const char* most) {
    constexpr int coordinate = 10;
    rows->Add(MakeLabel(box, caption), InRow());
    rows->Add(MakeTextBox(box, least, coordinate, 0), InRow(1).Expand());
    rows->Add(MakeLabel(box, u"tot"), InRow());
    rows->Add(MakeTextBox(box, most, coordinate, 0), InRow(1).Expand());
}

// What holds for every file that is read, whatever is made of it.
wxSizer* MakeReading(wxWindow* page) {
    Group group(page, "framReading", u"Inlezen: van elk IDEX-, NEN1878- of SUF2-bestand");
    wxWindow* const box = group.box;
    // Its letter leads to the control behind it.
    wxStaticText* const label = MakeLabel(box, u"Te&kenset van het bestand:");
    auto* const sets = new wxChoice(box, wxID_ANY);
    for (const TextView name : characterSetNames) sets->Append(ToWx(name));
    sets->SetName("cboCharacterSet");
    PassWheelOn(*sets);
    sets->SetToolTip(
        ToWx(u"Hoe letters met accenten in het invoerbestand staan. Automatisch: als Windows-1252, en regels die als "
             u"UTF-8 zijn geschreven, als UTF-8. CP850 is voor oude DOS-bestanden"));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(label, InRow().Border(wxRIGHT, box->FromDIP(narrowSpace)));
    row->Add(sets, InRow().Border(wxRIGHT, box->FromDIP(2 * wideSpace)));
    row->Add(MakeCheckBox(box, "chkWithoutZeroes", u"Punten zonder coördinaten &weglaten",
                          u"Aangevinkt gaan punten die in het invoerbestand geen coördinaten hebben, niet mee, en ook "
                          u"de lijnen en teksten die aan zo'n punt vastzitten niet; anders komen ze op 0,0 te staan"),
             InRow());
    group.Add(row);
    return group.frame;
}

wxSizer* MakeImport(wxWindow* page) {
    Group group(page, "framImport", u"Import: van NEN1878 of SUF2 naar IDEX");
    wxWindow* const box = group.box;
    group.Add(MakeCheckBox(box, "chkImportUnknowns", u"Onbekende objecten im&porteren",
                           u"Objecten waarvan de LKI-code niet in de codetabel staat, krijgen de Liscad code van de "
                           u"eerste regel; anders worden ze overgeslagen"));
    group.Add(MakeCheckBox(box, "chkImportSymRotation", u"Symboolrotatie aanpassen op &IGOS (P1--P2 = Noord)",
                           symRotationTip));
    group.Add(MakeCheckBox(box, "chkSelectXY", u"Alleen o&bjecten binnen deze rechthoek (meters):",
                           u"Wat buiten de rechthoek ligt, wordt niet geïmporteerd"));
    auto* const ranges = new wxFlexGridSizer(4, box->FromDIP(wxSize(narrowSpace, narrowSpace)));
    ranges->AddGrowableCol(1);
    ranges->AddGrowableCol(3);
    AddRange(ranges, box, u"&X van", "txtMinX", "txtMaxX");
    AddRange(ranges, box, u"&Y van", "txtMinY", "txtMaxY");
    group.Add(ranges);
    return group.frame;
}

wxSizer* MakeSources(wxWindow* page) {
    Group group(page, "framSource", u"G-veld, Bronvermelding");
    // High enough for all its items, which have some room around them.
    constexpr auto items = static_cast<int>(sourceKinds.size());
    auto* const list = new wxListBox(group.box, wxID_ANY);
    for (const TextView kind : sourceKinds) list->Append(ToWx(kind));
    list->SetInitialSize(
        wxSize(list->FromDIP(150), (items + 1) * (list->GetCharHeight() + list->FromDIP(narrowSpace))));
    list->SetName("lstSource");
    list->SetToolTip(ToWx(u"Hoe de export-objecten zijn ingewonnen"));
    group.Add(list, 1);
    return group.frame;
}

wxSizer* MakeExport(wxWindow* page) {
    Group group(page, "framExport", u"Export: van IDEX naar NEN1878 of SUF2");
    wxWindow* const box = group.box;
    group.Add(MakeCheckBox(box, "chkExportUnknowns", u"&Onbekende objecten exporteren",
                           u"Objecten waarvan de Liscad code niet in de codetabel staat, krijgen de LKI-code van de "
                           u"eerste regel; anders worden ze overgeslagen.\nOok bij import bepaalt dit of het logboek "
                           u"een overzicht van onbekende objecten bevat"));
    group.Add(MakeCheckBox(box, "chkExport3D", u"&Hoogten (Z) meegeven", u"Schrijft de hoogte bij elk punt"));
    group.Add(MakeCheckBox(box, "chkExportPointnoAsField", u"Puntnummers als &N-veld",
                           u"Schrijft het puntnummer bij elk punt dat er een heeft"));
    auto* const texts = new wxFlexGridSizer(2, box->FromDIP(wxSize(narrowSpace, narrowSpace)));
    AddTextOption(texts, box, "chkExportPointnoAsText", u"Puntnummers als &tekst, LKI-code:",
                  u"Schrijft bij elk punt met een puntnummer een tekst met deze code", "txtPnoTxtLKI");
    AddTextOption(texts, box, "chkExportHeightAsText", u"Hoogten als t&ekst, LKI-code:",
                  u"Schrijft bij elk punt met een hoogte een tekst met deze code", "txtEleTxtLKI");
    group.Add(texts);
    group.Add(MakeCheckBox(box, "chkExportSymRotation", u"Symboolrotatie &aanpassen op IGOS (P1--P2 = Noord)",
                           symRotationTip));
    group.Add(MakeCheckBox(box, "chkThreePointArcs", u"Bogen als d&riepuntsboog wegschrijven",
                           u"Schrijft een boog met begin, een punt op de boog en einde, zoals andere programma's hem "
                           u"lezen; anders met zijn middelpunt"));
    return group.frame;
}

wxSizer* MakeDates(wxWindow* page) {
    constexpr int dateLength = 8;
    Group group(page, "framDate", u"Inwinningsdatum bij export");
    wxWindow* const box = group.box;
    group.Add(MakeOption(box, "optDateSEE", u"&Datum uit het IDEX-bestand", InGroup::First));
    group.Add(MakeOption(box, "optDateNow", u"Datum van vandaa&g", InGroup::Next));
    auto* const other = new wxBoxSizer(wxHORIZONTAL);
    other->Add(MakeOption(box, "optDateAlt", u"Andere datu&m (jjjjmmdd):", InGroup::Next),
               InRow().Border(wxRIGHT, box->FromDIP(narrowSpace)));
    other->Add(MakeTextBox(box, "txtAltDatum", dateLength + 2, 0), InRow());
    group.Add(other);
    return group.frame;
}

}  // namespace

wxScrolledWindow* MakeSettingsTab(wxWindow* parent) {
    auto* const page = new Page(parent);
    const int narrow = page->FromDIP(narrowSpace);
    const int wide = page->FromDIP(wideSpace);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    AddStartFrame(column, page, tabSettings, nullptr);

    column->AddSpacer(narrow);
    column->Add(MakeReading(page), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, wide));
    auto* const left = new wxBoxSizer(wxVERTICAL);
    left->Add(MakeImport(page), wxSizerFlags().Expand().Border(wxBOTTOM, narrow));
    left->Add(MakeSources(page), wxSizerFlags(1).Expand());
    auto* const right = new wxBoxSizer(wxVERTICAL);
    right->Add(MakeExport(page), wxSizerFlags().Expand().Border(wxBOTTOM, narrow));
    right->Add(MakeDates(page), wxSizerFlags().Expand());
    column->AddSpacer(narrow);
    column->Add(page->Columns(left, 1, right, 1), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));
    page->SetSizer(column);
    return page;
}

}  // namespace korvande
