#include "tests/gui/Dialogs.h"

#include <wx/app.h>
#include <wx/printdlg.h>

#include "tests/gui/Waiting.h"
#include "ui/MessageDialog.h"
#include "ui/WxText.h"

namespace korvande::testing {

namespace {

std::string Utf8(const wxString& text) { return text.utf8_string(); }

// A button's caption without the mark of its mnemonic, however the platform marks it.
std::string Caption(wxString label) {
    label.Replace("_", "");
    return Utf8(wxStripMenuCodes(label));
}

// The captions of its buttons, separated by blanks.
std::string Labels(const MessageDialog& box) {
    std::string labels;
    for (const int id : {wxID_YES, wxID_NO, wxID_OK, wxID_CANCEL}) {
        const wxWindow* const button = box.FindWindow(id);
        if (button != nullptr) labels += (labels.empty() ? "" : " ") + Caption(button->GetLabel());
    }
    return labels;
}

}  // namespace

int Dialogs::Enter(wxDialog* dialog) {
    // Some dialogs tell twice that they are about to be shown.
    if (dialog == shown) return wxID_NONE;
    if (auto* const box = dynamic_cast<MessageDialog*>(dialog)) return Answer(*box);
    if (auto* const file = dynamic_cast<wxFileDialog*>(dialog)) return Answer(*file);
    // Printing goes through a dialog that is not shown.
    if (dynamic_cast<wxPrintDialogBase*>(dialog) != nullptr) return wxID_NONE;
    if (!onDialog) return wxID_CANCEL;
    shown = dialog;
    dialog->CallAfter([this, dialog] { onDialog(*dialog); });
    return wxID_NONE;
}

void Dialogs::Exit(wxDialog* dialog) {
    if (dialog != shown) return;
    shown = nullptr;
    repeating.reset();
}

int Dialogs::Answer(MessageDialog& box) {
    messages.push_back(Utf8(box.Message()));
    titles.push_back(Utf8(box.GetTitle()));
    labels.push_back(Labels(box));
    if (onShownMessage) {
        shown = &box;
        repeating = std::make_unique<Repeating>(onShownMessage);
        return wxID_NONE;
    }
    if (onMessage) onMessage();
    if (buttons.empty()) return box.GetEscapeId();
    const int button = buttons.front();
    buttons.pop_front();
    return button;
}

int Dialogs::Answer(wxFileDialog& dialog) {
    fileQuestions.push_back({Utf8(dialog.GetMessage()), Utf8(dialog.GetWildcard()), Utf8(dialog.GetDirectory()),
                             dialog.HasFlag(wxFD_OPEN)});
    if (files.empty()) return wxID_CANCEL;
    const wxString name = ToWx(files.front());
    files.pop_front();
    shown = &dialog;
    // The dialog takes a name only when it has looked into the folder, which it does while it is shown.
    wxTheApp->CallAfter([&dialog, name] {
        dialog.SetPath(name);
        WaitUntil("the name in the file dialog", [&] { return dialog.GetPath() == name; });
        wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
        dialog.ProcessWindowEvent(ok);
    });
    return wxID_NONE;
}

}  // namespace korvande::testing
