#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/Text.h"

namespace korvande::testing {

// A folder of its own for a test, removed with everything in it at the end.
class TestFolder {
 public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    // The name of a file in the folder.
    Text operator/(std::string_view name) const { return FromUtf8(path + "/" + std::string(name)); }
    const std::string& Path() const noexcept { return path; }

    // Writes a file of these bytes and returns its name.
    Text Write(std::string_view name, std::string_view bytes) const;

    // The names in the folder, sorted, separated by blanks.
    std::string Listing() const;

 private:
    std::string path;
};

// A file's bytes; a test failure and "" when it cannot be read.
std::string FileBytes(TextView name);
bool FileIsThere(TextView name);

// The number by which the system knows the test program, and its file's full name.
int ProcessNumber();
Text TestProgram();

// How many files the test program has open, with whatever else it holds of the system: to be compared.
std::ptrdiff_t OpenFiles();

// Sets an environment variable (or unsets it) as long as this object lives.
class EnvironmentValue {
 public:
    EnvironmentValue(const char* variable, std::optional<std::string> value);
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;
    ~EnvironmentValue();

 private:
    std::string name;
    std::optional<std::string> previous;
};

// Lets nobody write into a folder as long as this object lives: the superuser, whom permissions do not stop, becomes
// nobody meanwhile. Not on Windows, where a folder's attributes stop nobody.
class ReadOnlyFolder {
 public:
    explicit ReadOnlyFolder(std::string folder);
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;
    ~ReadOnlyFolder();

 private:
    std::string path;
    bool wasSuperuser;
};

// Lines with CR LF behind each.
std::string WithCrLf(std::string_view linesWithLf);

}  // namespace korvande::testing
