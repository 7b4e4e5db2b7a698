#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace korvande::testing {

namespace fs = std::filesystem;

TestFolder::TestFolder() {
    static int count = 0;
    const fs::path folder =
        fs::temp_directory_path() / ("korvande-test-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
    fs::remove_all(folder);
    fs::create_directories(folder);
    path = folder.string();
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

Text TestFolder::Write(std::string_view name, std::string_view bytes) const {
    const std::string file = path + "/" + std::string(name);
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return FromUtf8(file);
}

std::string TestFolder::Listing() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    std::string listing;
    for (const std::string& name : names) listing += (listing.empty() ? "" : " ") + name;
    return listing;
}

std::string FileBytes(TextView name) {
    std::ifstream file(ToUtf8(name), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << ToUtf8(name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool FileIsThere(TextView name) { return fs::exists(ToUtf8(name)); }

EnvironmentValue::EnvironmentValue(const char* variable, std::optional<std::string> value) : name(variable) {
    if (const char* const old = ::getenv(variable)) previous = old;
    if (value) {
        ::setenv(variable, value->c_str(), 1);
    } else {
        ::unsetenv(variable);
    }
}

EnvironmentValue::~EnvironmentValue() {
    if (previous) {
        ::setenv(name.c_str(), previous->c_str(), 1);
    } else {
        ::unsetenv(name.c_str());
    }
}

ReadOnlyFolder::ReadOnlyFolder(std::string folder) : path(std::move(folder)), wasSuperuser(::geteuid() == 0) {
    constexpr uid_t nobody = 65534;
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    if (wasSuperuser) {
        EXPECT_EQ(::seteuid(nobody), 0);
    }
}

ReadOnlyFolder::~ReadOnlyFolder() {
    if (wasSuperuser) {
        EXPECT_EQ(::seteuid(0), 0);
    }
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
}

std::string WithCrLf(std::string_view linesWithLf) {
    std::string lines;
    for (const char character : linesWithLf) {
        if (character == '\n') lines.push_back('\r');
        lines.push_back(character);
    }
    return lines;
}

}  // namespace korvande::testing
