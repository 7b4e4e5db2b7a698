#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <ostream>
#include <sstream>

#include "tests/support/RunProgram.h"
#include "tests/support/TestFiles.h"

// The console program against files that were checked by hand: each folder in tests/golden holds the inputs of one run,
// its arguments in the file `opties`, and in `verwacht` everything that the run leaves behind, to the byte.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// The names of what is no file of the run itself.
constexpr const char* optionsFile = "opties";
constexpr const char* expectedFolder = "verwacht";
constexpr const char* outputFile = "standaarduitvoer.txt";
constexpr const char* errorFile = "standaardfout.txt";
constexpr const char* statusFile = "afsluitstatus.txt";

struct GoldenCase {
    std::string name;
};
void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.name; }

const fs::path& GoldenFolder() {
    static const fs::path folder = fs::path(KORVANDE_SOURCE_DIR) / "tests" / "golden";
    return folder;
}

std::vector<GoldenCase> GoldenCases() {
    std::vector<GoldenCase> cases;
    for (const auto& entry : fs::directory_iterator(GoldenFolder())) {
        if (entry.is_directory()) cases.push_back({entry.path().filename().string()});
    }
    std::sort(cases.begin(), cases.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return cases;
}

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The files below a folder by their relative names.
using Files = std::map<std::string, std::string>;
Files FilesBelow(const fs::path& folder) {
    Files files;
    if (!fs::exists(folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_directory()) continue;
        files[entry.path().lexically_relative(folder).generic_string()] = BytesOf(entry.path());
    }
    return files;
}

// The words of the options: separated by blanks, with those that stand between double quotes kept together.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    std::istringstream stream(line);
    std::string word;
    while (stream >> std::ws && stream.good()) {
        if (stream.peek() == '"') {
            stream.get();
            std::getline(stream, word, '"');
        } else {
            stream >> word;
        }
        words.push_back(word);
    }
    return words;
}

// The case's own files, and those that its options take from the samples or from another case.
void LayOutInputs(const GoldenCase& golden, const std::vector<std::string>& words, const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(GoldenFolder() / golden.name)) {
        const fs::path name = entry.path().filename();
        if (name != optionsFile && name != expectedFolder) fs::copy(entry.path(), folder / name);
    }
    const fs::path source(KORVANDE_SOURCE_DIR);
    for (const std::string& word : words) {
        const bool isSample = word.starts_with("samples/");
        if (!isSample && !word.starts_with("golden/")) continue;
        const fs::path from = (isSample ? source : source / "tests") / word;
        if (!fs::exists(from)) continue;
        fs::create_directories((folder / word).parent_path());
        fs::copy_file(from, folder / word, fs::copy_options::overwrite_existing);
    }
}

ProgramResult RunCase(const std::vector<std::string>& words, const std::string& folder) {
    Start start;
    start.program = KORVANDE_CLI;
    start.arguments = words;
    start.folder = folder;
    // The last half hour of May 2024, which is June already where the clock says so.
    start.environment = {{"SOURCE_DATE_EPOCH", "1717198200"},
                         {"TZ", "CEST-2"},
                         {"HOME", folder},
                         {"XDG_CONFIG_HOME", folder},
                         {"KORVANDE_REGISTRY", folder + "/register.reg"},
                         {"KORVANDE_DRIVE_D", {}}};
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
    const fs::path source = GoldenFolder() / GetParam().name;
    const std::vector<std::string> words = Words(BytesOf(source / optionsFile));
    const TestFolder folder;
    LayOutInputs(GetParam(), words, folder.Path());
    const Files before = FilesBelow(folder.Path());
    const ProgramResult result = RunCase(words, folder.Path());
    const Files actual = LeftBehind(result, before, FilesBelow(folder.Path()));

    if (const char* const renew = std::getenv("KORVANDE_RENEW_GOLDEN"); renew != nullptr && *renew == '1') {
        Renew(source / expectedFolder, actual);
        FAIL() << source << " was written anew";
    }
    const Files expected = FilesBelow(source / expectedFolder);
    for (const auto& [name, bytes] : expected) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            ADD_FAILURE() << name << " is missing";
        } else {
            EXPECT_TRUE(found->second == bytes) << name << ", " << FirstDifference(bytes, found->second);
        }
    }
    for (const auto& [name, bytes] : actual) EXPECT_TRUE(expected.contains(name)) << name << " was not expected";
}

INSTANTIATE_TEST_SUITE_P(Golden, ConsoleProgram, ::testing::ValuesIn(GoldenCases()),
                         [](const auto& golden) { return golden.param.name; });

}  // namespace

}  // namespace korvande::testing
