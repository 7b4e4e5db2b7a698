#include "cli/Inputs.h"

#include <utility>

#include "cli/Arguments.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "run/Steps.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

ReadingScreen::ReadingScreen() : ConsoleScreen(false) { isInterrupted = IsInterrupted; }

Answer ReadingScreen::ShowMessage(const MessageBox& box) {
    return box.buttons == Buttons::YesNoCancel ? ConsoleScreen::ShowMessage(box) : Answer::Ok;
}

void RefuseClash(const Text& output, const Text& input, TextView words) {
    if (!input.empty() && FileIdentity(output) == FileIdentity(input)) {
        throw UsageError{Concat(words, u" zijn hetzelfde bestand:\n", output)};
    }
}

std::optional<InputDrawing> FindInput(Screen& screen, const Text& name) {
    FoundInput found = LookAtInput(screen, name);
    if (!found.input) PrintErrorLine(found.whyNot);
    return std::move(found.input);
}

void TakeInput(const InputDrawing& input, const Text& name, const ReadingOptions& reading, Translation& translation) {
    TakeInput(input, name, translation);
    translation.readsWithoutLayers = reading.fromInstrument;
}

bool ReadInputDrawing(ReadingScreen& screen, const InputDrawing& input, const Text& name, const ReadingOptions& reading,
                      Translation& translation) {
    constexpr std::int64_t mostErrors = 5;  // that are told one by one, and the last: it may have ended the reading
    TakeInput(input, name, reading, translation);
    Problem last{};
    translation.problems.onError = [&name, &translation, &last](const Problem& problem) {
        if (translation.problems.errors > mostErrors) {
            last = problem;
        } else {
            PrintErrorLine(Concat(name, u": ", SentenceWithLine(problem)));
        }
    };
    // A question about the format is answered with what is proposed, and told.
    screen.answerQuestion = [&name](const MessageBox& box) {
        PrintErrorLine(Concat(name, u": ", box.text, u" ja"));
        return Answer::Yes;
    };
    ReadDrawing(translation);
    if (translation.outcome.cancelled) throw TranslationAborted();
    const std::int64_t between = translation.problems.errors - mostErrors - 1;
    if (between > 0) PrintErrorLine(Concat(name, u": nog ", between, u" fouten; zie korvande-cli controleer"));
    if (between >= 0) PrintErrorLine(Concat(name, u": ", SentenceWithLine(last)));
    for (const Text& line : LossLines(translation)) PrintErrorLine(line);
    return !translation.outcome.inputUnreadable && !translation.outcome.wrongFormat;
}

}  // namespace korvande
