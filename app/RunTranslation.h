#pragma once

namespace korvande {

// The text of the form's run mark while a translation runs.
inline constexpr char16_t runningMark[] = u"XLATE RUNNING";

// What the "Start Vertaling" button does: settles the file names, saves the per-user settings and the project, runs
// TranslateFiles, and disposes of the log book as the report option asks. After a run that a command line started, or
// whose end was asked, the form is unloaded. While a translation runs it does nothing.
void RunTranslation();

// Whether a translation runs. The run mark alone does not tell: it stays behind when a run stops because its input is
// missing.
bool IsTranslating() noexcept;

// Asks the translation to end. It does so where it next lets events run, and unloads the form.
void AskEndOfRun() noexcept;
bool IsEndOfRunAsked() noexcept;

// What a screen calls when it has let events run: throws TranslationAborted when the end of the translation was asked.
void EndRunIfAsked();

}  // namespace korvande
