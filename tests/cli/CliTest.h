#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/RunProgram.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A drawing of two known points, one of an unknown code, a line and a text, as IDEX and as the exchange formats, and a
// control table that knows its codes. The SUF2 file holds a point only; read as NEN1878 it makes the program ask.
extern const std::string smallIdex;
extern const std::string smallNen1878;
extern const std::string smallSuf2;
extern const std::string smallTable;

// A record of an exchange file, with its CR LF. In the small NEN1878 file the first two are its header, the next two a
// point.
inline constexpr std::size_t recordBytes = 66;

// The header of the small NEN1878 file, and its point so many times.
std::string Nen1878Points(int count);

// Runs the console program in a folder of the test's own, with a registry file and a home there too.
class CliTest : public ::testing::Test {
 protected:
    ProgramResult Run(const std::vector<std::string>& arguments, Start start = {});
    Start StartOf(const std::vector<std::string>& arguments, Start start = {}) const;

    // A run that the program must refuse as wrong usage: status 2, this message, nothing on standard output, and no
    // file that was not there.
    void ExpectRefused(const std::vector<std::string>& arguments, const std::string& message);

    // Runs `vertaal` in a mode; what is not said of it is wrong usage.
    ProgramResult Translate(const std::string& mode, std::vector<std::string> arguments, Start start = {});

    std::string Bytes(const std::string& name) const { return FileBytes(folder / name); }
    std::string Log(const std::string& name) const;  // in UTF-8, with line feeds
    bool IsThere(const std::string& name) const { return FileIsThere(folder / name); }

    TestFolder folder;
};

// Whether a text holds a part.
bool Has(const std::string& text, const std::string& part);

}  // namespace korvande::testing
