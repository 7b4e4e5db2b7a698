#pragma once

#include "core/Text.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the name that the library has
class App;
class ParseError;
}  // namespace CLI

namespace korvande {

// What is wrong with a command line, in Dutch.
Text UsageMessage(const CLI::ParseError& error);

// A UsageError for an argument without a character, such as a script's variable that was never set.
void RefuseEmptyValues(const CLI::App& app);

}  // namespace korvande
