#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Runs a program as a user would, without a shell between.
namespace korvande::testing {

// Which of the program's streams are a terminal; the others are pipes.
enum class Terminal { None, Error, InputAndError };

// How a program is started.
struct Start {
    std::string program{};
    std::vector<std::string> arguments{};
    std::string folder{};  // the working folder; empty: the test's own

    // Variables that are set, or unset, over the test's own environment.
    std::map<std::string, std::optional<std::string>> environment{};

    std::string input{};  // what comes from standard input before it ends
    Terminal terminal = Terminal::None;
    std::vector<int> closedStreams{};            // 0, 1 or 2: not there when the program starts
    std::string outputFile{};                    // where standard output goes instead of being caught
    std::optional<std::uint64_t> largestFile{};  // bytes; a file may not grow beyond
    std::chrono::seconds timeLimit{60};
};

// What a program left behind. Its streams are as written, on a terminal too (no CR is put before LF).
struct ProgramResult {
    int status = -1;  // the exit status; 128 and the signal's number when one ended the program
    std::string output;
    std::string error;
};

// A program that runs. It is ended with this object, if it has not ended before.
class RunningProgram {
 public:
    explicit RunningProgram(const Start& start);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    void Signal(int signalNumber) const;

    // Waits until the program itself waits, for input or for somebody to take its output; a test failure when it never
    // does.
    void WaitUntilItWaits() const;

    // Feeds standard input and reads the other streams until the program has closed them, and waits for its end. A
    // program that takes longer than its time limit is ended, which is a failure of the test.
    ProgramResult Wait();

    // As Wait, but only until standard error holds this text; a test failure when it never does.
    void WaitForError(const std::string& text);

 private:
    void Exchange(const std::string* awaited);

    Start start;
    pid_t process = -1;
    int toInput = -1;
    int fromOutput = -1;
    int fromError = -1;
    std::size_t inputWritten = 0;
    std::chrono::steady_clock::time_point deadline;
    ProgramResult result;
};

ProgramResult RunProgram(const Start& start);

}  // namespace korvande::testing
