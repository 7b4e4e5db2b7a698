#pragma once

#include "translation/Mode.h"

namespace korvande {

struct FormKORVANDE;

// The text of the form's run mark while a translation runs.
inline constexpr char16_t runningMark[] = u"XLATE RUNNING";

// What the "Start Vertaling" button does: settles the file names, saves the per-user settings and the project, runs
// TranslateFiles, and disposes of the log book as the report option asks. After a run that a command line started, or
// whose end was asked, the form is unloaded. While a translation runs it does nothing.
void RunTranslation(FormKORVANDE& form);

// The mode of a translation that started now: the mode list tells its variant, and its direction too unless that is
// fixed.
Mode SelectedMode(const FormKORVANDE& form);

// Whether a translation runs. The run mark alone does not tell: it stays behind when a run stops because its input is
// missing.
bool IsTranslating(const FormKORVANDE& form) noexcept;

// Asks the translation to end. It does so where it next lets events run, and unloads the form.
void AskEndOfRun(FormKORVANDE& form) noexcept;
bool IsEndOfRunAsked(const FormKORVANDE& form) noexcept;

// What a screen calls when it has let events run: throws TranslationAborted when the end of the translation was asked.
void EndRunIfAsked(const FormKORVANDE& form);

}  // namespace korvande
