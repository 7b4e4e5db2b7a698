#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/modScreen.h"
#include "library/korvande.h"

namespace korvande {

// A text as callers get it: UTF-8, also where the name of a file is none.
std::string HandedOut(TextView text);

// The screen of a program that uses the library: progress, requests to stop and questions go through its callbacks;
// messages are kept. A message that can be cancelled is cancelled, for nobody is there to press a button.
class CallbackScreen : public Screen {
 public:
    explicit CallbackScreen(const korvande_callbacks& itsCallbacks) : callbacks(itsCallbacks) {}

    // Answers a question in place of the callback.
    std::function<Answer(const MessageBox&)> answerQuestion;

    void ShowStatus(TextView text) override;
    void ShowProgressMaximum(std::int64_t maximum) override;
    void ShowProgressValue(std::int64_t value) override;
    void PumpEvents() override;
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override;
    bool ViewTextFile(TextView) override { return false; }
    bool Print(const MakePages&) override { return false; }

    // The end of the step at hand, if there is one.
    void FinishStep();

    // A line for each.
    const Text& Messages() const noexcept { return messages; }

 private:
    void TellProgress(const std::string& name);
    Answer Ask(const MessageBox& box) const;

    korvande_callbacks callbacks;
    Text messages;
    std::string status;
    std::string toldName;    // with the latest progress
    std::int64_t total = 0;  // 0: no step has begun
    std::int64_t done = 0;
};

}  // namespace korvande
