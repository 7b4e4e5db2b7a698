#include "run/TranslateFiles.h"

#include <utility>

#include "core/Clock.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "host/modFileHandling.h"
#include "idex/modExportIDEX.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"

namespace korvande {

namespace {

TextView ModeText() { return frmKORVANDE().cboXlateMode.SelectedText(); }

void WriteMoment(TextView label) {
    const DateTime now = Now();
    LogFile().WriteLine(Concat(label, ShortDate(now), ShortTime(now)));
}

void WriteHeader() {
    const RunValues& run = TheRun();
    LogBook& log = LogFile();
    log.WriteLine();
    log.WriteLine(Concat(u"--- LISCAD  -  NEN1878/SUF2 Vertaler ", frmKORVANDE().lblVersion, u"  -  Logboek ---"));
    log.WriteEmptyLines(2);
    log.WriteLine(Concat(u"IDEX bestand:    ", QuoteText(run.IdexFileName)));
    log.WriteLine(Concat(u"SUF/NEN bestand: ", QuoteText(run.SufNenFileName)));
    log.WriteLine();
    log.WriteLine(Concat(u"     Bewerking:  ", ModeText()));
    WriteMoment(u"     Start:      ");
    log.WriteLine();
}

void WriteFooter() {
    LogFile().WriteLine();
    LogFile().WriteLine(Concat(u"     Bewerking:  ", ModeText()));
    WriteMoment(u"     Gereed:     ");
}

void ReportVanishedInput(TextView name) {
    TheRun().outcome.inputUnreadable = true;
    ShowMessage(Concat(u"Bestand: ", name, u" niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken."));
    LogFile().WriteLine(Concat(u"==>  Bestand: ", name, u" niet gevonden; verwerking afgebroken."));
}

// One step of the run: an error that escapes it ends it, is logged, and the run goes on.
void RunStep(void (*step)()) {
    try {
        step();
    } catch (const std::exception&) {
        LogFile().WriteEscapedError(CurrentError());
    }
    CurrentInputLine() = 0;
}

// What a step that ended early left in the output's buffer is written too.
void CloseOutput() {
    RunValues& run = TheRun();
    try {
        if (run.output.IsOpen()) run.output.Close();
    } catch (const RuntimeError& error) {
        LogFile().WriteEscapedError(error);
    }
    if (run.output.HasFailed()) run.outcome.outputFailed = true;
}

// In a run that failed, what was read and did not get into an output was left out by that.
void AccountForTheRest() {
    if (!TheRun().outcome.Failed()) return;
    for (std::size_t i = 0; i < objectKinds; ++i) {
        const auto kind = static_cast<ObjectKind>(i);
        const KindAccount& account = TheAccount()[kind];
        TheAccount().Leave(kind, LeftOut::Unfinished, account.read - account.written - account.LeftOutTotal());
    }
}

void ReadAndWrite() {
    const RunValues& run = TheRun();
    const bool isFromIdex = run.XlateDirection == fromIdex;
    const Text& input = isFromIdex ? run.IdexFileName : run.SufNenFileName;
    if (!FileExistsAt(input)) return ReportVanishedInput(input);
    RunStep(isFromIdex ? ReadIdexFile : ImportNenSuf);
    RunStep(isFromIdex ? ExportSufNen : WriteIdexFile);
}

}  // namespace

void TakeVariantFromMode() { TheRun().NenMode = TheRun().ExportNen = ModeText().find(u"NEN1878") != TextView::npos; }

bool TranslateFiles() {
    RunValues& run = TheRun();
    LogBook& log = LogFile();
    run.outcome = {};
    TheAccount() = {};
    TakeVariantFromMode();
    auto onError = std::move(log.onError);
    log = LogBook();
    log.onError = std::move(onError);
    const bool logIsOpen =
        run.LogFileName.empty() || TryWithRetry(run.LogFileName, u"opslaan", [&] { log.Open(run.LogFileName); });
    if (!logIsOpen) {
        run.outcome.logBookFailed = true;
        return false;
    }
    WriteHeader();
    try {
        ReadAndWrite();
    } catch (const TranslationAborted&) {
        run.outcome.cancelled = true;
        log.WriteLine(u"==>  Vertaling afgebroken.");
    }
    CloseOutput();
    AccountForTheRest();
    WriteFooter();
    if (log.IsOpen()) log.Close();
    if (log.HasFailed()) {
        run.outcome.logBookFailed = true;
        ShowMessage(Concat(u"Het logboek kon niet volledig worden geschreven:\n", run.LogFileName));
    }
    return true;
}

}  // namespace korvande
