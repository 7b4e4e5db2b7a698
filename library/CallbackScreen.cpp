#include "library/CallbackScreen.h"

#include <algorithm>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

bool IsFirstOfPair(char16_t character) { return character >= 0xD800 && character < 0xDC00; }
bool IsSecondOfPair(char16_t character) { return character >= 0xDC00 && character < 0xE000; }

}  // namespace

std::string HandedOut(TextView text) {
    constexpr char16_t replacement = 0xFFFD;
    Text whole(text);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (IsFirstOfPair(whole[i]) && i + 1 < whole.size() && IsSecondOfPair(whole[i + 1])) {
            ++i;
        } else if (IsFirstOfPair(whole[i]) || IsSecondOfPair(whole[i])) {
            whole[i] = replacement;  // it stands for a byte that is no UTF-8
        }
    }
    return ToUtf8(whole);
}

void CallbackScreen::ShowStatus(TextView text) { status = HandedOut(text); }

void CallbackScreen::ShowProgressMaximum(std::int64_t maximum) {
    FinishStep();
    total = std::max<std::int64_t>(maximum, 1);
    done = 0;
    TellProgress(status);
}

void CallbackScreen::ShowProgressValue(std::int64_t value) {
    if (total == 0) return;
    done = std::clamp(value, done, total);
    TellProgress(status);
}

void CallbackScreen::FinishStep() {
    if (done == total) return;
    done = total;
    // The name that was shown since may be that of the next step.
    TellProgress(std::string(toldName));
}

void CallbackScreen::TellProgress(const std::string& name) {
    toldName = name;
    if (callbacks.progress != nullptr) callbacks.progress(callbacks.context, name.c_str(), done, total);
}

void CallbackScreen::PumpEvents() {
    if (callbacks.should_cancel != nullptr && callbacks.should_cancel(callbacks.context) != 0) {
        throw TranslationAborted();
    }
}

Answer CallbackScreen::ShowMessage(const MessageBox& box) {
    if (box.buttons == Buttons::YesNoCancel) return Ask(box);
    // What such a question offers is an option of the call here.
    if (box.buttons == Buttons::YesNo) return Answer::No;
    AppendTo(messages, Concat(messages.empty() ? u"" : u"\n", box.text));
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

Answer CallbackScreen::Ask(const MessageBox& box) const {
    if (answerQuestion) return answerQuestion(box);
    if (callbacks.ask == nullptr) return Answer::Yes;
    switch (callbacks.ask(callbacks.context, HandedOut(box.text).c_str(), KORVANDE_YES)) {
        case KORVANDE_YES:
            return Answer::Yes;
        case KORVANDE_NO:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

}  // namespace korvande
