#include "run/TranslateFiles.h"

#include "core/Clock.h"
#include "core/RuntimeError.h"
#include "core/Version.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "run/Steps.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

void WriteMoment(LogBook& log, TextView label) {
    const DateTime now = Now();
    log.WriteLine(Concat(label, ShortDate(now), ShortTime(now)));
}

void WriteMode(LogBook& log, TextView modeText) { log.WriteLine(Concat(u"     Bewerking:  ", modeText)); }

void WriteHeader(Translation& translation) {
    LogBook& log = translation.log;
    log.WriteLine();
    log.WriteLine(Concat(u"--- LISCAD  -  NEN1878/SUF2 Vertaler Versie:  ", versionText, u"  -  Logboek ---"));
    log.WriteEmptyLines(2);
    log.WriteLine(Concat(u"IDEX bestand:    ", QuoteText(translation.IdexFileName)));
    log.WriteLine(Concat(u"SUF/NEN bestand: ", QuoteText(translation.SufNenFileName)));
    log.WriteLine();
    WriteMode(log, translation.modeText);
    WriteMoment(log, u"     Start:      ");
    log.WriteLine();
}

void WriteFooter(Translation& translation) {
    translation.log.WriteLine();
    WriteMode(translation.log, translation.modeText);
    WriteMoment(translation.log, u"     Gereed:     ");
}

bool OpenLogBook(Translation& translation) {
    const Text& name = translation.LogFileName;
    if (name.empty()) return true;
    return TryWithRetry(translation.screen, name, u"opslaan", [&] { translation.log.Open(name); });
}

void CloseLogBook(Translation& translation) {
    if (translation.log.IsOpen()) translation.log.Close();
    if (!translation.log.HasFailed()) return;
    translation.outcome.logBookFailed = true;
    ShowMessage(translation.screen,
                Concat(u"Het logboek kon niet volledig worden geschreven:\n", translation.LogFileName, u"\n",
                       RuntimeError(translation.log.Failure()).Description()));
}

// The log book is closed by now, so this goes behind its end.
void ReportNotInPlace(Translation& translation, const RuntimeError& error) {
    LogBook& log = translation.log;
    try {
        if (!translation.LogFileName.empty()) log.Reopen(translation.LogFileName);
    } catch (const std::exception&) {
        // The message tells it too.
    }
    const Problem problem{
        .kind = ProblemKind::OutputNotPutInPlace, .number = error.Number(), .name = OutputName(translation)};
    Report(translation, problem);
    if (log.IsOpen()) log.Close();
    ShowMessage(translation.screen, Sentence(problem));
}

// A front end that names another file to be written does with it what it wants.
bool IsToBePutInPlace(const Translation& translation) {
    return translation.outputTo == OutputTo::File && translation.temporaryOutput.empty();
}

// The finished output takes the place of an earlier one, which until then stayed as it was; what a translation that
// failed has written goes.
void PutInPlace(Translation& translation) {
    if (!translation.replacement) return;
    if (translation.outcome.Failed()) return translation.replacement->Drop();
    try {
        translation.replacement->PutInPlace();
    } catch (const std::exception&) {
        translation.outcome.outputFailed = true;
        ReportNotInPlace(translation, CurrentError());
    }
}

}  // namespace

bool TranslateFiles(Translation& translation) {
    if (!OpenLogBook(translation)) {
        translation.outcome.logBookFailed = true;
        return false;
    }
    WriteHeader(translation);
    if (IsToBePutInPlace(translation)) translation.replacement.emplace(OutputName(translation));
    ReadAndWrite(translation);
    WriteFooter(translation);
    WriteProblemBlock(translation);
    CloseLogBook(translation);
    PutInPlace(translation);
    return true;
}

}  // namespace korvande
