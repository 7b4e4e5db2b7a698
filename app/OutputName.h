#pragma once

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// Takes the quotation marks away between which a name was pasted into a file box.
void TakeQuotesAway(FormKORVANDE& form);

// The input that the form's boxes name for the selected mode.
const Text& InputInForm(const FormKORVANDE& form) noexcept;

// After an input or a mode was chosen: gives the box of the output the input's name with the extension of the mode
// (.SFN, .SF2 or .IDX), when it is empty, has no folder, or holds a name that stands beside an input under its name:
// this one's or that of the choice before.
void DeriveOutputName(FormKORVANDE& form);

// An output's name without a folder of its own means a place beside the input, never in the folder that the program was
// started in.
Text BesideInput(TextView output, TextView input);

}  // namespace korvande
