#include "core/ConsoleScreen.h"

#include <algorithm>
#include <cstdio>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

void PutError(std::string_view utf8) { std::fwrite(utf8.data(), 1, utf8.size(), stderr); }

}  // namespace

ConsoleScreen::~ConsoleScreen() { ClearProgress(); }

void ConsoleScreen::ShowStatus(TextView text) {
    status = text;
    DrawProgress();
}

void ConsoleScreen::ShowProgressMaximum(std::int64_t newMaximum) {
    maximum = std::max<std::int64_t>(newMaximum, 1);
    value = 0;
    DrawProgress();
}

void ConsoleScreen::ShowProgressValue(std::int64_t newValue) {
    value = std::clamp<std::int64_t>(newValue, 0, maximum);
    DrawProgress();
}

void ConsoleScreen::PumpEvents() {
    if (isInterrupted && isInterrupted()) throw TranslationAborted();
}

Answer ConsoleScreen::ShowMessage(const MessageBox& box) {
    ClearProgress();
    if (box.buttons == Buttons::YesNoCancel && answerQuestion) return answerQuestion(box);
    PutError(ForTerminal(box.text) + "\n");
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

void ConsoleScreen::ClearProgress() {
    if (isDrawn) PutError("\r\x1B[K");
    isDrawn = false;
}

void ConsoleScreen::DrawProgress() {
    constexpr std::int64_t barWidth = 30;
    if (!showsProgress) return;
    const auto filled = static_cast<std::size_t>(value * barWidth / maximum);
    std::string line = "\r\x1B[K" + ForTerminal(status) + " [" + std::string(filled, '#') +
                       std::string(static_cast<std::size_t>(barWidth) - filled, '.') + "] " +
                       std::to_string(value * 100 / maximum) + "%";
    PutError(line);
    isDrawn = true;
}

std::string ForTerminal(TextView text) {
    Text safe(text);
    for (char16_t& character : safe) {
        const bool control = (character < 0x20 && character != u'\n') || (character >= 0x7F && character < 0xA0);
        if (control) character = character == u'\r' ? u'\n' : u'?';
    }
    return ToUtf8(safe);
}

}  // namespace korvande
