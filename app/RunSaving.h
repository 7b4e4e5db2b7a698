#pragma once

namespace korvande {

struct FormKORVANDE;

// What became of a run, or of the start of one.
enum class RunEnd {
    Finished,
    Stopped,  // or ended by a person: nothing more is to be said
    Kept      // a person goes on with the project as it is on the screen
};

// Saves the settings and the project before a run, asking when another program changed the project's file.
RunEnd SaveForRun(FormKORVANDE& form);

}  // namespace korvande
