#include "run/Steps.h"

#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "idex/modExportIDEX.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

void ReportVanishedInput(Translation& translation, TextView name) {
    translation.outcome.inputUnreadable = true;
    ShowMessage(translation.screen,
                Concat(u"Bestand: ", name, u" niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken."));
    translation.log.WriteLine(Concat(u"==>  Bestand: ", name, u" niet gevonden; verwerking afgebroken."));
}

// False when an error ended the step.
bool RunStep(Translation& translation, void (*step)(Translation&)) {
    bool isDone = false;
    try {
        step(translation);
        isDone = true;
    } catch (const std::exception&) {
        Report(translation, EscapedError(CurrentError()));
    }
    translation.inputLine = 0;
    return isDone;
}

bool InputIsThere(Translation& translation) {
    const Text& input = InputName(translation);
    if (translation.inputBytes || !FileIsMissing(input)) return true;
    ReportVanishedInput(translation, input);
    return false;
}

void RunSteps(Translation& translation) {
    if (!InputIsThere(translation)) return;
    const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
    RunStep(translation, isFromIdex ? ReadIdexFile : ImportNenSuf);
    // An import that had no room to begin has opened no output.
    if (!isFromIdex && !translation.output.IsOpen()) translation.outcome.outputFailed = true;
    if (!RunStep(translation, isFromIdex ? ExportSufNen : WriteIdexFile)) translation.outcome.outputFailed = true;
}

// What a step that ended early left in the output's buffer is written too, unless nobody will ever read it.
void CloseOutput(Translation& translation) {
    if (translation.replacement && translation.outcome.Failed()) translation.output.Abandon();
    try {
        if (translation.output.IsOpen()) translation.output.Close();
    } catch (const RuntimeError& error) {
        Report(translation, EscapedError(error));
    }
    if (translation.output.HasFailed()) translation.outcome.outputFailed = true;
}

// In a run that failed, what was read and did not get into an output was left out by that.
void AccountForTheRest(Translation& translation) {
    if (!translation.outcome.Failed()) return;
    for (std::size_t i = 0; i < objectKinds; ++i) {
        const auto kind = static_cast<ObjectKind>(i);
        const KindAccount& account = translation.account[kind];
        LeaveUnfinished(translation, kind, account.read - account.written - account.LeftOutTotal());
    }
}

}  // namespace

void ReadAndWrite(Translation& translation) {
    try {
        RunSteps(translation);
    } catch (const TranslationAborted&) {
        translation.outcome.cancelled = true;
        translation.log.WriteLine(u"==>  Vertaling afgebroken.");
    }
    CloseOutput(translation);
    AccountForTheRest(translation);
}

void ReadDrawing(Translation& translation) {
    translation.options.chkExportUnknowns = translation.options.chkImportUnknowns = true;
    translation.options.chkSelectXY = false;
    translation.keepsUnknownCodes = true;
    translation.withDiagnosticFiles = false;
    translation.outputTo = OutputTo::Nowhere;
    translation.LogFileName.clear();
    try {
        if (!InputIsThere(translation)) return;
        const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
        RunStep(translation, isFromIdex ? ReadIdexFile : ImportNenSuf);
    } catch (const TranslationAborted&) {
        translation.outcome.cancelled = true;
    }
}

}  // namespace korvande
