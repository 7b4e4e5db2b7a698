#include "host/LiscadSystem.h"

namespace korvande {

bool LiscadRunsHere() noexcept { return false; }

}  // namespace korvande
