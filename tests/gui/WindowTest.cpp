#include "tests/gui/WindowTest.h"

#include <wx/choice.h>

namespace korvande::testing {

WindowTest::WindowTest() { InstallLiscad(); }

WindowTest::~WindowTest() {
    if (window != nullptr) window->Destroy();
    WaitUntil("the end of the window", [this] { return window == nullptr; });
}

void WindowTest::Start(TextView commandLine, bool asksRegistration) {
    window = OpenMainWindow(screen, form, {Text(commandLine), asksRegistration});
    if (window == nullptr) return;
    // The keyboard goes to the window under the mouse where no window manager hands out the focus.
    WaitUntil("the window", [this] { return window->IsShownOnScreen(); });
    simulator.MouseMove(window->GetScreenPosition() + wxPoint(window->GetSize().x / 2, 5));
    LetEventsRun();
}

void WindowTest::Close() {
    window->Close();
    LetEventsRun();
}

void WindowTest::Press(const char* button) const {
    auto& control = Find<wxButton>(button);
    wxCommandEvent event(wxEVT_BUTTON, control.GetId());
    event.SetEventObject(&control);
    ASSERT_TRUE(control.IsEnabled()) << button;
    control.ProcessWindowEvent(event);
}

void WindowTest::Choose(const char* list, int index) const {
    auto& control = Find<wxControlWithItems>(list);
    control.SetSelection(index);
    const bool isChoice = dynamic_cast<wxChoice*>(&control) != nullptr;
    wxCommandEvent event(isChoice ? wxEVT_CHOICE : wxEVT_LISTBOX, control.GetId());
    event.SetEventObject(&control);
    event.SetInt(index);
    ASSERT_TRUE(control.IsEnabled()) << list;
    control.ProcessWindowEvent(event);
}

void WindowTest::Type(const char* textBox, const std::string& text) const {
    ASSERT_TRUE(Find<wxTextCtrl>(textBox).IsEnabled()) << textBox;
    Find<wxTextCtrl>(textBox).SetValue(wxString::FromUTF8(text));
}

void WindowTest::SelectTab(int tab) const {
    Find<wxNotebook>("tabs").SetSelection(static_cast<size_t>(tab));
    LetEventsRun();
}

void WindowTest::Click(const char* control) {
    const auto& target = Find<wxWindow>(control);
    simulator.MouseMove(target.GetScreenRect().GetPosition() + target.GetSize() / 2);
    LetEventsRun();
    simulator.MouseClick();
    LetEventsRun();
}

void WindowTest::DoubleClick(wxPoint place) {
    simulator.MouseMove(place);
    LetEventsRun();
    simulator.MouseDblClick();
    LetEventsRun();
}

void WindowTest::Keys(const std::string& characters) {
    simulator.Text(characters.c_str());
    LetEventsRun();
}

void WindowTest::Key(int key, int modifiers) {
    simulator.Char(key, modifiers);
    LetEventsRun();
}

void WindowTest::WaitForKeyboard() {
    bool hasKeyboard = false;
    const auto look = [&hasKeyboard](wxKeyEvent& event) {
        hasKeyboard = hasKeyboard || event.GetKeyCode() == WXK_F12;
        event.Skip();
    };
    window->Bind(wxEVT_CHAR_HOOK, look);
    WaitUntil("the keyboard", [&] {
        if (!hasKeyboard) Key(WXK_F12);
        wxMilliSleep(20);
        LetEventsRun();
        return hasKeyboard;
    });
    window->Unbind(wxEVT_CHAR_HOOK, look);
}

std::string WindowTest::TextOf(const char* textBox) const { return Find<wxTextCtrl>(textBox).GetValue().utf8_string(); }

}  // namespace korvande::testing
