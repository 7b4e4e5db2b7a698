#pragma once

#include <vector>

#include "core/Text.h"

namespace korvande {

struct Translation;

// What is told at the end of a run, as lines: the title and the lines of each of the two lists that is not empty, the
// second behind an empty line; or only what did not come across as it was read, the first list.
std::vector<Text> ProblemLines(const Translation& translation);
std::vector<Text> LossLines(const Translation& translation);

// The account of the objects, a line for each kind that occurs.
std::vector<Text> AccountLines(const Translation& translation);

// Appends both to the log book, behind its described end. A run without loss gets nothing.
void WriteProblemBlock(Translation& translation);

}  // namespace korvande
