#pragma once

#include "core/Text.h"

// What the program keeps for its user from one session to the next, beside the options of a project: values of the
// settings key in the current user's hive.
namespace korvande {

// The value that was kept under a name, or the initial one. A user's registry that cannot be read has none.
Text Remembered(TextView name, TextView initial = {});

// Keeps a value. What is kept already is not written again: each write may wait for the disk.
void Remember(TextView name, TextView data);

}  // namespace korvande
