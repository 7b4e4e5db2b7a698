#pragma once

#include <string_view>

#include "core/Text.h"

// A project's file, the control table: lines "key = value" in sections.
namespace korvande {

struct Project;
class Screen;

// Resets, then reads a control table file. When it cannot be opened or read a Retry/Cancel message tells so; after
// Cancel the reset state stays, and the result is false. So it is, with a message, for a file without any section of a
// control table. One without [End] is loaded, and a message tells that it seems to be cut off. Malformed lines never
// stop a load. A key may set StartedInteractively.
bool LoadProjectFile(Screen& screen, Project& project, TextView fileName);

// The same with the bytes of a control table.
void LoadProjectBytes(Screen& screen, Project& project, std::string_view bytes);

// Takes the owner boxes into the owner record and writes the control table file anew. False when it could not be
// written and a person cancelled.
bool SaveProjectFile(Screen& screen, Project& project, TextView fileName);

}  // namespace korvande
