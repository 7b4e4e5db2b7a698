#include "tests/cli/GoldenCases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The words of a line: separated by blanks, with those that stand between double quotes kept together.
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

}  // namespace

fs::path GoldenFolder(const std::string& name) { return fs::path(KORVANDE_SOURCE_DIR) / "tests" / "golden" / name; }

std::vector<std::string> GoldenNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(GoldenFolder({}))) {
        if (entry.is_directory()) names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> GoldenWords(const std::string& name) {
    return Words(BytesOf(GoldenFolder(name) / optionsFile));
}

void LayOutInputs(const std::string& name, const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(GoldenFolder(name))) {
        const fs::path file = entry.path().filename();
        if (file != optionsFile && file != expectedFolder) fs::copy(entry.path(), folder / file);
    }
    const fs::path source(KORVANDE_SOURCE_DIR);
    for (const std::string& word : GoldenWords(name)) {
        const bool isSample = word.starts_with("samples/");
        if (!isSample && !word.starts_with("golden/")) continue;
        const fs::path from = (isSample ? source : source / "tests") / word;
        if (!fs::exists(from)) continue;
        fs::create_directories((folder / word).parent_path());
        fs::copy_file(from, folder / word, fs::copy_options::overwrite_existing);
    }
}

// The last half hour of May 2024, which is June already where the clock says so.
std::map<std::string, std::string> GoldenEnvironment(const std::string& folder) {
    return {{"SOURCE_DATE_EPOCH", "1717198200"},
            {"TZ", "CEST-2"},
            {"HOME", folder},
            {"XDG_CONFIG_HOME", folder},
            {"KORVANDE_REGISTRY", folder + "/register.reg"}};
}

Files FilesBelow(const fs::path& folder) {
    Files files;
    if (!fs::exists(folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_directory()) continue;
        files[entry.path().lexically_relative(folder).generic_string()] = BytesOf(entry.path());
    }
    return files;
}

}  // namespace korvande::testing
