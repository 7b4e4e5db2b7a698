#pragma once

#include <wx/button.h>
#include <wx/statusbr.h>

namespace korvande {

struct FormKORVANDE;

// Stops the run that is going on; so does Escape in the whole window. As long as there is none the button is not there.
class StopButton : public wxButton {
 public:
    StopButton(wxStatusBar* bar, FormKORVANDE& itsForm);

    // Shows or hides it as the form is; true when it has just come into sight.
    bool ShowForm();

 private:
    void Stop();

    FormKORVANDE& form;
};

}  // namespace korvande
