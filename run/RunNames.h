#pragma once

#include <optional>

#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

struct Translation;

// The files of one translation.
struct RunNames {
    Text input;
    Text output;
    Text logBook;  // empty: none
};

// The names that follow from the input's and from the output's, where none are given.
Text OutputBeside(TextView input, Mode mode);
Text LogBookBeside(TextView output);

// Makes a translation work on these files, in this mode.
void TakeNames(const RunNames& names, Mode mode, Translation& translation);

// What is wrong with these names, in a sentence: no run may write over its input or its control table (whose name may
// be empty), nor over what it writes itself. Nothing when they are good.
std::optional<Text> FindClash(const RunNames& names, TextView controlTable);

}  // namespace korvande
