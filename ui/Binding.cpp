#include "ui/Binding.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <utility>

#include "app/frmKORVANDE.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

template <class Value>
struct Bound {
    const char* name;
    Value Options::*value;
};

constexpr Bound<Text> texts[] = {
    {"txtFileSUFNEN", &Options::txtFileSUFNEN},
    {"txtFileIDEX", &Options::txtFileIDEX},
    {"txtNameLong", &Options::txtNameLong},
    {"txtNameShort", &Options::txtNameShort},
    {"txtStreet", &Options::txtStreet},
    {"txtNumber", &Options::txtNumber},
    {"txtSuffix", &Options::txtSuffix},
    {"txtZipcode", &Options::txtZipcode},
    {"txtCity", &Options::txtCity},
    {"txtSource", &Options::txtSource},
    {"txtMinX", &Options::txtMinX},
    {"txtMaxX", &Options::txtMaxX},
    {"txtMinY", &Options::txtMinY},
    {"txtMaxY", &Options::txtMaxY},
    {"txtPnoTxtLKI", &Options::txtPnoTxtLKI},
    {"txtEleTxtLKI", &Options::txtEleTxtLKI},
    {"txtAltDatum", &Options::txtAltDatum},
};

constexpr Bound<bool> checks[] = {
    {"chkImportUnknowns", &Options::chkImportUnknowns},
    {"chkImportSymRotation", &Options::chkImportSymRotation},
    {"chkSelectXY", &Options::chkSelectXY},
    {"chkWithoutZeroes", &Options::chkWithoutZeroes},
    {"chkExportUnknowns", &Options::chkExportUnknowns},
    {"chkExportPointnoAsField", &Options::chkExportPointnoAsField},
    {"chkExportPointnoAsText", &Options::chkExportPointnoAsText},
    {"chkExport3D", &Options::chkExport3D},
    {"chkExportHeightAsText", &Options::chkExportHeightAsText},
    {"chkExportSymRotation", &Options::chkExportSymRotation},
    {"chkThreePointArcs", &Options::chkThreePointArcs},
};

// The boxes that count only while an option is set.
constexpr Bound<bool> dependents[] = {
    {"txtMinX", &Options::chkSelectXY},
    {"txtMaxX", &Options::chkSelectXY},
    {"txtMinY", &Options::chkSelectXY},
    {"txtMaxY", &Options::chkSelectXY},
    {"txtPnoTxtLKI", &Options::chkExportPointnoAsText},
    {"txtEleTxtLKI", &Options::chkExportHeightAsText},
    {"txtAltDatum", &Options::optDateAlt},
};

constexpr Bound<bool> reports[] = {
    {"optReportScreen", &Options::optReportScreen},
    {"optReportDisk", &Options::optReportDisk},
    {"optReportPrinter", &Options::optReportPrinter},
    {"optReportNone", &Options::optReportNone},
};

constexpr Bound<bool> dates[] = {
    {"optDateSEE", &Options::optDateSEE},
    {"optDateNow", &Options::optDateNow},
    {"optDateAlt", &Options::optDateAlt},
};

void ShowSelection(wxItemContainer& items, int selection) {
    if (items.GetSelection() != selection) items.SetSelection(selection);
}

}  // namespace

// A button of a group: the value that it shows, and what selects it.
struct Binding::OptionButton {
    wxRadioButton* button;
    const bool* value;
    std::function<void()> select;
};

Binding::Binding(wxWindow& window, FormKORVANDE& form) {
    Options& options = form.project.options;
    BindText(window, "txtProject", form.txtProject);
    for (const auto& [name, value] : texts) BindText(window, name, options.*value);
    for (const char* const name : {"lblVersion", "lblHeaderVersion"}) BindLabel(window, name, form.lblVersion);
    for (const auto& [name, value] : checks) BindCheck(window, name, options.*value);
    // File1 is not among them: to pick a project there does more than to select it.
    BindList(window, "cboXlateMode", form.cboXlateMode.index,
             [&form](wxItemContainer& items) { ShowList(items, form.cboXlateMode); });
    BindList(window, "lstSource", options.lstSource,
             [&options](wxItemContainer& items) { ShowSelection(items, options.lstSource); });
    BindCharacterSet(window, options);
    BindLogBookViewer(window, options);
    const auto buttonsOf = [&](const auto& group, auto select) {
        std::vector<OptionButton> buttons;
        for (const auto& [name, value] : group) {
            buttons.push_back({&ControlNamed<wxRadioButton>(window, name), &(options.*value),
                               [&options, value = value, select] { select(options, value); }});
        }
        return buttons;
    };
    BindOptions(buttonsOf(reports, SelectReport));
    BindOptions(buttonsOf(dates, [](Options& all, bool Options::*option) { SetDateOption(all, option, true); }));
    for (const auto& [name, value] : dependents) {
        auto& box = ControlNamed<wxWindow>(window, name);
        const bool& isSet = options.*value;
        showing.emplace_back([&box, &isSet] { box.Enable(isSet); });
    }
}

void Binding::Show() const {
    for (const auto& show : showing) show();
}

void Binding::BindText(wxWindow& window, const char* name, Text& value) {
    auto& box = ControlNamed<wxTextCtrl>(window, name);
    box.Bind(wxEVT_TEXT, [&box, &value](wxCommandEvent&) { value = FromWx(box.GetValue()); });
    showing.emplace_back([&box, &value] {
        const wxString text = ToWx(value);
        if (box.GetValue() != text) box.ChangeValue(text);
    });
}

void Binding::BindLabel(wxWindow& window, const char* name, const Text& value) {
    auto& label = ControlNamed<wxStaticText>(window, name);
    showing.emplace_back([&label, &value] { label.SetLabelText(ToWx(value)); });
}

void Binding::BindCheck(wxWindow& window, const char* name, bool& value) {
    auto& box = ControlNamed<wxCheckBox>(window, name);
    box.Bind(wxEVT_CHECKBOX, [this, &box, &value](wxCommandEvent&) {
        value = box.GetValue();
        Show();
    });
    showing.emplace_back([&box, &value] { box.SetValue(value); });
}

void Binding::BindList(wxWindow& window, const char* name, int& index, std::function<void(wxItemContainer&)> show) {
    auto& list = ControlNamed<wxWindow>(window, name);
    auto& items = dynamic_cast<wxItemContainer&>(list);
    const auto take = [&items, &index](wxCommandEvent&) { index = items.GetSelection(); };
    list.Bind(wxEVT_CHOICE, take);
    list.Bind(wxEVT_LISTBOX, take);
    showing.emplace_back([&items, show = std::move(show)] { show(items); });
}

// Its list is filled already.
void Binding::BindCharacterSet(wxWindow& window, Options& options) {
    auto& list = ControlNamed<wxChoice>(window, "cboCharacterSet");
    list.Bind(wxEVT_CHOICE,
              [&list, &options](wxCommandEvent&) { options.cboCharacterSet = FromWx(list.GetStringSelection()); });
    showing.emplace_back([&list, &options] { ShowSelection(list, static_cast<int>(CharacterSetOf(options))); });
}

// So is this one.
void Binding::BindLogBookViewer(wxWindow& window, Options& options) {
    auto& list = ControlNamed<wxChoice>(window, "cboLogBookViewer");
    list.Bind(wxEVT_CHOICE, [&list, &options](wxCommandEvent&) { options.logBookInWindow = list.GetSelection() == 0; });
    showing.emplace_back([&list, &options] { ShowSelection(list, options.logBookInWindow ? 0 : 1); });
}

void Binding::BindOptions(std::vector<OptionButton> group) {
    for (const OptionButton& option : group) {
        option.button->Bind(wxEVT_RADIOBUTTON, [this, select = option.select](wxCommandEvent&) {
            select();
            Show();
        });
    }
    // A group always has one button selected; when the form has none, that is one that nobody sees.
    wxWindow* const box = group.front().button->GetParent();
    auto* const none = new wxRadioButton(box, wxID_ANY, wxEmptyString);
    none->Hide();
    none->MoveAfterInTabOrder(group.back().button);
    showing.emplace_back([group = std::move(group), none] {
        wxRadioButton* chosen = none;
        for (const OptionButton& option : group) {
            if (*option.value) chosen = option.button;
        }
        chosen->SetValue(true);
    });
}

void ShowList(wxItemContainer& items, const ListControl& list) {
    wxArrayString shown;
    for (const Text& item : list.items) shown.push_back(ToWx(item));
    if (items.GetStrings() != shown) items.Set(shown);
    ShowSelection(items, list.items.empty() ? wxNOT_FOUND : list.index);
}

}  // namespace korvande
