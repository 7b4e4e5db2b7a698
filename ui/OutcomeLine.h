#pragma once

#include <wx/panel.h>

class wxButton;
class wxStaticText;

namespace korvande {

struct FormKORVANDE;

// What became of the last translation, in a line that stays below the tabs: red when something was lost. Its buttons
// show what was lost, left out and accounted for, the log book and the output's folder.
class OutcomeLine : public wxPanel {
 public:
    OutcomeLine(wxWindow* parent, const FormKORVANDE& form);

    // Takes the last run from the form. Before the first run the line is not there.
    void ShowForm();

 private:
    void ShowOverview();
    void ShowLogBook();
    void OpenFolder();

    const FormKORVANDE& form;
    wxStaticText* line;
    wxButton* logBook;
};

}  // namespace korvande
