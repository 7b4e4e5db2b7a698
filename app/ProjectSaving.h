#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// Saving the current project, whose file other programs write too: a second window, or an editor. It is written only
// when something was changed here, and over what another program made of it only when a person wants so.

// The current project's file as this window knows it.
struct ProjectFile {
    Text project;              // empty: it was neither loaded nor saved here
    std::string bytes;         // as they were then
    std::string unchanged;     // what a save writes as long as nothing is changed here
    bool mayBeWritten = true;  // false: a save was refused, and that was told
};

// What becomes of what was changed here.
enum class Edits {
    None,  // there are none to be saved
    Save,
    Drop,  // a person wants what another program wrote
    Keep   // a person wants neither: what was asked for does not happen
};

// The bytes of a project's file; nothing when it cannot be read.
std::optional<std::string> ProjectBytes(TextView name);

// The current project was loaded from a file of these bytes.
void RememberLoaded(FormKORVANDE& form, std::string_view bytes);

// Takes the grids and the owner boxes into the project, and finds out what becomes of it; asks when its file was
// changed by another program. A file that is gone, or was never there, is written anew.
Edits AskAboutEdits(FormKORVANDE& form);

// Writes the current project's file. When that fails a Retry/Cancel message tells so; a file that may not be written is
// told once, and tried without a word from then on until the project is loaded again.
void SaveEdits(FormKORVANDE& form);

// Both of them. False when a person wants to keep what was changed here and what was asked for is not to happen.
bool SaveCurrentProject(FormKORVANDE& form);

// Saves the current project where nobody can be asked: over what another program wrote, or where it may not be written,
// nothing is, and what was changed here goes into a new file beside it, "NAME (2).NST".
void SaveWithoutQuestion(FormKORVANDE& form);

}  // namespace korvande
