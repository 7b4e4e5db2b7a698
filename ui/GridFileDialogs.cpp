#include "ui/GridFileDialogs.h"

#include <wx/filedlg.h>

#include <algorithm>
#include <array>

#include "ui/WxText.h"

namespace korvande {

namespace {

struct NamedForm {
    TextView name;
    CsvForm form;
};
// The first is what a Dutch spreadsheet program opens best.
constexpr std::array<NamedForm, 4> forms = {{{u"CSV met puntkomma's, UTF-8", {u';', true}},
                                             {u"CSV met puntkomma's, Windows-1252", {u';', false}},
                                             {u"CSV met komma's, UTF-8", {u',', true}},
                                             {u"CSV met komma's, Windows-1252", {u',', false}}}};

}  // namespace

std::optional<Text> AskImportName(wxWindow* parent) {
    wxFileDialog dialog(parent, ToWx(u"Codetabel importeren"), wxEmptyString, wxEmptyString,
                        ToWx(u"CSV-bestanden (*.csv)|*.csv;*.CSV;*.txt;*.TXT|Alle bestanden (*.*)|*"),
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() != wxID_OK) return {};
    return FromWx(dialog.GetPath());
}

std::optional<ExportChoice> AskExportName(wxWindow* parent) {
    Text filter;
    for (const NamedForm& form : forms) {
        AppendTo(filter, Concat(filter.empty() ? u"" : u"|", form.name, u" (*.csv)|*.csv"));
    }
    wxFileDialog dialog(parent, ToWx(u"Codetabel exporteren"), wxEmptyString, wxEmptyString, ToWx(filter),
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() != wxID_OK) return {};
    const auto choice = static_cast<std::size_t>(std::max(dialog.GetFilterIndex(), 0));
    return ExportChoice{FromWx(dialog.GetPath()), forms.at(std::min(choice, forms.size() - 1)).form};
}

}  // namespace korvande
