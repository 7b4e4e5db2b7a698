#pragma once

#include <wx/dialog.h>

#include "core/modScreen.h"

namespace korvande {

// A message box that is the same on every system: with the icon asked for and Dutch words on the buttons, which stand
// in the system's order. ShowModal gives the button's id; Escape and the closing of the window are Cancel, else No,
// else OK. Ctrl+C copies the message.
class MessageDialog : public wxDialog {
 public:
    MessageDialog(wxWindow* parent, TextView text, TextView title, Icon icon, Buttons buttons);

    // As it was given, without the line breaks that make it fit.
    const wxString& Message() const { return message; }

 private:
    wxSizer* MakeMessage(Icon icon);
    wxSizer* MakeButtons(Buttons buttons);
    void CopyMessage() const;

    wxString message;
};

// A text with line breaks put in where its lines would become wider than a window's text may be: behind a blank, else
// behind a folder's name, else anywhere.
wxString WrappedText(const wxWindow& window, const wxString& text, int width);

}  // namespace korvande
