#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace korvande::testing {

namespace fs = std::filesystem;

namespace {

// Names are UTF-8, whatever the library takes narrow ones for.
fs::path PathOf(std::string_view name) { return {std::u8string(name.begin(), name.end())}; }

std::string NameOf(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

}  // namespace

TestFolder::TestFolder() {
    static int count = 0;
    const fs::path folder = fs::temp_directory_path() /
                            ("korvande-test-" + std::to_string(ProcessNumber()) + "-" + std::to_string(++count));
    fs::remove_all(folder);
    fs::create_directories(folder);
    path = NameOf(folder);
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::remove_all(PathOf(path), ignored);
}

Text TestFolder::Write(std::string_view name, std::string_view bytes) const {
    const std::string file = path + "/" + std::string(name);
    std::ofstream(PathOf(file), std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return FromUtf8(file);
}

std::string TestFolder::Listing() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(PathOf(path))) names.push_back(NameOf(entry.path().filename()));
    std::sort(names.begin(), names.end());
    std::string listing;
    for (const std::string& name : names) listing += (listing.empty() ? "" : " ") + name;
    return listing;
}

std::string FileBytes(TextView name) {
    std::ifstream file(PathOf(ToUtf8(name)), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << ToUtf8(name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool FileIsThere(TextView name) { return fs::exists(PathOf(ToUtf8(name))); }

std::string WithCrLf(std::string_view linesWithLf) {
    std::string lines;
    for (const char character : linesWithLf) {
        if (character == '\n') lines.push_back('\r');
        lines.push_back(character);
    }
    return lines;
}

}  // namespace korvande::testing
