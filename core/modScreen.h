#pragma once

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <vector>

#include "core/Text.h"

// How the program speaks to a person. Everything below the front ends is handed the screen of the front end (or of the
// test) that it works for.
namespace korvande {

enum class Icon { None, Information, Question, Critical };
enum class Buttons { Ok, OkCancel, RetryCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Retry, Yes, No };

struct MessageBox {
    Text text;  // lines are separated by a line feed
    Text title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
};

// How often a screen hears of progress and lets events run: at most every 50 ms, however many records pass, and less
// often when that takes long.
struct ProgressPace {
    unsigned recordsSinceLook = 0;  // at the clock
    unsigned recordsPerLook = 16;   // more as they go by fast, fewer as they go by slowly
    std::chrono::steady_clock::time_point lastLook;
    std::chrono::steady_clock::time_point lastShown;
    std::chrono::steady_clock::duration pause{};  // from there to the next time

    // How far the step has come, until the screen has heard of it: a reader steps at every line and lets events run at
    // every row, and whichever of the two the time falls on tells the screen.
    std::int64_t value = 0;
    bool hasValue = false;
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

    ProgressPace pace;
};

// A screen that nobody looks at: messages are answered with OK when they have only that button, with Cancel otherwise.
class SilentScreen : public Screen {
 public:
    void ShowStatus(TextView) override {}
    void ShowProgressMaximum(std::int64_t) override {}
    void ShowProgressValue(std::int64_t) override {}
    void PumpEvents() override {}
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override {
        return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
    bool ViewTextFile(TextView) override { return false; }
    bool Print(const MakePages&) override { return false; }
};

// Begins the progress of a step: `maximum` units, none done yet.
void BeginProgress(Screen& screen, std::int64_t maximum);

// Tells the screen how far the step has come when that is due, and lets waiting events run.
void TellProgress(Screen& screen);

// Lets waiting events run. Made to be called for every record, of which only some look at the clock.
inline void ProcessEvents(Screen& screen) {
    if (++screen.pace.recordsSinceLook >= screen.pace.recordsPerLook) TellProgress(screen);
}

// The same, having come so far in the step.
inline void StepProgress(Screen& screen, std::int64_t value) {
    screen.pace.value = value;
    screen.pace.hasValue = true;
    ProcessEvents(screen);
}

// A message with an OK button.
void ShowMessage(Screen& screen, TextView text, Icon icon = Icon::None, TextView title = {});

// The Retry/Cancel message about a file for the error being handled (call inside a catch block): whether to try again.
bool AskRetry(Screen& screen, TextView name, TextView verb);

// Runs an action that opens a file. When it fails, the Retry/Cancel message "Kon bestand: 'name' niet <verb>;" tells
// so; Retry runs it again, as often as asked. False after Cancel.
template <class Action>
bool TryWithRetry(Screen& screen, TextView name, TextView verb, Action action) {
    while (true) {
        try {
            action();
            return true;
        } catch (const std::exception&) {
            if (!AskRetry(screen, name, verb)) return false;
        }
    }
}

// The busy pointer, as long as this object lives.
class BusyPointer {
 public:
    explicit BusyPointer(Screen& itsScreen) : screen(itsScreen) { screen.ShowBusy(true); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer() { screen.ShowBusy(false); }

 private:
    Screen& screen;
};

}  // namespace korvande
