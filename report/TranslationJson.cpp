#include "report/TranslationJson.h"

#include "report/JsonParts.h"
#include "translation/ClosingSentence.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

const char* EndingOf(const RunOutcome& outcome) noexcept {
    if (outcome.cancelled || outcome.importCancelled) return "geannuleerd";
    if (outcome.inputUnreadable) return "invoer onleesbaar";
    if (outcome.wrongFormat) return "ander formaat";
    if (outcome.logBookFailed) return "logboek niet geschreven";
    return outcome.outputFailed ? "uitvoer niet geschreven" : "vertaald";
}

}  // namespace

std::string TranslationJson(const Translation& translation, std::int64_t status, std::span<const Problem> errors) {
    const KindAccount total = translation.account.Total();
    return OnOneLine({{"invoer", JsonText(InputName(translation))},
                      {"uitvoer", JsonText(OutputName(translation))},
                      {"logboek", TextOrNull(translation.LogFileName)},
                      {"modus", NamesOf(translation.mode).shortName},
                      {"afloop", EndingOf(translation.outcome)},
                      {"status", status},
                      {"gelezen", total.read},
                      {"geschreven", total.written},
                      {"weggelaten", total.LeftOutTotal()},
                      {"slotzin", JsonText(ClosingSentence(translation))},
                      {"aantallen", CountsJson(translation.drawing)},
                      {"balans", AccountJson(translation.account)},
                      {"fouten", ErrorsJson(errors)},
                      {"meldingen", RemarksJson(translation.problems)},
                      {"onbekendeCodes", UnknownCodesJson(translation)}});
}

std::string OtherTranslationJson(const OtherTranslation& translation) {
    return OnOneLine({{"invoer", JsonText(translation.input)},
                      {"uitvoer", JsonText(translation.output)},
                      {"logboek", TextOrNull(translation.logBook)},
                      {"status", translation.status},
                      {"hervat", translation.isEarlier}});
}

}  // namespace korvande
