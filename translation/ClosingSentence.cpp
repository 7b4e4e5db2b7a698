#include "translation/ClosingSentence.h"

#include "host/modFileHandling.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

TextView WhyNotTranslated(const RunOutcome& outcome, Mode mode) {
    if (outcome.cancelled || outcome.importCancelled) return u"afgebroken";
    if (outcome.logBookFailed) return u"het logboek kan niet worden geschreven";
    if (outcome.inputUnreadable) return u"het bestand kan niet worden gelezen";
    if (outcome.wrongFormat) {
        return mode.direction == Direction::FromIdex ? u"het is geen IDEX bestand"
                                                     : u"het is geen NEN1878 of SUF2 bestand";
    }
    return u"de uitvoer kan niet worden geschreven";
}

Text Counted(std::int64_t count, TextView one, TextView many) { return Concat(count, u" ", count == 1 ? one : many); }

// What a translation that was made brought with it; empty when all went well.
Text Troubles(const Translation& translation) {
    const std::int64_t errors = translation.problems.errors;
    const std::int64_t lost = ObjectsLost(translation);
    Text troubles;
    const auto add = [&troubles](TextView trouble) {
        AppendTo(troubles, Concat(troubles.empty() ? u"" : u" en ", trouble));
    };
    if (errors > 0) add(Counted(errors, u"fout", u"fouten"));
    if (lost > 0) {
        add(Counted(lost, u"verloren object", u"verloren objecten"));
    } else if (translation.problems.HasLoss()) {
        add(u"gegevens die niet of anders zijn overgekomen");
    }
    return troubles;
}

}  // namespace

bool WentWell(const Translation& translation) noexcept {
    return !translation.outcome.Failed() && translation.problems.errors == 0 && !translation.problems.HasLoss();
}

std::int64_t ObjectsLost(const Translation& translation) noexcept {
    std::int64_t lost = 0;
    for (std::size_t object = 0; object < objectKinds; ++object) {
        const auto kind = static_cast<ObjectKind>(object);
        for (std::size_t reason = 0; reason < leftOutReasons; ++reason) {
            const auto why = static_cast<LeftOut>(reason);
            if (ListOf(KindOf(why, kind)) == ProblemList::Loss) lost += translation.account[kind].leftOut[reason];
        }
    }
    return lost;
}

Text OutcomeLine(const Translation& translation) {
    if (translation.outcome.Failed()) return ClosingSentence(translation);
    std::int64_t read = 0;
    std::int64_t written = 0;
    for (std::size_t object = 0; object < objectKinds; ++object) {
        const KindAccount& kind = translation.account[static_cast<ObjectKind>(object)];
        read += kind.read;
        written += kind.written;
    }
    return Concat(written, u" van ", Counted(read, u"object", u"objecten"), u" vertaald, ", read - written,
                  u" weggelaten, ", Counted(translation.problems.errors, u"fout", u"fouten"), u" \u2014 ",
                  FileNameOf(OutputName(translation)));
}

Text ClosingSentence(const Translation& translation) {
    const Text& input = InputName(translation);
    if (translation.outcome.Failed()) {
        return Concat(input, u" is niet vertaald: ", WhyNotTranslated(translation.outcome, translation.mode), u".");
    }
    const Text troubles = Troubles(translation);
    if (troubles.empty()) return Concat(input, u" is vertaald.");
    return Concat(input, u" is vertaald, met ", troubles, u".");
}

}  // namespace korvande
