#include <windows.h>
#include <winspool.h>

#include "ui/DefaultPrinter.h"

namespace korvande {

// A queue that takes no jobs is told by the printing itself.
bool DefaultPrinterTakesJobs() {
    DWORD length = 0;
    GetDefaultPrinterW(nullptr, &length);
    // The length of its name, with the null behind it.
    return length > 1;
}

}  // namespace korvande
