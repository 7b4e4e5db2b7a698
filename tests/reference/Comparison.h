#pragma once

#include <string>

#include "project/Project.h"
#include "run/TranslateFiles.h"
#include "tests/reference/Values.h"
#include "translation/Translation.h"

namespace korvande::reference {

// What the reference is to do as the product's project says. Its code tables are the product's, as it has them before a
// translation.
Settings SettingsOf(const Project& project, const Translation& begun, korvande::Answer answer);

// In what a translation that has run in memory differs from the reference's: the first difference in its log book's
// problems, its drawing, its counts and its output. Empty when there is none.
std::string DifferenceFrom(const Translation& run, const std::string& logBook, Settings settings);

}  // namespace korvande::reference
