#pragma once

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

ProgramResult RunProgram(const Start& start);

}  // namespace korvande::testing
