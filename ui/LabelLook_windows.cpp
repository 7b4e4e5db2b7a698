#include <wx/notebook.h>
#include <wx/settings.h>

#include "ui/LabelLook.h"

namespace korvande {

// The system knows no colours that let others through. Where it draws the pages of tabs in its newer style it draws
// them white, whatever it tells of them.
void LookLikeLabel(wxTextCtrl& line) {
    const wxWindow& parent = *line.GetParent();
    const auto* const tabs = dynamic_cast<const wxNotebook*>(parent.GetParent());
    const bool isWhite = tabs != nullptr && tabs->GetThemeBackgroundColour().IsOk();
    line.SetBackgroundColour(isWhite ? wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW) : parent.GetBackgroundColour());
}

}  // namespace korvande
