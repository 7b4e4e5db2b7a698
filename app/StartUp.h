#pragma once

#include "core/Text.h"

namespace korvande {

// What the program was started with.
struct StartUpArguments {
    Text commandLine;               // empty: interactive use
    bool asksRegistration = false;  // the switch /LISCAD
};

enum class AfterStartUp { EndProgram, OpenWindow };

// Everything that happens before the window opens, in its order: the form's initial values (callbacks are set behind
// this call), LISCAD's versions and paths, per-user settings, the command line (registration, one fixed conversion, or
// interactive use), migration of old project files, the first project, and the lists. Messages go through modScreen.
AfterStartUp StartUp(const StartUpArguments& arguments);

// LISCAD's installation as start-up found it.
struct LiscadInstallation {
    Text version;
    Text language;
    Text dataPath;
};
LiscadInstallation& TheLiscad() noexcept;

// Whether a command line fixed one conversion; no control table changes that.
bool& StartedByCommandLine() noexcept;

// Renames the folder's *.ini project files of an older release to *.nst; SECURITY.INI and DESKTOP.INI stay, and so does
// a file whose new name is taken.
void MigrateProjectFiles(TextView folder);

// Asked before the window closes: true when it may close at once. While the form carries the run mark a message says
// that the translation is broken off. A run in progress then ends at its next pump of events and unloads the form; the
// mark that a run left behind because its input was missing does not keep the window open. While a project is being
// loaded the window closes when that is done.
bool QueryClose();

// The window closes: saves the current project and the per-user settings.
void UnloadForm();

}  // namespace korvande
