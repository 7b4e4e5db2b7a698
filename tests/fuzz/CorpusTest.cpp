#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/fuzz/Targets.h"
#include "tests/support/TestFiles.h"

// The inputs that the fuzzers kept, each for the paths it alone takes through the program, tried in every build.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class Corpus : public ::testing::TestWithParam<fuzz::Target> {
 protected:
    // The files of one of this target's folders, in the order of their names.
    static std::vector<fs::path> Files() {
        const fs::path folder = fs::path(KORVANDE_SOURCE_DIR) / "tests/fuzz/corpus" / std::string(GetParam().inputs);
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(folder)) files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        return files;
    }
};

TEST_P(Corpus, HoldsWhatMustHold) {
    const std::vector<fs::path> files = Files();
    ASSERT_GT(files.size(), 10U);
    for (const fs::path& file : files) {
        const std::string input = FileBytes(FromUtf8(file.string()));
        EXPECT_NO_THROW(GetParam().attempt(input)) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Corpus, ::testing::ValuesIn(fuzz::Targets()),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace

}  // namespace korvande::testing
