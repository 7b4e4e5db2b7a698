#pragma once

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// What the program was started with.
struct StartUpArguments {
    Text commandLine;               // empty, or of one existing file: interactive use
    bool asksRegistration = false;  // the switch /LISCAD
};

enum class AfterStartUp { EndProgram, OpenWindow };

// Everything that happens between the making of the form and the opening of the window, in its order: LISCAD's versions
// and paths, per-user settings, the command line (registration, one fixed conversion, or interactive use, with a file
// when one is given), migration of old project files, the first project, and the lists.
AfterStartUp StartUp(FormKORVANDE& form, const StartUpArguments& arguments);

// Renames the folder's *.ini project files of an older release to *.nst; SECURITY.INI and DESKTOP.INI stay, and so does
// a file whose new name is taken.
void MigrateProjectFiles(TextView folder);

// Asked before the window closes: true when it may close at once. While the form carries the run mark a message says
// that the translation is broken off. A run in progress then ends at its next pump of events and unloads the form; the
// mark that a run left behind because its input was missing does not keep the window open. While a project is being
// loaded the window closes when that is done.
bool QueryClose(FormKORVANDE& form);

// The window closes: saves the current project and the per-user settings. False, with nothing saved, when a person
// wants the window to stay open after all; a closing that nobody can refuse, such as that of the session, asks nothing.
enum class MayStay { No, Yes };
bool UnloadForm(FormKORVANDE& form, MayStay mayStay = MayStay::Yes);

}  // namespace korvande
