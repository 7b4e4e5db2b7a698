#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Text.h"

namespace korvande {

class Screen;
struct FormKORVANDE;

// A log book as a window shows it: its lines, and what in them asks for attention.

// Whether a log book is shown in a window of the program's own, rather than in the viewer for text files: a person who
// started the program chose so, and the window stays.
bool ShowsLogBookItself(const FormKORVANDE& form);

// Shows a log book in the way that the screen has; a message names one that cannot be shown.
void ViewLogBook(Screen& screen, const Text& name);

struct LogBookView {
    std::vector<std::string> lines;  // in Windows-1252, without their ends

    // The first line of the block that tells what did not come across as it was read, which goes on to the end; the
    // number of lines without one.
    std::size_t blockBegin = 0;
    std::vector<std::size_t> marks;  // the lines with an error, and the first of the block, in their order
    std::size_t longestLine = 0;
};

enum class LineLook { Plain, Error, Block };
LineLook LookOf(const LogBookView& view, std::size_t line);

// Reads a closed log book. A run-time error when it cannot be read.
LogBookView ReadLogBook(TextView name);

// All of it, as it stands in a file.
std::string LogBookBytes(const LogBookView& view);

// From a line (nothing: from outside the text) on to the next one, forwards or backwards: a marked one, or one that
// holds a text whatever the case of its letters. Behind the last it goes on at the first, and comes back to the line
// itself when there is no other. Nothing when there is none at all.
enum class Towards { Next, Previous };
std::optional<std::size_t> FindMark(const LogBookView& view, std::optional<std::size_t> from, Towards towards);
std::optional<std::size_t> FindLine(const LogBookView& view, TextView text, std::optional<std::size_t> from,
                                    Towards towards);

// Where the view is, in words: "Regel 12 van 340, 3 meldingen".
Text PlaceInLogBook(const LogBookView& view, std::optional<std::size_t> line);

}  // namespace korvande
