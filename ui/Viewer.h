#pragma once

#include "core/Text.h"

namespace korvande {

// Platform: starts a viewer for a text file, in a window of its own, without waiting for it. False when there is none
// or it does not start.
bool StartViewer(TextView fileName);

// Platform: where that shows a file, as a person knows it.
TextView ViewerPlace() noexcept;

}  // namespace korvande
