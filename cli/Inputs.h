#pragma once

#include <optional>
#include <string>

#include "cli/ConsoleScreen.h"
#include "core/Text.h"
#include "translation/Mode.h"

// Drawings that are read and not translated.
namespace korvande {

struct Problem;
struct Project;
struct ReadingOptions;
struct Translation;

// A screen for reading only: but for questions, its messages say what the problems say already.
class ReadingScreen : public ConsoleScreen {
 public:
    ReadingScreen();
    Answer ShowMessage(const MessageBox& box) override;
};

// An input whose format was recognised by its content; with its bytes, when it can be read only once, such as a pipe.
struct InputDrawing {
    std::optional<std::string> bytes;
    Format format = Format::Idex;
};

// Looks at an input. When it cannot be read, or is of no format, standard error tells why, and the result is nothing.
std::optional<InputDrawing> FindInput(Screen& screen, const Text& name);

// Makes a translation read this input, with the options for reading.
void TakeInput(const InputDrawing& input, const Text& name, const ReadingOptions& reading, Translation& translation);

// Reads the drawing of an input, to be looked at and not written. Its errors, and what did not come across as it
// stands, go to standard error, under its name. False when there is no drawing.
bool ReadInputDrawing(ReadingScreen& screen, const InputDrawing& input, const Text& name, const ReadingOptions& reading,
                      Translation& translation);

}  // namespace korvande
