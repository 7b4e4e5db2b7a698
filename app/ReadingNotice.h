#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"
#include "translation/Problem.h"

namespace korvande {

struct DisplayList;
struct Translation;

// What a person must know of a drawing that was read to be looked at, and that the picture of it does not show.
class ReadingNotice {
 public:
    // Hears of the errors of a translation, which must not outlive it; before that reads.
    void Listen(Translation& translation);

    // A question that was answered with what it proposes.
    void AddQuestion(TextView question);

    // In lines, after the reading: what was answered, what was not read or is damaged, that there is nothing to be
    // seen; none when all is well.
    Text Lines(TextView fileName, const Translation& translation, const DisplayList& list) const;

    // Why a file could not be read at all, with its name: what was told last (which may be empty), when that names it,
    // or the first error.
    Text Failure(TextView name, TextView message) const;

 private:
    std::vector<Text> questions;
    Text firstError;  // with its line of the input
    std::int64_t errors = 0;
};

}  // namespace korvande
