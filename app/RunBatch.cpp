#include "app/RunBatch.h"

#include <algorithm>
#include <utility>

#include "app/Batch.h"
#include "app/RunActivity.h"
#include "app/RunSaving.h"
#include "app/RunTranslation.h"
#include "app/RunningScreen.h"
#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"
#include "run/TranslateFiles.h"
#include "translation/ClosingSentence.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Shows the progress of all files on one bar, of which each has an equal part. How many steps a file takes is not known
// before: each step gets half of what the part still has.
//
// Questions name their file. Nothing else waits for a person: what a message says, the outcome says too.
class BatchScreen : public RunningScreen {
 public:
    BatchScreen(Screen& itsOwner, std::size_t itsFiles) : RunningScreen(itsOwner), files(itsFiles) {
        RunningScreen::ShowProgressMaximum(static_cast<std::int64_t>(files) * part);
    }

    void BeginFile(std::size_t itsPlace, TextView itsName) {
        place = itsPlace;
        name = FileNameOf(itsName);
        done = 0;
        stepShare = 0;
        pace.hasValue = false;
        ShowShare(0);
    }

    void ShowStatus(TextView text) override {
        RunningScreen::ShowStatus(Concat(place + 1, u" van ", files, u", ", name, u": ", text));
    }
    void ShowProgressMaximum(std::int64_t newMaximum) override {
        maximum = std::max<std::int64_t>(newMaximum, 1);
        done += stepShare;
        stepShare = (1 - done) / 2;
        ShowShare(done);
    }
    void ShowProgressValue(std::int64_t value) override {
        const auto inStep = static_cast<double>(std::clamp<std::int64_t>(value, 0, maximum));
        ShowShare(done + stepShare * inStep / static_cast<double>(maximum));
    }
    Answer ShowMessage(const MessageBox& box) override {
        const bool isQuestion = box.buttons == Buttons::YesNo || box.buttons == Buttons::YesNoCancel;
        if (!isQuestion) return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
        MessageBox named = box;
        named.text = Concat(name, u":\n\n", box.text);
        return RunningScreen::ShowMessage(named);
    }

 private:
    static constexpr std::int64_t part = 1000;

    void ShowShare(double share) {
        RunningScreen::ShowProgressValue(static_cast<std::int64_t>(place) * part +
                                         static_cast<std::int64_t>(share * part));
    }

    std::size_t files;
    std::size_t place = 0;
    Text name;
    std::int64_t maximum = 1;
    double done = 0;  // of the file, by the steps before
    double stepShare = 0;
};

struct Existing {
    std::size_t count = 0;
    std::size_t outputs = 0;
    Text names;
};

Existing ExistingOutputs(const Batch& batch) {
    constexpr std::size_t mostNames = 8;
    Existing existing;
    for (const BatchFile& file : batch.files) {
        if (!file.format) continue;
        ++existing.outputs;
        if (!FileExistsAt(file.output)) continue;
        if (existing.count++ < mostNames) AppendTo(existing.names, Concat(u"\n", FileNameOf(file.output)));
    }
    if (existing.count > mostNames) AppendTo(existing.names, Concat(u"\nen nog ", existing.count - mostNames));
    return existing;
}

// Whether outputs that are there already are replaced (Yes) or left as they are (No), or nothing is done at all.
Answer AskAboutExisting(const FormKORVANDE& form, const Batch& batch) {
    const Existing existing = ExistingOutputs(batch);
    if (existing.count == 0) return Answer::Yes;
    const Text question =
        Concat(existing.count, u" van de ", existing.outputs, u" uitvoerbestanden ",
               existing.count == 1 ? u"bestaat" : u"bestaan", u" al in ", batch.folder, u"\n", existing.names,
               u"\n\nJa: vervangen\nNee: overslaan en alleen de andere bestanden vertalen\n"
               u"Annuleren: niets vertalen");
    return form.screen.ShowMessage({question, {}, Icon::Question, Buttons::YesNoCancel});
}

BatchOutcome NotTranslated(const BatchFile& file, TextView why, bool isWanted = false) {
    BatchOutcome outcome;
    outcome.input = file.input;
    outcome.result = Concat(u"Niet vertaald: ", why);
    outcome.wentWell = isWanted;
    return outcome;
}

BatchOutcome OutcomeOf(const Translation& translation) {
    BatchOutcome outcome;
    outcome.input = InputName(translation);
    outcome.isTranslated = !translation.outcome.Failed();
    if (outcome.isTranslated) outcome.output = OutputName(translation);
    if (FileExistsAt(translation.LogFileName)) outcome.logBook = translation.LogFileName;
    outcome.result = OutcomeLine(translation);
    outcome.wentWell = WentWell(translation);
    outcome.errors = translation.problems.errors;
    for (std::size_t object = 0; object < objectKinds; ++object) {
        const KindAccount& kind = translation.account[static_cast<ObjectKind>(object)];
        outcome.read += kind.read;
        outcome.written += kind.written;
    }
    return outcome;
}

// The code tables are handed on from file to file, with what was prepared for looking codes up in them. False when a
// person ended all of it.
bool TranslateOne(FormKORVANDE& form, Screen& screen, CodeTables& codes, const Batch& batch, const BatchFile& file,
                  std::vector<BatchOutcome>& outcomes) {
    Translation translation(screen);
    translation.options = form.project.options;
    translation.owner = form.project.owner;
    translation.codes = std::move(codes);
    ForgetUses(translation.codes);
    translation.mode = ModeFor(batch, file);
    translation.modeText = NamesOf(translation.mode).text;
    const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
    translation.IdexFileName = isFromIdex ? file.input : file.output;
    translation.SufNenFileName = isFromIdex ? file.output : file.input;
    translation.LogFileName = file.logBook;
    TranslateFiles(translation);
    codes = std::move(translation.codes);
    outcomes.push_back(OutcomeOf(translation));
    if (outcomes.back().isTranslated) form.outputs.insert(FileIdentity(file.output));
    return !translation.outcome.cancelled;
}

std::vector<BatchOutcome> TranslateAll(FormKORVANDE& form, const Batch& batch, bool replaces) {
    BatchScreen screen(form.screen, batch.files.size());
    std::vector<BatchOutcome> outcomes;
    CodeTables codes = form.project.codes;
    bool goesOn = true;
    for (std::size_t place = 0; place < batch.files.size(); ++place) {
        const BatchFile& file = batch.files[place];
        goesOn = goesOn && !IsStopAsked(form) && !IsEndOfRunAsked(form);
        if (!goesOn) {
            outcomes.push_back(NotTranslated(file, u"afgebroken."));
        } else if (!file.format) {
            outcomes.push_back(NotTranslated(file, u"het is geen IDEX-, NEN1878- of SUF2-bestand."));
        } else if (!replaces && FileExistsAt(file.output)) {
            outcomes.push_back(NotTranslated(file, u"overgeslagen, want de uitvoer bestaat al.", true));
        } else {
            screen.BeginFile(place, file.input);
            goesOn = TranslateOne(form, screen, codes, batch, file, outcomes);
        }
    }
    return outcomes;
}

// The form tells what became of all files as it does of one.
void TakeReport(FormKORVANDE& form, const Batch& batch, const std::vector<BatchOutcome>& outcomes) {
    RunReport report;
    report.number = form.lastRun.number + 1;
    report.wentWell =
        std::all_of(outcomes.begin(), outcomes.end(), [](const BatchOutcome& outcome) { return outcome.wentWell; });
    report.outcome = SummaryOf(outcomes);
    report.sentence = report.outcome;
    report.output = batch.files.front().output;
    for (const BatchFile& file : batch.files) {
        if (!file.output.empty()) report.output = file.output;
    }
    for (const BatchOutcome& outcome : outcomes) {
        report.lists.push_back(Concat(FileNameOf(outcome.input), u": ", outcome.result));
    }
    form.lastRun = report;
}

struct BatchEnd {
    RunEnd end = RunEnd::Stopped;
    std::vector<BatchOutcome> outcomes;
};

// What lasts as long as the run mark should.
BatchEnd TranslateWithMark(FormKORVANDE& form, const Batch& batch) {
    const Running running(form.activity);
    form.runMark = runningMark;
    TellChanged(form);
    BatchEnd result;
    const Answer answer = AskAboutExisting(form, batch);
    if (answer == Answer::Yes || answer == Answer::No) result.end = SaveForRun(form);
    if (result.end == RunEnd::Finished) {
        RememberFolder(batch);
        result.outcomes = TranslateAll(form, batch, answer == Answer::Yes);
        TakeReport(form, batch, result.outcomes);
    }
    form.runMark.clear();
    return result;
}

}  // namespace

std::optional<std::vector<BatchOutcome>> TranslateBatch(FormKORVANDE& form, const Batch& batch) {
    if (IsRunning(form) || batch.files.empty()) return {};
    BatchEnd result = TranslateWithMark(form, batch);
    ShowNoProgress(form);
    TellChanged(form);
    if (IsEndOfRunAsked(form)) {
        Unload(form);
        return {};
    }
    if (result.end != RunEnd::Finished) return {};
    return std::move(result.outcomes);
}

Text SummaryOf(const std::vector<BatchOutcome>& outcomes) {
    const auto translated = std::count_if(outcomes.begin(), outcomes.end(),
                                          [](const BatchOutcome& outcome) { return outcome.isTranslated; });
    const auto flawed = std::count_if(outcomes.begin(), outcomes.end(), [](const BatchOutcome& outcome) {
        return outcome.isTranslated && !outcome.wentWell;
    });
    const Text summary = Concat(translated, u" van ", outcomes.size(), u" bestanden vertaald");
    return flawed == 0 ? summary : Concat(summary, u", waarvan ", flawed, u" met fouten of verlies");
}

}  // namespace korvande
