#pragma once

#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <functional>
#include <optional>
#include <string>

#include "tests/app/AppTest.h"
#include "tests/gui/Dialogs.h"
#include "tests/gui/Waiting.h"
#include "ui/Binding.h"
#include "ui/MainWindow.h"
#include "ui/WindowScreen.h"
#include "ui/WxText.h"

namespace korvande::testing {

// A test in the real window, on a registry, a project folder and files of its own, driven as a person would: by mouse
// and keyboard, or by the events of single controls.
class WindowTest : public AppFiles {
 public:
    ~WindowTest() override;

 protected:
    WindowTest();

    // Starts the program as a command line does (interactively without one); the window, or none when the program ends.
    void Start(TextView commandLine = {}, bool asksRegistration = false);
    bool IsOpen() const { return window != nullptr; }
    void Close();

    template <class Control>
    Control& Find(const char* name) const {
        return ControlNamed<Control>(*window, name);
    }

    // By the control's own events.
    void Press(const char* button) const;
    void Choose(const char* list, int index) const;
    void Type(const char* textBox, const std::string& text) const;
    void SelectTab(int tab) const;

    // By mouse and keyboard.
    void Click(const char* control);
    void DoubleClick(wxPoint place);
    void Keys(const std::string& characters);
    void Key(int key, int modifiers = wxMOD_NONE);
    // A window manager takes its time to give the keyboard to a window: until then keys get lost.
    void WaitForKeyboard();

    // The texts of the status bar's first panel and of a text box, in UTF-8.
    std::string TextOf(const char* textBox) const;

    Dialogs dialogs;
    WindowScreen screen;
    FormKORVANDE form{screen};
    wxWeakRef<MainWindow> window;
    wxUIActionSimulator simulator;
};

}  // namespace korvande::testing
