#include <atomic>
#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include "cli/Process.h"

namespace korvande {

namespace {

// Looked at by every thread; a signal may set what needs no lock.
std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void NoteInterrupt(int) { interrupted = true; }

}  // namespace

void PrepareProcess() {
    // The lowest free number is taken, so this fills the gaps among 0 to 2.
    int stream = 0;
    do {
        stream = ::open("/dev/null", O_RDWR);
    } while (stream >= 0 && stream <= STDERR_FILENO);
    if (stream >= 0) ::close(stream);

    struct sigaction action {};
    action.sa_handler = NoteInterrupt;
    sigemptyset(&action.sa_mask);
    for (const int signalNumber : {SIGINT, SIGTERM}) ::sigaction(signalNumber, &action, nullptr);
    // Whoever started the program so that it goes on without its terminal ("nohup") has a hang-up ignored.
    struct sigaction hangUp {};
    const bool isIgnored = ::sigaction(SIGHUP, nullptr, &hangUp) == 0 && hangUp.sa_handler == SIG_IGN;
    if (!isIgnored) ::sigaction(SIGHUP, &action, nullptr);
    for (const int signalNumber : {SIGPIPE, SIGXFSZ}) std::signal(signalNumber, SIG_IGN);
}

bool ShellsLeavePatterns() noexcept { return false; }

bool IsInterrupted() noexcept { return interrupted; }

// One that was not there leads to the null device by now.
bool OutputIsThere() noexcept { return true; }

bool InputIsTerminal() noexcept { return ::isatty(STDIN_FILENO) != 0; }

// A signal ends the wait of one thread only, which need not be this one.
bool AwaitInput() noexcept {
    constexpr int lookAgain = 100;  // milliseconds
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    while (!IsInterrupted()) {
        if (::poll(&input, 1, lookAgain) > 0) return true;
    }
    return false;
}

bool ErrorIsTerminal() noexcept { return ::isatty(STDERR_FILENO) != 0; }

}  // namespace korvande
