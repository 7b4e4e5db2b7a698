#include "run/RunTranslation.h"

#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "project/frmKORVANDE.h"
#include "run/Listing.h"
#include "run/RunValues.h"
#include "run/TranslateFiles.h"
#include "run/UserSettings.h"

namespace korvande {

namespace {

bool isTranslating = false;
bool endIsAsked = false;

// The time that a translation takes.
class Translating {
 public:
    Translating() {
        isTranslating = true;
        endIsAsked = false;
    }
    Translating(const Translating&) = delete;
    Translating& operator=(const Translating&) = delete;
    ~Translating() { isTranslating = false; }
};

// The two files of a direction, by their roles.
struct Roles {
    Text& input;
    Text& output;
    Text FormKORVANDE::*outputBox;
    TextView outputExtension;
};

Roles RolesOf(std::int16_t direction) {
    RunValues& run = TheRun();
    if (direction == fromIdex) return {run.IdexFileName, run.SufNenFileName, &FormKORVANDE::txtFileSUFNEN, u"SFN"};
    return {run.SufNenFileName, run.IdexFileName, &FormKORVANDE::txtFileIDEX, u"IDX"};
}

// Takes names and direction from the window's controls. False when the input does not exist.
bool TakeNamesFromForm() {
    constexpr int firstModeToIdex = 2;
    FormKORVANDE& form = frmKORVANDE();
    RunValues& run = TheRun();
    run.IdexFileName = form.txtFileIDEX;
    run.SufNenFileName = form.txtFileSUFNEN;
    run.XlateDirection = form.cboXlateMode.index < firstModeToIdex ? fromIdex : toIdex;
    const Roles roles = RolesOf(run.XlateDirection);
    if (!FileExistsAt(roles.input)) {
        ShowMessage(Concat(u"Invoerbestand niet gevonden:\n'", roles.input, u"'"));
        return false;
    }
    if (Trim(roles.output).empty()) {
        roles.output = WithLastThreeReplaced(roles.input, roles.outputExtension);
        form.*roles.outputBox = roles.output;
        if (form.changed) form.changed();
    }
    run.LogFileName = WithLastThreeReplaced(roles.output, u"LOG");
    return true;
}

// A run that would write over its own input never starts.
bool WouldWriteOverInput() {
    const RunValues& run = TheRun();
    const Text& input = RolesOf(run.XlateDirection).input;
    TextView what;
    if (SameFile(run.IdexFileName, run.SufNenFileName)) {
        what = u"uitvoer";
    } else if (SameFile(run.LogFileName, input)) {
        what = u"logboek";
    } else {
        return false;
    }
    ShowMessage(Concat(u"Invoer en ", what, u" zijn hetzelfde bestand:\n", input));
    return true;
}

void ViewLogBook() {
    const Text& name = TheRun().LogFileName;
    if (!TheScreen().ViewTextFile(name)) {
        ShowMessage(Concat(u"Het logboek kan niet worden getoond. Het is opgeslagen in:\n\n", name));
    }
}

void DisposeOfLogBook() {
    const FormKORVANDE& form = frmKORVANDE();
    const Text& name = TheRun().LogFileName;
    if (form.optReportDisk) {
        ShowMessage(Concat(u"LOGBOEK is opgeslagen in:\n\n", name));
    } else if (form.optReportPrinter) {
        PrintLogBook();
    } else if (form.optReportScreen) {
        ViewLogBook();
    } else {
        DeleteFileAt(name);
    }
}

void SetRunMark(TextView mark) {
    frmKORVANDE().runMark = mark;
    if (frmKORVANDE().changed) frmKORVANDE().changed();
}

// The run itself; false when it was stopped or cancelled, and nothing more is to be said.
bool Translate() {
    const RunValues& run = TheRun();
    if (run.XlateDirection != toIdex && run.XlateDirection != fromIdex) {
        ShowMessage(u"Onbekende vertaalrichting.");
        return false;
    }
    if (WouldWriteOverInput()) return false;
    SaveUserSettings();
    SaveCurrentProject();
    if (!TranslateFiles() || run.outcome.cancelled) return false;
    DisposeOfLogBook();
    return true;
}

// What lasts as long as the run mark should: true for a run that came to its end.
bool TranslateWithMark() {
    const Translating translating;
    SetRunMark(runningMark);
    // A missing input ends the run here, with the run mark left as it is.
    if (StartedInteractively() && !TakeNamesFromForm()) return false;
    bool isFinished = false;
    try {
        isFinished = Translate();
    } catch (const TranslationAborted&) {
        // While the log book was printed: it stays.
    }
    SetRunMark({});
    return isFinished;
}

}  // namespace

void RunTranslation() {
    if (isTranslating) return;
    const bool isFinished = TranslateWithMark();
    // A step that is over is not shown as one under way.
    ShowStatus({});
    TheScreen().ShowProgressMaximum(1);
    FormKORVANDE& form = frmKORVANDE();
    // No longer translating: what the window disabled can be used again.
    if (form.changed) form.changed();
    if (!StartedInteractively() || endIsAsked) {
        if (form.unload) form.unload();
    } else if (isFinished) {
        ShowMessage(u"Verwerking gereed");
    }
}

bool IsTranslating() noexcept { return isTranslating; }

void AskEndOfRun() noexcept { endIsAsked = isTranslating; }

bool IsEndOfRunAsked() noexcept { return endIsAsked; }

void EndRunIfAsked() {
    if (isTranslating && endIsAsked) throw TranslationAborted();
}

}  // namespace korvande
