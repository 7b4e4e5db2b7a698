#pragma once

#include <string>
#include <string_view>

#include "translation/Translation.h"

namespace korvande::testing {

// The lines of a list of problems, in UTF-8; each ends in a line feed.
inline std::string LinesOf(const Translation& translation, ProblemList list) {
    std::string lines;
    for (const Text& line : translation.problems.Lines(list)) lines += ToUtf8(line) + "\n";
    return lines;
}
inline std::string LossOf(const Translation& translation) { return LinesOf(translation, ProblemList::Loss); }
inline std::string WantedOf(const Translation& translation) { return LinesOf(translation, ProblemList::Wanted); }

}  // namespace korvande::testing
