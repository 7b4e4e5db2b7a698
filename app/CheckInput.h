#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/Text.h"
#include "picture/RdArea.h"

namespace korvande {

struct FormKORVANDE;

// What a check found, by what it would be in a translation. The last two are as the control table and the settings
// want it: of them the first is worth a look all the same.
enum class FindingKind {
    Error,
    Loss,      // something that would not come across, or otherwise than it was read
    Question,  // that a translation would ask
    UnknownCode,
    Wanted
};
inline constexpr std::size_t findingKinds = static_cast<std::size_t>(FindingKind::Wanted) + 1;

struct Finding {
    std::int64_t line = 0;  // of the input; 0: of the file as a whole
    FindingKind kind = FindingKind::Error;
    Text sentence;
};

// What a list of findings calls a kind.
TextView NameOf(FindingKind kind) noexcept;

// A drawing may have any number of problems; behind these they are only counted.
inline constexpr std::size_t mostFindings = 1'000'000;

struct CheckReport {
    Text input;
    Text modeText;
    std::vector<Finding> findings;  // by line, those of the whole file first; of one line as they were met
    std::array<std::int64_t, findingKinds> counts{};
    std::vector<Text> account;  // of the objects
    RdPlace place = RdPlace::Inside;
};

// Whether there is nothing that a person should know before translating.
bool IsFlawless(const CheckReport& report) noexcept;

// "2 fouten, 1 keer verlies, 3 onbekende codes" and the like, or that there are no problems; and what else is to be
// said: that the drawing lies outside RD, what is left out as the settings want it, and how many findings are listed
// when that is not all of them.
Text SummaryOf(const CheckReport& report);
Text RemarksOf(const CheckReport& report);

// The findings of these places as lines of a text, or all of them with the input, the summary and the remarks above
// them and the account below: line, kind and sentence, with tabs between them.
Text TextOf(const CheckReport& report, const std::vector<std::size_t>& places);
Text TextOf(const CheckReport& report);

// Goes through the input of the selected mode with the options on the screen, and writes nothing. Nothing comes of it
// when the input is missing, which a message tells, or when it was stopped; the form is unloaded when that was asked
// meanwhile. During a run it does nothing.
std::optional<CheckReport> CheckInput(FormKORVANDE& form);

}  // namespace korvande
