#include "ui/Binding.h"

#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "ui/WxText.h"

namespace korvande {

namespace {

template <class Value>
struct Bound {
    const char* name;
    Value FormKORVANDE::*value;
};

constexpr Bound<Text> texts[] = {
    {"txtFileSUFNEN", &FormKORVANDE::txtFileSUFNEN},
    {"txtFileIDEX", &FormKORVANDE::txtFileIDEX},
    {"txtProject", &FormKORVANDE::txtProject},
    {"txtNameLong", &FormKORVANDE::txtNameLong},
    {"txtNameShort", &FormKORVANDE::txtNameShort},
    {"txtStreet", &FormKORVANDE::txtStreet},
    {"txtNumber", &FormKORVANDE::txtNumber},
    {"txtSuffix", &FormKORVANDE::txtSuffix},
    {"txtZipcode", &FormKORVANDE::txtZipcode},
    {"txtCity", &FormKORVANDE::txtCity},
    {"txtSource", &FormKORVANDE::txtSource},
    {"txtMinX", &FormKORVANDE::txtMinX},
    {"txtMaxX", &FormKORVANDE::txtMaxX},
    {"txtMinY", &FormKORVANDE::txtMinY},
    {"txtMaxY", &FormKORVANDE::txtMaxY},
    {"txtPnoTxtLKI", &FormKORVANDE::txtPnoTxtLKI},
    {"txtEleTxtLKI", &FormKORVANDE::txtEleTxtLKI},
    {"txtAltDatum", &FormKORVANDE::txtAltDatum},
};

constexpr Bound<Text> labels[] = {
    {"lblVersion", &FormKORVANDE::lblVersion},
    {"lblHeaderVersion", &FormKORVANDE::lblVersion},
};

constexpr Bound<bool> checks[] = {
    {"chkImportUnknowns", &FormKORVANDE::chkImportUnknowns},
    {"chkImportSymRotation", &FormKORVANDE::chkImportSymRotation},
    {"chkSelectXY", &FormKORVANDE::chkSelectXY},
    {"chkExportUnknowns", &FormKORVANDE::chkExportUnknowns},
    {"chkExportPointnoAsField", &FormKORVANDE::chkExportPointnoAsField},
    {"chkExportPointnoAsText", &FormKORVANDE::chkExportPointnoAsText},
    {"chkExport3D", &FormKORVANDE::chkExport3D},
    {"chkExportHeightAsText", &FormKORVANDE::chkExportHeightAsText},
    {"chkExportSymRotation", &FormKORVANDE::chkExportSymRotation},
};

// File1 is not among them: to pick a project there does more than to select it.
constexpr Bound<ListControl> lists[] = {
    {"cboXlateMode", &FormKORVANDE::cboXlateMode},
    {"lstSource", &FormKORVANDE::lstSource},
};

}  // namespace

Binding::Binding(wxWindow& window, FormKORVANDE& itsForm) : form(itsForm) {
    for (const auto& [name, value] : texts) BindText(window, name, value);
    for (const auto& [name, value] : labels) BindLabel(window, name, value);
    for (const auto& [name, value] : checks) BindCheck(window, name, value);
    for (const auto& [name, value] : lists) BindList(window, name, value);
    BindOptions(window,
                {{"optReportScreen", &FormKORVANDE::optReportScreen},
                 {"optReportDisk", &FormKORVANDE::optReportDisk},
                 {"optReportPrinter", &FormKORVANDE::optReportPrinter},
                 {"optReportNone", &FormKORVANDE::optReportNone}},
                [this](bool FormKORVANDE::*option) { form.SelectReport(option); });
    BindOptions(window,
                {{"optDateSEE", &FormKORVANDE::optDateSEE},
                 {"optDateNow", &FormKORVANDE::optDateNow},
                 {"optDateAlt", &FormKORVANDE::optDateAlt}},
                [this](bool FormKORVANDE::*option) { form.SetDateOption(option, true); });
    auto& altDatum = ControlNamed<wxWindow>(window, "txtAltDatum");
    showing.emplace_back([this, &altDatum] { altDatum.Enable(form.txtAltDatumEnabled); });
}

void Binding::Show() const {
    for (const auto& show : showing) show();
}

void Binding::BindText(wxWindow& window, const char* name, Text FormKORVANDE::*value) {
    auto& box = ControlNamed<wxTextCtrl>(window, name);
    box.Bind(wxEVT_TEXT, [this, &box, value](wxCommandEvent&) { form.*value = FromWx(box.GetValue()); });
    showing.emplace_back([this, &box, value] {
        const wxString text = ToWx(form.*value);
        if (box.GetValue() != text) box.ChangeValue(text);
    });
}

void Binding::BindLabel(wxWindow& window, const char* name, Text FormKORVANDE::*value) {
    auto& label = ControlNamed<wxStaticText>(window, name);
    showing.emplace_back([this, &label, value] { label.SetLabelText(ToWx(form.*value)); });
}

void Binding::BindCheck(wxWindow& window, const char* name, bool FormKORVANDE::*value) {
    auto& box = ControlNamed<wxCheckBox>(window, name);
    box.Bind(wxEVT_CHECKBOX, [this, &box, value](wxCommandEvent&) { form.*value = box.GetValue(); });
    showing.emplace_back([this, &box, value] { box.SetValue(form.*value); });
}

void Binding::BindList(wxWindow& window, const char* name, ListControl FormKORVANDE::*value) {
    auto& list = ControlNamed<wxWindow>(window, name);
    auto& items = dynamic_cast<wxItemContainer&>(list);
    const auto take = [this, &items, value](wxCommandEvent&) { (form.*value).index = items.GetSelection(); };
    list.Bind(wxEVT_CHOICE, take);
    list.Bind(wxEVT_LISTBOX, take);
    showing.emplace_back([this, &items, value] { ShowList(items, form.*value); });
}

void Binding::BindOptions(wxWindow& window, std::initializer_list<Option> options,
                          const std::function<void(bool FormKORVANDE::*)>& select) {
    std::vector<std::pair<wxRadioButton*, bool FormKORVANDE::*>> buttons;
    for (const auto& [name, value] : options) {
        auto& button = ControlNamed<wxRadioButton>(window, name);
        button.Bind(wxEVT_RADIOBUTTON, [this, select, value = value](wxCommandEvent&) {
            select(value);
            Show();
        });
        buttons.emplace_back(&button, value);
    }
    // A group always has one button selected; when the form has none, that is one that nobody sees.
    wxWindow* const box = buttons.front().first->GetParent();
    auto* const none = new wxRadioButton(box, wxID_ANY, wxEmptyString);
    none->Hide();
    none->MoveAfterInTabOrder(buttons.back().first);
    showing.emplace_back([this, buttons, none] {
        wxRadioButton* chosen = none;
        for (const auto& [button, value] : buttons) {
            if (form.*value) chosen = button;
        }
        chosen->SetValue(true);
    });
}

void ShowList(wxItemContainer& items, const ListControl& list) {
    wxArrayString shown;
    for (const Text& item : list.items) shown.push_back(ToWx(item));
    if (items.GetStrings() != shown) items.Set(shown);
    const int selection = list.items.empty() ? wxNOT_FOUND : list.index;
    if (items.GetSelection() != selection) items.SetSelection(selection);
}

}  // namespace korvande
