#include "core/RuntimeError.h"
#include "geopackage/FailedWrite.h"

namespace korvande {

// A limit on what a user may store is no full disk to the library, and is one here.
int NumberOfFailedWrite(int systemError, int usual) noexcept {
    return systemError == 0 ? usual : ErrorNumberOf(systemError);
}

}  // namespace korvande
