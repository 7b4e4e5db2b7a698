#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Text.h"

namespace korvande {

// Which way a translation goes. The numbers are those of a command line.
enum class Direction : std::int16_t {
    None = 0,
    ToIdex = 1,   // from NEN1878/SUF2 to IDEX
    FromIdex = 2  // from IDEX to NEN1878/SUF2
};

enum class Variant { Nen1878, Suf2 };

// What a translation translates.
struct Mode {
    Direction direction = Direction::None;
    Variant variant = Variant::Nen1878;

    friend bool operator==(const Mode&, const Mode&) = default;
};

// What a mode is called, and the extensions of its output.
struct ModeNames {
    Mode mode;
    TextView text;               // in the mode list and the log book
    std::string_view shortName;  // on the console
    TextView commandLineText;    // in the mode list of a conversion that a command line fixed
    TextView extension;          // of an output that goes into a folder
    TextView derivedExtension;   // of an output whose name follows from the input's
};

// In the order of the mode list.
inline constexpr std::array<ModeNames, 4> modes = {{
    {{Direction::FromIdex, Variant::Nen1878}, u"IDEX >> NEN1878", "idex-nen1878", u"Export NEN1878", u"sfn", u"SFN"},
    {{Direction::FromIdex, Variant::Suf2}, u"IDEX >> SUF2", "idex-suf2", u"Export SUF2", u"sf2", u"SFN"},
    {{Direction::ToIdex, Variant::Nen1878}, u"NEN1878 >> IDEX", "nen1878-idex", u"Import NEN1878", u"idx", u"IDX"},
    {{Direction::ToIdex, Variant::Suf2}, u"SUF2 >> IDEX", "suf2-idex", u"Import SUF2", u"idx", u"IDX"},
}};

// The names of a mode that has a direction.
const ModeNames& NamesOf(Mode mode) noexcept;

// The mode of this text, short name or text of a command line's mode list; nothing when there is none.
std::optional<Mode> FindMode(TextView name) noexcept;

// The formats of exchange files.
enum class Format { Idex, Nen1878, Suf2 };
TextView NameOf(Format format) noexcept;

// The format that a mode reads, and the mode by which a check reads a format.
Format InputFormat(Mode mode) noexcept;
Mode ModeReading(Format format) noexcept;

}  // namespace korvande
