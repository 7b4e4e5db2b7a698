#pragma once

#include "core/Text.h"

namespace korvande {

class Screen;

// Shows a folder in the system's own way; a message tells when it cannot.
void OpenFolder(Screen& screen, const Text& folder);

}  // namespace korvande
