#pragma once

#include <string_view>

#include "core/Text.h"
#include "translation/Problem.h"

// The one table that turns the kinds of problems into Dutch.
namespace korvande {

// "{n}" stands for how many, "{wat}" for the kind of object in one or more, "{woorden}", "{getal}", "{naam}" and
// "{regel}" for what varies; "{(regel)}" for " (regel N)" and "{, vanaf regel}" for ", vanaf regel N" when there is a
// line.
struct KindSentence {
    ProblemKind kind;
    std::string_view name;  // of the kind
    ProblemList list;
    bool isDamage;  // of the input
    TextView one;
    TextView many;  // empty: as for one
};

const KindSentence& SentenceOf(ProblemKind kind) noexcept;

}  // namespace korvande
