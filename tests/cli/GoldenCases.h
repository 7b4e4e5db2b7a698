#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// The folders in tests/golden, each one run of the console program.
namespace korvande::testing {

// The names of what is no file of the run itself.
inline constexpr const char* optionsFile = "opties";
inline constexpr const char* expectedFolder = "verwacht";

// Where a case stands.
std::filesystem::path GoldenFolder(const std::string& name);

// The names of all cases, sorted.
std::vector<std::string> GoldenNames();

// The arguments of a case.
std::vector<std::string> GoldenWords(const std::string& name);

// Lays out what a case's run finds in its folder: its own files, and those that its arguments take from the samples or
// from another case.
void LayOutInputs(const std::string& name, const std::filesystem::path& folder);

// What stands in the environment of a run in such a folder.
std::map<std::string, std::string> GoldenEnvironment(const std::string& folder);

// The files below a folder by their relative names.
using Files = std::map<std::string, std::string>;
Files FilesBelow(const std::filesystem::path& folder);

}  // namespace korvande::testing
