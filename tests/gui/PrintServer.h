#pragma once

#include <optional>
#include <string>

#include "tests/support/RunningProgram_posix.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A printing system of the test's own: nothing is put on paper, what is printed can be read back. Its default printer,
// "proef", takes any document; "vreemd" takes none that a program makes. There can be one in a test program, for the
// library that speaks to it remembers where it is.
class PrintServer {
 public:
    PrintServer();

    // The native name of the document printed last; a test failure when nothing was printed since the one before.
    std::string TakeDocument();

 private:
    TestFolder folder;
    EnvironmentValue place{"CUPS_SERVER", folder.Path() + "/socket"};
    std::optional<RunningProgram> server;
    int documents = 0;
};

}  // namespace korvande::testing
