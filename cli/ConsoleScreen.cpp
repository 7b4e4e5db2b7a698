#include "cli/ConsoleScreen.h"

#include <algorithm>

#include "cli/Print.h"
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
    PrintErrorLine(box.text);
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

void ConsoleScreen::ClearProgress() {
    if (isDrawn) PutError("\r\x1B[K");
    isDrawn = false;
}

void ConsoleScreen::DrawProgress() {
    if (!showsProgress) return;
    PutError("\r\x1B[K" + ForTerminal(status) + " " + ProgressBar(value, maximum));
    isDrawn = true;
}

std::string ProgressBar(std::int64_t value, std::int64_t maximum) {
    constexpr std::int64_t width = 30;
    const auto filled = static_cast<std::size_t>(value * width / maximum);
    return "[" + std::string(filled, '#') + std::string(static_cast<std::size_t>(width) - filled, '.') + "] " +
           std::to_string(value * 100 / maximum) + "%";
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
