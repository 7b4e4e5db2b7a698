#include "host/LiscadSystem.h"

namespace korvande {

bool LiscadRunsHere() noexcept { return true; }

}  // namespace korvande
