#pragma once

#include <optional>

#include "cli/ConsoleScreen.h"
#include "core/Text.h"
#include "run/InputDrawing.h"

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

// An output that is a file that is read is a UsageError, in these words; an empty name is no file.
void RefuseClash(const Text& output, const Text& input, TextView words);

// Looks at an input. When it cannot be read, or is of no format, standard error tells why, and the result is nothing.
std::optional<InputDrawing> FindInput(Screen& screen, const Text& name);

// Makes a translation read this input, with the options for reading.
void TakeInput(const InputDrawing& input, const Text& name, const ReadingOptions& reading, Translation& translation);

// Reads the drawing of an input, to be looked at and not written. Its errors, and what did not come across as it
// stands, go to standard error, under its name. False when there is no drawing.
bool ReadInputDrawing(ReadingScreen& screen, const InputDrawing& input, const Text& name, const ReadingOptions& reading,
                      Translation& translation);

}  // namespace korvande
