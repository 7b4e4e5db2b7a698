#include "cli/ConsoleScreen.h"

#include <algorithm>

#include "core/ConsoleText.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

bool IsSurrogatePair(char16_t first, char16_t second) {
    return first >= 0xD800 && first < 0xDC00 && second >= 0xDC00 && second < 0xE000;
}

// A lone surrogate may stand for a byte that is no UTF-8.
bool IsHarmless(char16_t character) {
    if (character == u'\n') return true;
    return character >= 0x20 && (character < 0x7F || character >= 0xA0) && (character < 0xD800 || character >= 0xE000);
}

void PutError(std::string_view utf8) { PutText(stderr, utf8); }

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
    // What such a question offers is an option of the command line here.
    if (box.buttons == Buttons::YesNo) return Answer::No;
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
    Text safe;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t character = text[i];
        const char16_t next = i + 1 < text.size() ? text[i + 1] : u'\0';
        if (IsSurrogatePair(character, next)) {
            safe.append(text.substr(i++, 2));
        } else if (character == u'\r') {
            if (next != u'\n') safe.push_back(u'\n');
        } else {
            safe.push_back(IsHarmless(character) ? character : u'?');
        }
    }
    return ToUtf8(safe);
}

}  // namespace korvande
