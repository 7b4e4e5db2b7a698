#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

#include "cli/Process.h"

namespace korvande {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void NoteInterrupt(int) { interrupted = 1; }

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

std::vector<std::string> ProgramArguments(int argc, char** argv) { return {argv, argv + argc}; }

bool ShellsLeavePatterns() noexcept { return false; }

bool IsInterrupted() noexcept { return interrupted != 0; }

// One that was not there leads to the null device by now.
bool OutputIsThere() noexcept { return true; }

bool InputIsTerminal() noexcept { return ::isatty(STDIN_FILENO) != 0; }

bool ErrorIsTerminal() noexcept { return ::isatty(STDERR_FILENO) != 0; }

}  // namespace korvande
