#pragma once

#include <optional>
#include <string>

#include "core/Text.h"
#include "translation/Mode.h"

// A drawing whose format nobody tells.
namespace korvande {

class Screen;
struct Translation;

// An input whose format was recognised by its content; with its bytes, when it can be read only once, such as a pipe.
struct InputDrawing {
    std::optional<std::string> bytes;
    Format format = Format::Idex;
};

// What came of looking at an input: it, or a message why there is none.
struct FoundInput {
    std::optional<InputDrawing> input;
    Text whyNot;
};
FoundInput LookAtInput(Screen& screen, const Text& name);

// Makes a translation read this input, which stays alive as long as it does.
void TakeInput(const InputDrawing& input, const Text& name, Translation& translation);

}  // namespace korvande
