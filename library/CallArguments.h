#pragma once

#include "core/Text.h"
#include "library/korvande.h"
#include "translation/Mode.h"

// What a caller hands in, looked at before anything is done with it.
namespace korvande {

struct Options;

// A wrong use of the library.
struct WrongUse {
    Text message;
};

// These are a WrongUse when they are not what the interface allows.
korvande_options KnownOptions(const korvande_options* given);
korvande_callbacks KnownCallbacks(const korvande_callbacks* given);
Mode ModeOf(const char* name);
Text FileName(const char* name, TextView role);

// Sets what a call's options say over what the control table says.
void TakeOptions(const korvande_options& given, Options& options);

}  // namespace korvande
