#pragma once

#include <string_view>

#include "core/modScreen.h"
#include "project/Options.h"
#include "translation/Mode.h"

// How the input of a whole run is divided.
namespace korvande::fuzz {

// The options of a run in its first byte.
struct Choice {
    Mode mode;
    Answer answer = Answer::Yes;
    bool withSelection = false;
    std::int32_t source = 0;  // place in the list of source kinds
};
Choice TakeChoice(std::string_view& input);
void ApplyChoice(const Choice& choice, Options& options);

// The control table in front of the drawing, up to its "[End]" line. Without one the drawing is all there is.
std::string_view TakeTable(std::string_view& input);

}  // namespace korvande::fuzz
