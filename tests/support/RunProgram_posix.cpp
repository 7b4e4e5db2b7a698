#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/support/RunningProgram_posix.h"

namespace korvande::testing {

namespace {

void Require(bool success, const char* what) {
    if (!success) throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

void CloseAndForget(int& descriptor) {
    if (descriptor >= 0) ::close(descriptor);
    descriptor = -1;
}

struct Ends {
    int ours = -1;
    int theirs = -1;
};

Ends MakePipe(bool weRead) {
    std::array<int, 2> ends{};
    Require(::pipe2(ends.data(), O_CLOEXEC) == 0, "pipe");
    return weRead ? Ends{ends[0], ends[1]} : Ends{ends[1], ends[0]};
}

// A terminal that changes nothing in what passes, and shows nothing of what is typed.
Ends MakeTerminal() {
    Ends ends;
    termios settings{};
    winsize size{24, 80, 0, 0};
    ::cfmakeraw(&settings);
    settings.c_lflag |= ICANON;
    settings.c_cc[VEOF] = 4;
    settings.c_cflag |= CREAD | CS8;
    Require(::openpty(&ends.ours, &ends.theirs, nullptr, &settings, &size) == 0, "openpty");
    ::fcntl(ends.ours, F_SETFD, FD_CLOEXEC);
    ::fcntl(ends.theirs, F_SETFD, FD_CLOEXEC);
    return ends;
}

// The words of the command line. The one place that knows how a program under test is started.
std::vector<std::string> CommandOf(const Start& start) {
    std::vector<std::string> words = {start.program};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    return words;
}

std::vector<std::string> EnvironmentOf(const Start& start) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string text(*variable);
        if (!start.environment.contains(text.substr(0, text.find('=')))) variables.push_back(text);
    }
    for (const auto& [name, value] : start.environment) {
        if (value) variables.push_back(name + "=" + *value);
    }
    return variables;
}

std::vector<char*> PointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

// In the child: a stream of the program.
void PutInPlace(int descriptor, int stream) {
    if (descriptor < 0) {
        ::close(stream);
    } else {
        ::dup2(descriptor, stream);
    }
}

}  // namespace

RunningProgram::RunningProgram(const Start& how)
    : start(how), deadline(std::chrono::steady_clock::now() + how.timeLimit) {
    const bool inputIsTerminal = start.terminal == Terminal::InputAndError;
    const Ends terminal = start.terminal == Terminal::None ? Ends() : MakeTerminal();
    const Ends input = inputIsTerminal ? Ends{::fcntl(terminal.ours, F_DUPFD_CLOEXEC, 0), -1} : MakePipe(false);
    Ends output;
    if (start.outputFile.empty()) {
        output = MakePipe(true);
    } else {
        output.theirs = ::open(start.outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        Require(output.theirs >= 0, start.outputFile.c_str());
    }
    const Ends error = start.terminal == Terminal::None ? MakePipe(true) : Ends();
    const std::array<int, 3> streams = {inputIsTerminal ? terminal.theirs : input.theirs, output.theirs,
                                        start.terminal == Terminal::None ? error.theirs : terminal.theirs};

    std::vector<std::string> words = CommandOf(start);
    std::vector<std::string> variables = EnvironmentOf(start);
    const std::vector<char*> argv = PointersTo(words);
    const std::vector<char*> envp = PointersTo(variables);
    process = ::fork();
    Require(process >= 0, "fork");
    if (process == 0) {
        for (int stream = 0; stream < 3; ++stream) PutInPlace(streams[static_cast<std::size_t>(stream)], stream);
        for (const int stream : start.closedStreams) ::close(stream);
        for (const int signalNumber : {SIGPIPE, SIGHUP}) ::signal(signalNumber, SIG_DFL);
        if (start.largestFile) {
            const rlimit limit{*start.largestFile, *start.largestFile};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        if (start.folder.empty() || ::chdir(start.folder.c_str()) == 0) ::execvpe(argv[0], argv.data(), envp.data());
        ::_exit(127);
    }
    for (int descriptor : {terminal.theirs, input.theirs, output.theirs, error.theirs}) CloseAndForget(descriptor);
    toInput = input.ours;
    fromOutput = output.ours;
    fromError = start.terminal == Terminal::None ? error.ours : terminal.ours;
    ::signal(SIGPIPE, SIG_IGN);
    ::fcntl(toInput, F_SETFL, O_NONBLOCK);
}

RunningProgram::~RunningProgram() {
    if (process > 0) {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }
    for (int* descriptor : {&toInput, &fromOutput, &fromError}) CloseAndForget(*descriptor);
}

void RunningProgram::Signal(int signalNumber) const { ::kill(process, signalNumber); }

void RunningProgram::WaitUntilItWaits() const {
    // Behind the program's name in parentheses: its state, "S" when it sleeps.
    const std::string file = "/proc/" + std::to_string(process) + "/stat";
    for (int sleeps = 0; sleeps < 3 && std::chrono::steady_clock::now() < deadline;) {
        std::ifstream stream(file);
        const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        const std::size_t name = text.rfind(')');
        const bool isAsleep = name != std::string::npos && text.substr(name, 3) == ") S";
        sleeps = isAsleep ? sleeps + 1 : 0;
        ::usleep(5000);
    }
    EXPECT_LT(std::chrono::steady_clock::now(), deadline) << "the program never waits";
}

namespace {

// Takes what a stream has to give; forgets the descriptor at its end. A terminal ends with an error.
void ReadSome(int& descriptor, std::string& text) {
    std::array<char, 65536> buffer{};
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
        CloseAndForget(descriptor);
    }
}

}  // namespace

// Gives the program as much of its input as it takes.
void RunningProgram::WriteSome() {
    const std::string_view rest = std::string_view(start.input).substr(inputWritten);
    const ssize_t count = ::write(toInput, rest.data(), rest.size());
    if (count >= 0) inputWritten += static_cast<std::size_t>(count);
    if (count < 0 && errno != EINTR && errno != EAGAIN) CloseAndForget(toInput);
}

void RunningProgram::Exchange(const std::string* awaited) {
    const auto isDone = [&] {
        return awaited != nullptr ? result.error.find(*awaited) != std::string::npos : fromOutput < 0 && fromError < 0;
    };
    while (!isDone()) {
        if (fromOutput < 0 && fromError < 0) {
            ADD_FAILURE() << "ended without \"" << *awaited << "\" on standard error:\n" << result.error;
            return;
        }
        if (toInput >= 0 && inputWritten == start.input.size()) CloseAndForget(toInput);
        std::array<pollfd, 3> descriptors = {{{toInput, POLLOUT, 0}, {fromOutput, POLLIN, 0}, {fromError, POLLIN, 0}}};
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        const int ready =
            left.count() > 0 ? ::poll(descriptors.data(), descriptors.size(), static_cast<int>(left.count())) : 0;
        if (ready == 0) {
            ADD_FAILURE() << start.program << " takes longer than " << start.timeLimit.count() << " s";
            ::kill(process, SIGKILL);
            return;
        }
        if (descriptors[0].revents != 0) WriteSome();
        if (descriptors[1].revents != 0) ReadSome(fromOutput, result.output);
        if (descriptors[2].revents != 0) ReadSome(fromError, result.error);
    }
}

ProgramResult RunningProgram::Wait() {
    Exchange(nullptr);
    int status = 0;
    ::waitpid(process, &status, 0);
    process = -1;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

void RunningProgram::WaitForError(const std::string& text) { Exchange(&text); }

ProgramResult RunProgram(const Start& start) { return RunningProgram(start).Wait(); }

}  // namespace korvande::testing
