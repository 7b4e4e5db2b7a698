#include "core/RuntimeError.h"
#include "geopackage/FailedWrite.h"

namespace korvande {

// A limit on what a user may store is no full disk to the library, and is one here.
int NumberOfFailedWrite(int systemError) noexcept {
    return systemError == 0 ? errors::pathAccess : ErrorNumberOf(systemError);
}

}  // namespace korvande
