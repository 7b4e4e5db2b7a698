#include "ui/ProjectDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

wxButton* MakeDialogButton(wxWindow* parent, wxWindowID id, const char* name, TextView caption) {
    auto* const button = new wxButton(parent, id, ToWx(caption));
    button->SetName(name);
    return button;
}

}  // namespace

ProjectDialog::ProjectDialog(wxWindow* parent, TextView caption, TextView explanation, TextView prompt, TextView name)
    : wxDialog(parent, wxID_ANY, ToWx(caption)) {
    constexpr int nameLength = 36;
    SetName("frmProjectDialog");
    nameBox = MakeTextBox(this, "txtProjectName", nameLength, 0);
    nameBox->ChangeValue(ToWx(name));
    wxButton* const ok = MakeDialogButton(this, wxID_OK, "OKButton", u"&OK");
    auto* const buttons = new wxStdDialogButtonSizer();
    buttons->AddButton(ok);
    buttons->AddButton(MakeDialogButton(this, wxID_CANCEL, "CancelButton", u"&Annuleren"));
    buttons->Realize();

    auto* const column = new wxBoxSizer(wxVERTICAL);
    const auto flags = wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(wideSpace));
    column->Add(MakeLabel(this, explanation, "lblExplanation"), flags);
    column->Add(MakeLabel(this, prompt, "lblPrompt"), wxSizerFlags(flags).Border(wxBOTTOM, FromDIP(narrowSpace)));
    column->Add(nameBox, flags);
    column->Add(buttons, wxSizerFlags().Expand());
    auto* const margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(wideSpace)));
    SetSizerAndFit(margin);
    CentreOnParent();
    ok->SetDefault();
    nameBox->SetFocus();
    nameBox->SelectAll();
}

Text ProjectDialog::Name() const { return FromWx(nameBox->GetValue()); }

std::optional<Text> AskProjectName(wxWindow* parent, TextView caption, TextView explanation, TextView prompt,
                                   TextView name) {
    ProjectDialog dialog(parent, caption, explanation, prompt, name);
    if (dialog.ShowModal() != wxID_OK) return {};
    return dialog.Name();
}

}  // namespace korvande
