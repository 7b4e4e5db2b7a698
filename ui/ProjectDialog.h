#pragma once

#include <wx/dialog.h>
#include <wx/textctrl.h>

#include <optional>

#include "core/Text.h"

namespace korvande {

// Asks for the name of a project (frmProjectDialog).
class ProjectDialog : public wxDialog {
 public:
    ProjectDialog(wxWindow* parent, TextView caption, TextView explanation, TextView prompt, TextView name);

    Text Name() const;

 private:
    wxTextCtrl* nameBox = nullptr;
};

// What was typed after OK; nothing after Cancel.
std::optional<Text> AskProjectName(wxWindow* parent, TextView caption, TextView explanation, TextView prompt,
                                   TextView name);

}  // namespace korvande
