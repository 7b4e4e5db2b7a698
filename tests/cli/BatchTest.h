#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

// Many drawings at a time, in folders of the test's own.
class BatchTest : public CliTest {
 protected:
    std::filesystem::path Path(const std::string& name) const;

    // Writes a file, in a folder that is made for it.
    void Write(const std::string& name, const std::string& bytes) const;

    // The files in a folder and in those in it, by their names below it, with their bytes.
    std::map<std::string, std::string> Tree(const std::string& name) const;
    std::string NamesIn(const std::string& name) const;  // separated by blanks

    // What a program printed, with "/" where this system has another separator between the folders that it found.
    static ProgramResult WithSlashes(ProgramResult result);

    // Translates IDEX into NEN1878, at a moment that stands still, into the folder "uit".
    ProgramResult TranslateAll(std::vector<std::string> arguments, Start start = {});
};

// The small drawing with another code for its unknown point; one that breaks off in its lines; and one of so many
// points.
std::string IdexWithCode(const std::string& code);
std::string BrokenIdex();
std::string IdexPoints(int count);

}  // namespace korvande::testing
