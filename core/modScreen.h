#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <vector>

#include "core/Text.h"

// How the program speaks to a person. Everything below the front ends uses these procedures; what they do is decided by
// the screen that a front end (or a test) has put in place.
namespace korvande {

enum class Icon { None, Information, Question, Critical };
enum class Buttons { Ok, OkCancel, RetryCancel, YesNoCancel };
enum class Answer { Ok, Cancel, Retry, Yes, No };

struct MessageBox {
    Text text;  // lines are separated by a line feed
    Text title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
};

class Screen {
 public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    virtual void ShowStatus(TextView text) = 0;

    // The progress bar runs from 0 to `maximum`; showing a maximum puts it at 0.
    virtual void ShowProgressMaximum(std::int64_t maximum) = 0;
    virtual void ShowProgressValue(std::int64_t value) = 0;

    // Lets waiting events run; throws TranslationAborted when a person asked for the end of the run.
    virtual void PumpEvents() = 0;

    virtual void ShowBusy(bool busy) = 0;
    virtual Answer ShowMessage(const MessageBox& box) = 0;

    // Opens a text file in a viewer, without waiting for it; false when no viewer could be started.
    virtual bool ViewTextFile(TextView name) = 0;

    // Prints on the default printer, in Courier New 10. `makePages` gives the lines of each page for the number of
    // lines that the printer's page holds. False when it could not be printed.
    using MakePages = std::function<std::vector<std::vector<Text>>(int linesPerPage)>;
    virtual bool Print(const MakePages& makePages) = 0;
};

// The screen in place. Without one, everything is shown to nobody: messages are answered with Cancel or OK.
Screen& TheScreen() noexcept;

// Puts a screen in place as long as this object lives.
class ScreenInUse {
 public:
    explicit ScreenInUse(Screen& screen) noexcept;
    ScreenInUse(const ScreenInUse&) = delete;
    ScreenInUse& operator=(const ScreenInUse&) = delete;
    ~ScreenInUse();

 private:
    Screen* previous;
};

inline void ShowStatus(TextView text) { TheScreen().ShowStatus(text); }

// Begins the progress of a step: `maximum` units, none done yet.
void BeginProgress(std::int64_t maximum);

// Tells how far a step has come and lets waiting events run. Made to be called for every record: the screen hears of it
// at most every 50 ms.
void StepProgress(std::int64_t value);

// Lets waiting events run; the screen hears of it at most every 50 ms.
void ProcessEvents();

// A message with an OK button.
void ShowMessage(TextView text, Icon icon = Icon::None, TextView title = {});

// The Retry/Cancel message about a file for the error being handled (call inside a catch block): whether to try again.
bool AskRetry(TextView name, TextView verb);

// Runs an action that opens a file. When it fails, the Retry/Cancel message "Kon bestand: 'name' niet <verb>;" tells
// so; Retry runs it again, as often as asked. False after Cancel.
template <class Action>
bool TryWithRetry(TextView name, TextView verb, Action action) {
    while (true) {
        try {
            action();
            return true;
        } catch (const std::exception&) {
            if (!AskRetry(name, verb)) return false;
        }
    }
}

}  // namespace korvande
