#include "ui/SelectableText.h"

#include "ui/LabelLook.h"
#include "ui/WxText.h"

namespace korvande {

wxTextCtrl* MakeSelectable(wxWindow* parent, const char* name, TextView text) {
    auto* const line = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                      wxTE_READONLY | wxBORDER_NONE);
    line->SetName(name);
    LookLikeLabel(*line);
    ShowSelectable(*line, text);
    return line;
}

void ShowSelectable(wxTextCtrl& line, TextView text) {
    const wxString shown = ToWx(text);
    if (line.GetValue() == shown) return;
    line.ChangeValue(shown);
    line.SetToolTip(shown);
}

}  // namespace korvande
