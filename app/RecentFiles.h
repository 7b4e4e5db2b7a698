#pragma once

#include <vector>

#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

struct FormKORVANDE;

// The files that a user translated last, kept from one session to the next.
struct RecentFile {
    Text name;  // with its folder in full
    Mode mode;  // of its last translation
};

// Newest first, ten at most. What is kept and makes no sense is left out.
std::vector<RecentFile> RecentFiles();

// How a file is offered: its name, its mode, and its folder.
Text OfferOf(const RecentFile& file);

// Keeps the input that the form's boxes name for the selected mode as the newest one.
void RememberInput(const FormKORVANDE& form);

// Puts a file into its box, selects its mode and derives the output's name. A file that is not there any more is told,
// with a question whether it is to be offered again.
void TakeRecentFile(FormKORVANDE& form, const RecentFile& file);

}  // namespace korvande
