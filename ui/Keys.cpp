#include "ui/Keys.h"

#include <wx/choice.h>
#include <wx/stattext.h>

#include "ui/Areas.h"

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

// The headers have the keyboard then: the control that had it is not on the screen any more.
void ChangeTab(wxNotebook& tabs, bool forward) {
    tabs.SetFocus();
    tabs.AdvanceSelection(forward);
    tabs.SetFocus();
}

// From the headers into the page below them.
void EnterPage(wxNotebook& tabs) {
    wxWindow* const page = tabs.GetCurrentPage();
    wxNavigationKeyEvent event;
    event.SetDirection(true);
    event.SetEventObject(&tabs);
    if (!page->HandleWindowEvent(event)) page->SetFocus();
}

bool DoKey(wxFrame& frame, wxNotebook& tabs, const wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const int modifiers = event.GetModifiers();
    const bool isBack = (modifiers & wxMOD_SHIFT) != 0;
    const int others = modifiers & ~wxMOD_SHIFT;
    // The toolkit does not always know which control has the keyboard.
    auto* const focused = dynamic_cast<wxWindow*>(event.GetEventObject());
    if (modifiers == wxMOD_ALT) {
        wxChoice* const list = ListOf(frame, key);
        if (list != nullptr) list->SetFocus();
        return list != nullptr;
    }
    if (key == WXK_TAB && others == wxMOD_CONTROL) {
        ChangeTab(tabs, !isBack);
    } else if ((key == WXK_PAGEDOWN || key == WXK_PAGEUP) && modifiers == wxMOD_CONTROL) {
        ChangeTab(tabs, key == WXK_PAGEDOWN);
    } else if (key == WXK_F6 && others == wxMOD_NONE) {
        GoToNextArea(tabs, focused, !isBack);
    } else if (key == WXK_TAB && modifiers == wxMOD_NONE && focused == &tabs && tabs.GetCurrentPage()->IsEnabled()) {
        EnterPage(tabs);
    } else {
        return false;
    }
    return true;
}

// The headers are on the way of the Tab key: between what is before the tabs and their page, in both directions.
void OnNavigation(wxNotebook& tabs, wxNavigationKeyEvent& event) {
    const bool comesFromPage = event.GetEventObject() != tabs.GetParent();
    if (event.IsWindowChange() || comesFromPage == event.GetDirection()) {
        event.Skip();
    } else {
        tabs.SetFocus();
    }
}

}  // namespace

void BindKeys(wxFrame& frame, wxNotebook& tabs) {
    frame.Bind(wxEVT_CHAR_HOOK, [&frame, &tabs](wxKeyEvent& event) {
        if (!DoKey(frame, tabs, event)) event.Skip();
    });
    tabs.Bind(wxEVT_NAVIGATION_KEY, [&tabs](wxNavigationKeyEvent& event) { OnNavigation(tabs, event); });
}

}  // namespace korvande
