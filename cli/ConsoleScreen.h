#pragma once

#include <functional>

#include "core/modScreen.h"

namespace korvande {

// The screen of a console program: messages and, when wanted, progress (step text, bar and percentage on one line) on
// standard error, in UTF-8. A message box that can be cancelled is cancelled, for nobody is there to press a button;
// questions are answered by `answerQuestion`.
class ConsoleScreen : public Screen {
 public:
    explicit ConsoleScreen(bool withProgress) : showsProgress(withProgress) {}
    ~ConsoleScreen() override;

    // Answers a Yes/No/Cancel question; without it they are cancelled.
    std::function<Answer(const MessageBox&)> answerQuestion;

    // Whether somebody has asked for the end of the run (an interrupt).
    std::function<bool()> isInterrupted;

    void ShowStatus(TextView text) override;
    void ShowProgressMaximum(std::int64_t maximum) override;
    void ShowProgressValue(std::int64_t value) override;
    void PumpEvents() override;
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override;
    bool ViewTextFile(TextView) override { return false; }
    bool Print(const MakePages&) override { return false; }

    // Takes the progress line away, before something else is written.
    void ClearProgress();

 private:
    void DrawProgress();

    bool showsProgress;
    bool isDrawn = false;
    Text status;
    std::int64_t maximum = 1;
    std::int64_t value = 0;
};

// A bar of progress with its percentage behind it.
std::string ProgressBar(std::int64_t value, std::int64_t maximum);

// A text as a terminal may show it: control characters and bytes that are no UTF-8 become "?", so that no file can send
// it escape codes, and every line end a line feed.
std::string ForTerminal(TextView text);

}  // namespace korvande
