#include "core/RuntimeError.h"
#include "geopackage/FailedWrite.h"

namespace korvande {

// The library tells a full disk by itself.
int NumberOfFailedWrite(int) noexcept { return errors::pathAccess; }

}  // namespace korvande
