#include <windows.h>
#include <winspool.h>

#include "ui/DefaultPrinter.h"

namespace korvande {

bool HasDefaultPrinter() {
    DWORD length = 0;
    GetDefaultPrinterW(nullptr, &length);
    // The length of its name, with the null behind it.
    return length > 1;
}

}  // namespace korvande
