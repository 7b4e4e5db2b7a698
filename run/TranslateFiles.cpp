#include "run/TranslateFiles.h"

#include "core/Clock.h"
#include "core/VersionText.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "run/Steps.h"
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
    log.WriteLine(Concat(u"--- LISCAD  -  NEN1878/SUF2 Vertaler Versie:  ", VersionText(), u"  -  Logboek ---"));
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
                Concat(u"Het logboek kon niet volledig worden geschreven:\n", translation.LogFileName));
}

}  // namespace

bool TranslateFiles(Translation& translation) {
    if (!OpenLogBook(translation)) {
        translation.outcome.logBookFailed = true;
        return false;
    }
    WriteHeader(translation);
    ReadAndWrite(translation);
    WriteFooter(translation);
    CloseLogBook(translation);
    return true;
}

}  // namespace korvande
