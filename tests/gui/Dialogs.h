#pragma once

#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/timer.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/Text.h"

namespace korvande {
class MessageDialog;
}

namespace korvande::testing {

// Answers the window's modal dialogs in a person's place, and records them (in UTF-8).
class Dialogs : public wxModalDialogHook {
 public:
    Dialogs() { Register(); }

    // Message boxes: each takes the next of these buttons (wxID_YES, ...); when none is left, what Escape presses.
    std::deque<int> buttons;
    std::vector<std::string> messages;
    std::vector<std::string> titles;
    std::vector<std::string> labels;  // of the buttons, separated by blanks
    std::function<void()> onMessage;  // called before a message is answered

    // When set, message boxes are shown in earnest, and this is called again and again while one is.
    std::function<void()> onShownMessage;

    // File dialogs: each takes the next of these names; when none is left, Cancel.
    struct FileQuestion {
        std::string title;
        std::string wildcard;
        std::string folder;
        bool opens;
    };
    std::vector<FileQuestion> fileQuestions;
    std::deque<Text> files;

    // When set, any other dialog is shown in earnest, and this is called with it; otherwise it is cancelled.
    std::function<void(wxDialog&)> onDialog;

    std::string LastMessage() const { return messages.empty() ? "" : messages.back(); }

 protected:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

 private:
    // Calls an action again and again as long as this object lives.
    class Repeating : public wxTimer {
     public:
        explicit Repeating(std::function<void()> itsAction) : action(std::move(itsAction)) { Start(50); }
        void Notify() override { action(); }

     private:
        std::function<void()> action;
    };

    int Answer(MessageDialog& box);
    int Answer(wxFileDialog& dialog);

    wxDialog* shown = nullptr;
    std::unique_ptr<Repeating> repeating;
};

}  // namespace korvande::testing
