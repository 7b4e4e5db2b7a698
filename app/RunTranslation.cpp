#include "app/RunTranslation.h"

#include "app/Listing.h"
#include "app/LogBookView.h"
#include "app/RecentFiles.h"
#include "app/RunActivity.h"
#include "app/RunFiles.h"
#include "app/RunSaving.h"
#include "app/frmKORVANDE.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "run/TranslateFiles.h"
#include "translation/ClosingSentence.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// What becomes of the log book, but for showing it. That of a run that did not go well is not deleted.
void DisposeOfLogBook(const FormKORVANDE& form) {
    const Options& options = form.project.options;
    const Text& name = form.conversion.LogFileName;
    if (options.optReportDisk) {
        ShowMessage(form.screen, Concat(u"LOGBOEK is opgeslagen in:\n\n", name));
    } else if (options.optReportPrinter) {
        PrintLogBook(form.screen, name);
    } else if (options.optReportNone && form.lastRun.wentWell) {
        DeleteFileAt(name);
    }
}

// Says that a run is over, before anything else comes to the front. One that LISCAD started says so only when not all
// went well.
void TellEnd(const FormKORVANDE& form) {
    const Options& options = form.project.options;
    const RunReport& run = form.lastRun;
    const Text& logBook = form.conversion.LogFileName;
    if (IsEndOfRunAsked(form)) {
        // Somebody closes the window.
    } else if (!run.wentWell) {
        const bool namesLogBook = options.optReportNone;
        ShowMessage(form.screen,
                    namesLogBook ? Concat(run.sentence, u"\n\nLOGBOEK is opgeslagen in:\n\n", logBook) : run.sentence);
    } else if (options.StartedInteractively) {
        ShowMessage(form.screen, u"Verwerking gereed");
    }
    if (options.optReportScreen) ViewLogBook(form.screen, logBook);
}

void SetRunMark(FormKORVANDE& form, TextView mark) {
    form.runMark = mark;
    TellChanged(form);
}

// Translates with the settings of the form, whose project has just been saved: the code tables are the grids as they
// are. False when a person ended that; an import that was cancelled at a question came to its end.
bool TranslateProject(FormKORVANDE& form) {
    Translation translation(form.screen);
    translation.options = form.project.options;
    translation.owner = form.project.owner;
    translation.codes = form.project.codes;
    translation.mode = SelectedMode(form);
    translation.modeText = form.cboXlateMode.SelectedText();
    translation.IdexFileName = form.conversion.IdexFileName;
    translation.SufNenFileName = form.conversion.SufNenFileName;
    translation.LogFileName = form.conversion.LogFileName;
    const bool isFinished = TranslateFiles(translation) && !translation.outcome.cancelled;
    form.lastRun = {.number = form.lastRun.number + 1,
                    .wentWell = WentWell(translation),
                    .wroteOutput = isFinished && !translation.outcome.Failed(),
                    .outcome = OutcomeLine(translation),
                    .input = InputName(translation),
                    .mode = translation.mode,
                    .output = OutputName(translation),
                    .logBook = translation.LogFileName,
                    .sentence = ClosingSentence(translation),
                    .lists = ProblemLines(translation),
                    .account = AccountLines(translation),
                    .unknownCodes = UnknownCodesOf(*TallyOf(translation), translation.mode.direction)};
    return isFinished;
}

// The run itself.
RunEnd Translate(FormKORVANDE& form) {
    if (form.conversion.direction == Direction::None) {
        ShowMessage(form.screen, u"Onbekende vertaalrichting.");
        return RunEnd::Stopped;
    }
    if (WouldWriteOverItsFiles(form)) return RunEnd::Stopped;
    const Text output = OutputOf(form);
    if (!MayWriteOutput(form, output)) return RunEnd::Stopped;
    if (const RunEnd saved = SaveForRun(form); saved != RunEnd::Finished) return saved;
    const bool isFinished = TranslateProject(form);
    if (form.project.options.StartedInteractively) RememberInput(form);
    if (form.lastRun.wroteOutput) form.outputs.insert(FileIdentity(output));
    if (!isFinished) return RunEnd::Stopped;
    DisposeOfLogBook(form);
    return RunEnd::Finished;
}

// What lasts as long as the run mark should.
RunEnd TranslateWithMark(FormKORVANDE& form) {
    const Running running(form.activity);
    SetRunMark(form, runningMark);
    // A missing input ends the run here, with the run mark left as it is.
    if (form.project.options.StartedInteractively && !TakeNamesFromForm(form)) return RunEnd::Stopped;
    RunEnd end = RunEnd::Stopped;
    try {
        end = Translate(form);
    } catch (const TranslationAborted&) {
        // While the log book was printed: it stays.
    }
    SetRunMark(form, {});
    return end;
}

}  // namespace

void RunTranslation(FormKORVANDE& form) {
    if (IsRunning(form)) return;
    const RunEnd end = TranslateWithMark(form);
    ShowNoProgress(form);
    // No longer translating: what the window disabled can be used again.
    TellChanged(form);
    const bool goesOn = end == RunEnd::Kept || (end == RunEnd::Stopped && IsStopAsked(form));
    const bool isEndOfAll = (!form.project.options.StartedInteractively && !goesOn) || IsEndOfRunAsked(form);
    if (end == RunEnd::Finished) TellEnd(form);
    if (isEndOfAll) Unload(form);
}

Mode SelectedMode(const FormKORVANDE& form) {
    constexpr int firstModeToIdex = 2;
    const ListControl& list = form.cboXlateMode;
    Mode mode;
    // The texts of a list of modes tell it, whether it is the whole list or a command line's.
    mode.variant = list.SelectedText().find(u"NEN1878") == TextView::npos ? Variant::Suf2 : Variant::Nen1878;
    if (form.project.options.StartedInteractively) {
        mode.direction = list.index < firstModeToIdex ? Direction::FromIdex : Direction::ToIdex;
    } else {
        mode.direction = form.conversion.direction;
    }
    return mode;
}

}  // namespace korvande
