#pragma once

#include <optional>

#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

struct FormKORVANDE;

// The format of a file by what it holds; nothing also when it cannot be read, which the translation tells.
std::optional<Format> FormatOfFile(FormKORVANDE& form, const Text& name);

// The file that a command line of one argument names, with its folder in full: what a file dropped on the program's
// icon, or opened with it, comes as. Empty when there is no such file, or for any other command line.
Text GivenFile(TextView commandLine);

// Puts a file into the box and selects the mode that reads what it holds, or, when it holds no drawing, into the box of
// its extension (of an unknown one: of the selected mode's input). The other box gets the output's name.
void TakeGivenFile(FormKORVANDE& form, const Text& name);

}  // namespace korvande
