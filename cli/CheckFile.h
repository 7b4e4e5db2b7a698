#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "core/Text.h"
#include "project/CodeTables.h"
#include "translation/Problem.h"

namespace korvande {

struct Project;

// What was found of a file.
struct CheckResult {
    int status = status::failed;  // the exit status, had it been the only one
    Text format;
    std::int64_t points = 0;
    std::int64_t lineStrings = 0;
    std::int64_t edges = 0;
    std::int64_t texts = 0;
    std::int64_t unknown = 0;   // objects with a code that the control table does not know
    std::int64_t findings = 0;  // the lines of problems
    std::int64_t errors = 0;
    std::vector<Text> losses;  // the lines of what would not come across
    Problems problems;
    std::string json;  // what was found, when that is wanted
};

struct CheckedFile {
    Text name;
    CheckResult result;
};

// Reads a file and tells on standard output all there is to tell of it, unless that is wanted as JSON. The code tables,
// those of the project that were taken as grids would give them back, are handed on from file to file. An interrupt is
// a TranslationAborted.
CheckResult CheckFile(const Project& project, CodeTables& codes, const CheckOptions& options, const Text& name);

}  // namespace korvande
