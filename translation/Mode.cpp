#include "translation/Mode.h"

#include <algorithm>

namespace korvande {

const ModeNames& NamesOf(Mode mode) noexcept {
    return *std::find_if(modes.begin(), modes.end(), [mode](const ModeNames& names) { return names.mode == mode; });
}

std::optional<Mode> FindMode(TextView name) noexcept {
    const auto found = std::find_if(modes.begin(), modes.end(), [name](const ModeNames& names) {
        return name == names.text || name == names.commandLineText ||
               std::equal(name.begin(), name.end(), names.shortName.begin(), names.shortName.end());
    });
    return found == modes.end() ? std::nullopt : std::optional(found->mode);
}

TextView NameOf(Format format) noexcept {
    return format == Format::Idex ? u"IDEX" : format == Format::Nen1878 ? u"NEN1878" : u"SUF2";
}

Format InputFormat(Mode mode) noexcept {
    if (mode.direction == Direction::FromIdex) return Format::Idex;
    return mode.variant == Variant::Nen1878 ? Format::Nen1878 : Format::Suf2;
}

Mode ModeReading(Format format) noexcept {
    if (format == Format::Idex) return {Direction::FromIdex, Variant::Nen1878};
    return {Direction::ToIdex, format == Format::Nen1878 ? Variant::Nen1878 : Variant::Suf2};
}

}  // namespace korvande
