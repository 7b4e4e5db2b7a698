#include "cli/Print.h"

#include <cstdio>
#include <exception>

#include "cli/ConsoleScreen.h"
#include "core/ConsoleText.h"
#include "core/RuntimeError.h"

namespace korvande {

void PrintLine(TextView text) { PutText(stdout, ForTerminal(text) + "\n"); }

void PrintErrorLine(TextView text) { PutText(stderr, ForTerminal(text) + "\n"); }

void PrintCurrentError() noexcept {
    try {
        PrintErrorLine(CurrentError().Description());
    } catch (const std::exception&) {
        std::fputs("Onvoldoende geheugen\n", stderr);
    }
}

}  // namespace korvande
