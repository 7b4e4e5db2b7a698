#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/modScreen.h"

namespace korvande::testing {

// A screen that records what it was asked to show (in UTF-8) and answers message boxes from a list; when the list is
// empty, with OK for a box that has only that button and with Cancel for any other.
class RecordingScreen : public Screen {
 public:
    std::vector<std::string> statuses;
    std::vector<MessageBox> boxes;
    std::vector<std::string> messages;  // the texts of the boxes
    std::vector<std::int64_t> maxima;
    std::int64_t value = 0;
    std::int64_t pumps = 0;
    std::vector<std::string> viewed;
    bool viewerStarts = true;
    std::deque<Answer> answers;
    std::function<void()> onMessage;  // runs when a box is shown, before it is answered
    std::function<void()> onPump;

    void ShowStatus(TextView text) override { statuses.push_back(ToUtf8(text)); }
    void ShowProgressMaximum(std::int64_t maximum) override { maxima.push_back(maximum); }
    void ShowProgressValue(std::int64_t newValue) override { value = newValue; }
    void PumpEvents() override {
        ++pumps;
        if (onPump) onPump();
    }
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override {
        boxes.push_back(box);
        messages.push_back(ToUtf8(box.text));
        if (onMessage) onMessage();
        if (!answers.empty()) {
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
    bool ViewTextFile(TextView name) override {
        viewed.push_back(ToUtf8(name));
        return viewerStarts;
    }

    int linesPerPage = 60;
    bool printerWorks = true;
    std::vector<std::vector<Text>> printed;
    bool Print(const MakePages& makePages) override {
        if (printerWorks) printed = makePages(linesPerPage);
        return printerWorks;
    }
};

}  // namespace korvande::testing
