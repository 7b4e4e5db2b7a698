#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "core/Text.h"
#include "translation/Problem.h"

namespace korvande {

struct Translation;

// What a translation came to, as a JSON object on one line: the names of its files, how it ended, its exit status, the
// counts, the account of its objects, its errors (those that were heard of, since a translation only counts them), what
// did not come across, and the codes that the tables do not know. docs/json.md tells its members.
std::string TranslationJson(const Translation& translation, std::int64_t status, std::span<const Problem> errors);

// The same of a translation that was not made now: an earlier batch made it, or nothing came of it.
struct OtherTranslation {
    TextView input;
    TextView output;
    TextView logBook;  // empty: none
    std::int64_t status = 0;
    bool isEarlier = false;
};
std::string OtherTranslationJson(const OtherTranslation& translation);

}  // namespace korvande
