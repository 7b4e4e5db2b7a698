#pragma once

#include "translation/Mode.h"

namespace korvande {

struct FormKORVANDE;

// The text of the form's run mark while a translation runs.
inline constexpr char16_t runningMark[] = u"XLATE RUNNING";

// What the "Start Vertaling" button does: settles the file names, saves the per-user settings and the project, runs
// TranslateFiles, and disposes of the log book as the report option asks. After a run that a command line started, or
// whose end was asked, the form is unloaded; after one that was stopped it stays. During a run it does nothing.
void RunTranslation(FormKORVANDE& form);

// The mode of a translation that started now: the mode list tells its variant, and its direction too unless that is
// fixed.
Mode SelectedMode(const FormKORVANDE& form);

}  // namespace korvande
