#include "run/RunNames.h"

#include "host/modFileHandling.h"
#include "translation/Translation.h"

namespace korvande {

Text OutputBeside(TextView input, Mode mode) { return WithLastThreeReplaced(input, NamesOf(mode).derivedExtension); }

Text LogBookBeside(TextView output) { return WithLastThreeReplaced(output, u"LOG"); }

void TakeNames(const RunNames& names, Mode mode, Translation& translation) {
    const bool isFromIdex = mode.direction == Direction::FromIdex;
    translation.mode = mode;
    translation.modeText = NamesOf(mode).text;
    translation.IdexFileName = isFromIdex ? names.input : names.output;
    translation.SufNenFileName = isFromIdex ? names.output : names.input;
    translation.LogFileName = names.logBook;
}

std::optional<Text> FindClash(const RunNames& names, TextView controlTable) {
    const auto sentence = [](TextView which, TextView name) {
        return Concat(which, u" zijn hetzelfde bestand:\n", name);
    };
    const auto isSame = [](TextView name, TextView other) { return !other.empty() && SameFile(name, other); };
    if (SameFile(names.output, names.input)) return sentence(u"Invoer en uitvoer", names.output);
    if (isSame(names.output, controlTable)) return sentence(u"Controletabel en uitvoer", names.output);
    if (names.logBook.empty()) return {};
    if (SameFile(names.logBook, names.input)) return sentence(u"Invoer en logboek", names.logBook);
    if (isSame(names.logBook, controlTable)) return sentence(u"Controletabel en logboek", names.logBook);
    if (SameFile(names.logBook, names.output)) return sentence(u"Uitvoer en logboek", names.logBook);
    return {};
}

}  // namespace korvande
