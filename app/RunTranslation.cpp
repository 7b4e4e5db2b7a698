#include "app/RunTranslation.h"

#include "app/Listing.h"
#include "app/OutputName.h"
#include "app/ProjectSaving.h"
#include "app/Projects.h"
#include "app/UserSettings.h"
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

// The time that a translation takes.
class Translating {
 public:
    explicit Translating(Activity& itsActivity) : activity(itsActivity) {
        activity.isTranslating = true;
        activity.endIsAsked = false;
    }
    Translating(const Translating&) = delete;
    Translating& operator=(const Translating&) = delete;
    ~Translating() { activity.isTranslating = false; }

 private:
    Activity& activity;
};

// The two files of a direction, by their roles.
struct Roles {
    Text& input;
    Text& output;
    Text Options::*outputBox;
    TextView outputExtension;
};

Roles RolesOf(Conversion& conversion) {
    if (conversion.direction == Direction::FromIdex) {
        return {conversion.IdexFileName, conversion.SufNenFileName, &Options::txtFileSUFNEN, u"SFN"};
    }
    return {conversion.SufNenFileName, conversion.IdexFileName, &Options::txtFileIDEX, u"IDX"};
}

// Takes names and direction from the window's controls. False when the input does not exist.
bool TakeNamesFromForm(FormKORVANDE& form) {
    TakeQuotesAway(form);
    Options& options = form.project.options;
    Conversion& conversion = form.conversion;
    conversion.IdexFileName = options.txtFileIDEX;
    conversion.SufNenFileName = options.txtFileSUFNEN;
    conversion.direction = SelectedMode(form).direction;
    const Roles roles = RolesOf(conversion);
    if (!FileExistsAt(roles.input)) {
        ShowMessage(form.screen, Concat(u"Invoerbestand niet gevonden:\n'", roles.input, u"'"));
        return false;
    }
    if (Trim(roles.output).empty()) {
        roles.output = WithLastThreeReplaced(roles.input, roles.outputExtension);
    } else {
        roles.output = BesideInput(roles.output, roles.input);
    }
    if (options.*roles.outputBox != roles.output) {
        options.*roles.outputBox = roles.output;
        TellChanged(form);
    }
    conversion.LogFileName = WithLastThreeReplaced(roles.output, u"LOG");
    return true;
}

// A run that would write one of its files over another one, or over the control table, never starts.
bool WouldWriteOverItsFiles(FormKORVANDE& form) {
    Conversion& conversion = form.conversion;
    const Roles roles = RolesOf(conversion);
    const Text& logBook = conversion.LogFileName;
    const Text controlTable = form.CurrentProject.empty() ? Text() : Concat(form.ProjectFolder, form.CurrentProject);
    const struct {
        TextView what;
        const Text& name;
        const Text& other;  // empty: there is none
    } clashes[] = {{u"Invoer en uitvoer", roles.input, roles.output},
                   {u"Invoer en logboek", roles.input, logBook},
                   {u"Uitvoer en logboek", logBook, roles.output},
                   {u"Controletabel en uitvoer", roles.output, controlTable},
                   {u"Controletabel en logboek", logBook, controlTable}};
    for (const auto& [what, name, other] : clashes) {
        if (other.empty() || !SameFile(name, other)) continue;
        ShowMessage(form.screen, Concat(what, u" zijn hetzelfde bestand:\n", name));
        return true;
    }
    return false;
}

// An output that is there already is replaced without a question when a command line or the save dialog named it, or
// when this window wrote it itself.
bool MayWriteOutput(const FormKORVANDE& form, const Text& output) {
    if (!form.project.options.StartedInteractively || form.outputs.contains(FileIdentity(output))) return true;
    return MayReplace(form, output);
}

void ViewLogBook(Screen& screen, const Text& name) {
    if (!screen.ViewTextFile(name)) {
        ShowMessage(screen, Concat(u"Het logboek kan niet worden getoond. Het is opgeslagen in:\n\n", name));
    }
}

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
    form.lastRun = {.wentWell = WentWell(translation),
                    .wroteOutput = isFinished && !translation.outcome.Failed(),
                    .outcome = OutcomeLine(translation),
                    .output = OutputName(translation),
                    .logBook = translation.LogFileName,
                    .sentence = ClosingSentence(translation),
                    .lists = ProblemLines(translation),
                    .account = AccountLines(translation)};
    return isFinished;
}

// What became of the start of a run.
enum class RunEnd {
    Finished,
    Stopped,  // or ended by a person: nothing more is to be said
    Kept      // a person goes on with the project as it is on the screen
};

// The project as another program wrote it, with the files of this run. False when it cannot be loaded.
bool ReloadForRun(FormKORVANDE& form) {
    Options& options = form.project.options;
    const Text idexFile = options.txtFileIDEX;
    const Text sufNenFile = options.txtFileSUFNEN;
    if (!LoadProject(form, form.CurrentProject)) return false;
    options.txtFileIDEX = idexFile;
    options.txtFileSUFNEN = sufNenFile;
    TellChanged(form);
    return true;
}

// Saves the settings and the project.
RunEnd SaveForRun(FormKORVANDE& form) {
    Edits edits = AskAboutEdits(form);
    if (edits == Edits::Drop) {
        if (!ReloadForRun(form)) return RunEnd::Stopped;
        edits = AskAboutEdits(form);
    }
    if (edits == Edits::Keep) return RunEnd::Kept;
    SaveUserSettings(form);
    if (edits == Edits::Save) SaveEdits(form);
    return RunEnd::Finished;
}

// The run itself.
RunEnd Translate(FormKORVANDE& form) {
    if (form.conversion.direction == Direction::None) {
        ShowMessage(form.screen, u"Onbekende vertaalrichting.");
        return RunEnd::Stopped;
    }
    if (WouldWriteOverItsFiles(form)) return RunEnd::Stopped;
    const Text output = RolesOf(form.conversion).output;
    if (!MayWriteOutput(form, output)) return RunEnd::Stopped;
    if (const RunEnd saved = SaveForRun(form); saved != RunEnd::Finished) return saved;
    const bool isFinished = TranslateProject(form);
    if (form.lastRun.wroteOutput) form.outputs.insert(FileIdentity(output));
    if (!isFinished) return RunEnd::Stopped;
    DisposeOfLogBook(form);
    return RunEnd::Finished;
}

// What lasts as long as the run mark should.
RunEnd TranslateWithMark(FormKORVANDE& form) {
    const Translating translating(form.activity);
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
    if (IsTranslating(form)) return;
    const RunEnd end = TranslateWithMark(form);
    // A step that is over is not shown as one under way.
    form.screen.ShowStatus({});
    form.screen.pace.hasValue = false;
    form.screen.ShowProgressMaximum(1);
    // No longer translating: what the window disabled can be used again.
    TellChanged(form);
    const bool isEndOfAll =
        (!form.project.options.StartedInteractively && end != RunEnd::Kept) || IsEndOfRunAsked(form);
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

bool IsTranslating(const FormKORVANDE& form) noexcept { return form.activity.isTranslating; }

void AskEndOfRun(FormKORVANDE& form) noexcept { form.activity.endIsAsked = form.activity.isTranslating; }

bool IsEndOfRunAsked(const FormKORVANDE& form) noexcept { return form.activity.endIsAsked; }

void EndRunIfAsked(const FormKORVANDE& form) {
    if (form.activity.isTranslating && form.activity.endIsAsked) throw TranslationAborted();
}

}  // namespace korvande
