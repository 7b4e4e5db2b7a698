#pragma once

#include "core/Text.h"

namespace korvande {

// The text on the system's clipboard; empty when there is none.
Text ClipboardText();
void PutOnClipboard(TextView text);

}  // namespace korvande
