#include <csignal>
#include <initializer_list>

#include <signal.h>

#include "cli/Interrupt.h"

namespace korvande {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void NoteInterrupt(int signalNumber) {
    interrupted = 1;
    std::signal(signalNumber, SIG_DFL);
}

}  // namespace

void CatchInterrupts() {
    struct sigaction action {};
    action.sa_handler = NoteInterrupt;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signalNumber : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signalNumber, &action, nullptr);
    // A reader that went away is a failed write, not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
}

bool IsInterrupted() noexcept { return interrupted != 0; }

}  // namespace korvande
