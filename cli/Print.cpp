#include "cli/Print.h"

#include <exception>
#include <utility>

#include "cli/ConsoleScreen.h"
#include "core/ConsoleText.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

thread_local const PrintsElsewhere::Listener* elsewhere = nullptr;

void Put(std::FILE* stream, TextView text) {
    std::string line = ForTerminal(text) + "\n";
    if (elsewhere == nullptr || !*elsewhere) {
        PutText(stream, line);
    } else {
        (*elsewhere)(stream, std::move(line));
    }
}

}  // namespace

void PrintLine(TextView text) { Put(stdout, text); }

void PrintErrorLine(TextView text) { Put(stderr, text); }

void PrintCurrentError() noexcept {
    try {
        PrintErrorLine(CurrentError().Description());
    } catch (const std::exception&) {
        std::fputs("Onvoldoende geheugen\n", stderr);
    }
}

PrintsElsewhere::PrintsElsewhere(Listener itsListener)
    : listener(std::move(itsListener)), before(std::exchange(elsewhere, &listener)) {}

PrintsElsewhere::~PrintsElsewhere() { elsewhere = before; }

}  // namespace korvande
