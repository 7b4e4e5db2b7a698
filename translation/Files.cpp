#include "translation/Files.h"

namespace korvande {

void ReportOpenFailure(Translation& translation, TextView name, const RuntimeError& error) {
    const Problem problem{
        .kind = ProblemKind::FileNotOpened, .words = error.Description(), .number = error.Number(), .name = Text(name)};
    Report(translation, problem);
    ShowMessage(translation.screen, Sentence(problem));
}

bool OpenInput(Translation& translation, LineReader& file, TextView name) {
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
    BeginProgress(translation.screen, AllUnits(file) + 1);
    return true;
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
