#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

#include "tests/cli/GoldenCases.h"
#include "tests/support/RunProgram.h"
#include "tests/support/TestFiles.h"

// The console program against files that were checked by hand: each folder in tests/golden holds the inputs of one run,
// its arguments in the file `opties`, and in `verwacht` everything that the run leaves behind, to the byte.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// The names of what a run leaves behind beside files.
constexpr const char* outputFile = "standaarduitvoer.txt";
constexpr const char* errorFile = "standaardfout.txt";
constexpr const char* statusFile = "afsluitstatus.txt";

struct GoldenCase {
    std::string name;
};
void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.name; }

std::vector<GoldenCase> GoldenCases() {
    std::vector<GoldenCase> cases;
    for (const std::string& name : GoldenNames()) cases.push_back({name});
    return cases;
}

ProgramResult RunCase(const std::string& name, const std::string& folder) {
    Start start;
    start.program = KORVANDE_CLI;
    start.arguments = GoldenWords(name);
    start.folder = folder;
    start.environment["KORVANDE_DRIVE_D"] = {};
    for (const auto& [variable, value] : GoldenEnvironment(folder)) start.environment[variable] = value;
    return RunProgram(start);
}

// What a run left behind: its streams and status, and every file that is new or is not as it was.
Files LeftBehind(const ProgramResult& result, const Files& before, const Files& after) {
    Files files;
    files[outputFile] = result.output;
    files[errorFile] = result.error;
    files[statusFile] = std::to_string(result.status) + "\n";
    for (const auto& [name, bytes] : after) {
        const auto earlier = before.find(name);
        if (earlier == before.end() || earlier->second != bytes) files[name] = bytes;
    }
    for (const auto& [name, bytes] : before) {
        if (!after.contains(name)) files[name] = "(verdwenen)";
    }
    return files;
}

void Renew(const fs::path& folder, const Files& files) {
    fs::remove_all(folder);
    for (const auto& [name, bytes] : files) {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
}

// Where two files begin to differ, for the person who has to find out why.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream expectedLines(expected);
    std::istringstream actualLines(actual);
    for (int number = 1;; ++number) {
        std::string expectedLine;
        std::string actualLine;
        const bool moreExpected = static_cast<bool>(std::getline(expectedLines, expectedLine));
        const bool moreActual = static_cast<bool>(std::getline(actualLines, actualLine));
        if (!moreExpected) expectedLine = "(einde)";
        if (!moreActual) actualLine = "(einde)";
        const bool isOver = !moreExpected && !moreActual;
        if (expectedLine != actualLine || isOver) {
            return "line " + std::to_string(number) + "\n  expected: " + Windows1252ToUtf8(expectedLine) +
                   "\n  actual:   " + Windows1252ToUtf8(actualLine);
        }
    }
}

class ConsoleProgram : public ::testing::TestWithParam<GoldenCase> {};

TEST_P(ConsoleProgram, LeavesBehind) {
    const std::string& name = GetParam().name;
    const fs::path source = GoldenFolder(name);
    const TestFolder folder;
    LayOutInputs(name, folder.Path());
    const Files before = FilesBelow(folder.Path());
    const ProgramResult result = RunCase(name, folder.Path());
    const Files actual = LeftBehind(result, before, FilesBelow(folder.Path()));

    if (const char* const renew = std::getenv("KORVANDE_RENEW_GOLDEN"); renew != nullptr && *renew == '1') {
        Renew(source / expectedFolder, actual);
        FAIL() << source << " was written anew";
    }
    const Files expected = FilesBelow(source / expectedFolder);
    for (const auto& [file, bytes] : expected) {
        const auto found = actual.find(file);
        if (found == actual.end()) {
            ADD_FAILURE() << file << " is missing";
        } else {
            EXPECT_TRUE(found->second == bytes) << file << ", " << FirstDifference(bytes, found->second);
        }
    }
    for (const auto& [file, bytes] : actual) EXPECT_TRUE(expected.contains(file)) << file << " was not expected";
}

INSTANTIATE_TEST_SUITE_P(Golden, ConsoleProgram, ::testing::ValuesIn(GoldenCases()),
                         [](const auto& golden) { return golden.param.name; });

}  // namespace

}  // namespace korvande::testing
