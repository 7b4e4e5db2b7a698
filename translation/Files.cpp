#include "translation/Files.h"

namespace korvande {

void ReportOpenFailure(Translation& translation, TextView name, const RuntimeError& error) {
    const Problem problem{
        .kind = ProblemKind::FileNotOpened, .words = error.Description(), .number = error.Number(), .name = Text(name)};
    Report(translation, problem);
    ShowMessage(translation.screen, Sentence(problem));
}

namespace {

bool RefuseUtf16(Translation& translation) {
    const Problem problem{.kind = ProblemKind::InputIsUtf16};
    translation.outcome.wrongFormat = true;
    Report(translation, problem);
    ShowMessage(translation.screen, Sentence(problem));
    return false;
}

}  // namespace

bool OpenInput(Translation& translation, LineReader& file, TextView name, std::size_t keptWidth) {
    try {
        if (translation.inputBytes) {
            file.OpenBytes(*translation.inputBytes);
        } else {
            file.Open(name, &translation.screen);
        }
    } catch (const std::exception&) {
        translation.outcome.inputUnreadable = true;
        ReportOpenFailure(translation, name, CurrentError());
        return false;
    }
    if (file.IsUtf16()) return RefuseUtf16(translation);
    file.ReadAs(CharacterSetOf(translation.options), keptWidth);
    BeginProgress(translation.screen, AllUnits(file) + 1);
    return true;
}

bool NextLine(Translation& translation, LineReader& file, std::string_view& line) {
    if (!file.Next(line)) return false;
    translation.inputLine = file.LineNumber();
    StepProgress(translation.screen, ReadUnits(file));
    if (file.LacksCharacter()) Tell(translation, {.kind = ProblemKind::CharacterUnknown});
    return true;
}

void TellHowRead(Translation& translation, const LineReader& file, const std::exception* error) {
    if (file.FirstUtf8Line() > 0) {
        Tell(translation, {.kind = ProblemKind::ReadAsUtf8, .line = file.FirstUtf8Line()});
    }
    if (error == nullptr) return;
    // Behind the end of the file nothing was left to be read.
    const auto* const runtimeError = dynamic_cast<const RuntimeError*>(error);
    const bool isPastEnd = runtimeError != nullptr && runtimeError->Number() == errors::inputPastEnd;
    if (!isPastEnd) Tell(translation, {.kind = ProblemKind::RestNotRead});
}

void OpenOutput(Translation& translation, TextView name) {
    try {
        switch (translation.outputTo) {
            case OutputTo::File:
                if (translation.replacement) {
                    translation.replacement->Open(translation.output);
                } else {
                    translation.output.Open(translation.temporaryOutput.empty() ? name : translation.temporaryOutput);
                }
                break;
            case OutputTo::Memory:
                translation.output.OpenBytes(translation.outputBytes);
                break;
            case OutputTo::Nowhere:
                translation.output.OpenNowhere();
                break;
        }
    } catch (const std::exception&) {
        translation.outcome.outputFailed = true;
        throw;
    }
}

}  // namespace korvande
