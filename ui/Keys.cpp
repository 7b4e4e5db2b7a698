#include "ui/Keys.h"

#include <wx/choice.h>
#include <wx/notebook.h>
#include <wx/stattext.h>

namespace korvande {

namespace {

// The letter of a label, as a key's code; 0 without one.
int LetterOf(const wxStaticText& label) {
    const wxString caption = label.GetLabel();
    const int place = wxControl::FindAccelIndex(caption);
    if (place == wxNOT_FOUND) return 0;
    return static_cast<int>(wxToupper(wxControl::RemoveMnemonics(caption)[static_cast<size_t>(place)]));
}

// The list behind a label of this letter, in what is on the screen; none when the letter is no such label's. A text box
// behind its label is found by the toolkit itself.
// NOLINTNEXTLINE(misc-no-recursion): as deep as windows stand in each other
wxChoice* ListOf(const wxWindow& window, int letter) {
    // Other pages are not on the screen, though the toolkit may call them shown.
    if (const auto* const pages = dynamic_cast<const wxNotebook*>(&window)) {
        return pages->GetCurrentPage() == nullptr ? nullptr : ListOf(*pages->GetCurrentPage(), letter);
    }
    for (wxWindow* const child : window.GetChildren()) {
        if (!child->IsShown()) continue;
        if (const auto* const label = dynamic_cast<wxStaticText*>(child)) {
            auto* const list = dynamic_cast<wxChoice*>(label->GetNextSibling());
            if (list != nullptr && LetterOf(*label) == letter) return list->IsEnabled() ? list : nullptr;
        } else if (wxChoice* const list = ListOf(*child, letter)) {
            return list;
        }
    }
    return nullptr;
}

void OnKey(wxFrame& frame, wxKeyEvent& event) {
    if (event.GetModifiers() == wxMOD_ALT) {
        if (wxChoice* const list = ListOf(frame, event.GetKeyCode())) return list->SetFocus();
    }
    event.Skip();
}

}  // namespace

void BindKeys(wxFrame& frame) {
    frame.Bind(wxEVT_CHAR_HOOK, [&frame](wxKeyEvent& event) { OnKey(frame, event); });
}

}  // namespace korvande
