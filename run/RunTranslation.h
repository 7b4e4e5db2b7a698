#pragma once

namespace korvande {

// The text of the form's run mark while a translation runs.
inline constexpr char16_t runningMark[] = u"XLATE RUNNING";

// What the "Start Vertaling" button does: settles the file names, saves the per-user settings and the project, runs
// TranslateFiles, and disposes of the log book as the report option asks. After a run that a command line started, the
// form is unloaded.
void RunTranslation();

}  // namespace korvande
