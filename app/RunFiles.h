#pragma once

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// Whether an input is there; a message tells when it is not.
bool InputIsThere(const FormKORVANDE& form, const Text& name);

// Takes names and direction of the next translation from the window's controls, which get the output's name. False when
// the input does not exist.
bool TakeNamesFromForm(FormKORVANDE& form);

// The output of the conversion that was taken.
const Text& OutputOf(const FormKORVANDE& form) noexcept;

// Whether a run would write one of its files over another one, or over the control table, which a message tells.
bool WouldWriteOverItsFiles(FormKORVANDE& form);

// An output that is there already is replaced without a question when a command line or the save dialog named it, or
// when this window wrote it itself.
bool MayWriteOutput(const FormKORVANDE& form, const Text& output);

// The current project's control table; empty without one.
Text ControlTableOf(const FormKORVANDE& form);

}  // namespace korvande
