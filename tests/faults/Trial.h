#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "tests/cli/GoldenCases.h"
#include "tests/faults/SystemCalls.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// What a program does in a folder of its own, in a process of its own; the result is its exit status.
struct Scenario {
    std::string name;
    Files before;
    std::function<int()> run;
    bool triesMemory = true;  // whether requests for memory go wrong too
};

// What came of it.
struct Trial {
    int status = -1;  // 128 and the signal's number when one ended it
    std::string output;
    std::string error;
    Files after;
    Requests requests{};
    std::map<std::uint64_t, std::string> numbers;  // of the files and folders before, by which the system knows them
};

// A folder in which a scenario is tried again and again.
class Bench {
 public:
    explicit Bench(const Scenario& itsScenario);

    // Tries another one from here on.
    void Take(const Scenario& newScenario) {
        scenario = newScenario;
        isLaidOut = false;
    }

    Trial Try(const Fault& fault = {}) {
        return Do([&fault] { BeginRequests(fault); });
    }

    // What the requests change is recorded.
    Trial Record() {
        return Do([] { BeginRecording(); });
    }

    std::string Folder() const { return folder.Path(); }

 private:
    Trial Do(const std::function<void()>& prepare);
    void LayOut() const;
    [[noreturn]] void BeTheProgram(const std::function<void()>& prepare) const noexcept;

    Scenario scenario;
    TestFolder folder;
    int output;  // files without names, which are no part of the folder
    int error;
    bool isLaidOut = false;
};

}  // namespace korvande::testing
