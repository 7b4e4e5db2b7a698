#pragma once

#include "core/Text.h"

namespace korvande {

// What the program was started with.
struct StartUpArguments {
    Text commandLine;               // empty: interactive use
    bool asksRegistration = false;  // the switch /LISCAD
};

enum class AfterStartUp { EndProgram, OpenWindow };

// Everything that happens before the window opens, in its order: LISCAD's versions and paths, per-user settings, the
// command line (registration, one fixed conversion, or interactive use), migration of old project files, the first
// project, and the lists. Messages go through modScreen.
AfterStartUp StartUp(const StartUpArguments& arguments);

// Renames the folder's *.ini project files of an older release to *.nst; SECURITY.INI and DESKTOP.INI stay, and so does
// a file whose new name is taken.
void MigrateProjectFiles(TextView folder);

// Asked before the window closes: while a translation runs a message says that it is broken off, and the run ends at
// its next pump of events. True when the window may close at once.
bool QueryClose();

// The window closes: saves the current project and the per-user settings.
void UnloadForm();

}  // namespace korvande
