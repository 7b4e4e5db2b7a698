#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/Text.h"
#include "translation/Mode.h"
#include "translation/Problem.h"

namespace korvande {

struct Translation;

// What is wrong with a file that is checked.
struct CheckFinding {
    std::string_view kind;  // the name of a kind of problem, or "Question" for what a run would have asked
    std::int64_t line = 0;  // of the file; 0: none
    Text text;
};

CheckFinding FindingOf(const Problem& problem);
CheckFinding FindingOfQuestion(TextView question, std::int64_t line);

// What a check came to, as a JSON object on one line: the file, its format, the exit status, what is wrong, what a
// translation would leave out, the counts, what the drawing covers (metres) and the codes, those that the code tables
// do not know apart. docs/json.md tells its members.
std::string CheckJson(const Translation& translation, TextView name, Format format, std::int64_t status,
                      std::span<const CheckFinding> findings);

// The same of a file that could not be read, or is of no format.
std::string FailedCheckJson(TextView name, std::int64_t status);

}  // namespace korvande
