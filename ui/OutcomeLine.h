#pragma once

#include <wx/panel.h>

#include <functional>

class wxBoxSizer;
class wxButton;
class wxTextCtrl;

namespace korvande {

struct FormKORVANDE;

// What became of the last translation, in a line that stays below the tabs: red when something was lost. Its buttons
// show what was lost, left out and accounted for, the log book and the output's folder.
class OutcomeLine : public wxPanel {
 public:
    OutcomeLine(wxWindow* parent, const FormKORVANDE& form);

    // Called when a person wants to add the codes that the last run did not know.
    std::function<void()> onUnknownCodes = [] {};

    // Called when a person wants to see what became of the drawing.
    std::function<void()> onCompare = [] {};

    // Takes the last run from the form. Before the first run the line is not there.
    void ShowForm();

 private:
    void ShowOverview();

    // The buttons beside the line, or below it when its text would be cut.
    void PlaceParts();

    const FormKORVANDE& form;
    wxTextCtrl* line;
    wxButton* logBook;
    wxButton* unknownCodes;
    wxButton* compare;
    wxBoxSizer* buttons;
    wxBoxSizer* parts;
};

}  // namespace korvande
