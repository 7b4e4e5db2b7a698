#pragma once

namespace korvande {

// Platform: whether the user has a default printer. Asked before printing, since a printing system without one may
// answer late or never.
bool HasDefaultPrinter();

}  // namespace korvande
