#pragma once

namespace korvande {

struct Translation;

// Goes through a translation that leaves nothing behind, so that everything it would tell is told: its input is read,
// every code is looked up, unknown ones are tallied, and what refers to something is followed by writing it to nowhere.
void CheckDrawing(Translation& translation);

}  // namespace korvande
