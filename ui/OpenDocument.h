#pragma once

#include "core/Text.h"

namespace korvande {

// Has the system open a file or a folder in the program that it has for it, without waiting. False when that fails.
bool OpenDocument(const Text& name);

}  // namespace korvande
