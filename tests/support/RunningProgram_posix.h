#pragma once

#include <sys/types.h>

#include "tests/support/RunProgram.h"

namespace korvande::testing {

// A program that runs. It is ended with this object, if it has not ended before.
class RunningProgram {
 public:
    explicit RunningProgram(const Start& how);
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
    void WriteSome();

    Start start;
    pid_t process = -1;
    int toInput = -1;
    int fromOutput = -1;
    int fromError = -1;
    std::size_t inputWritten = 0;
    std::chrono::steady_clock::time_point deadline;
    ProgramResult result;
};

}  // namespace korvande::testing
