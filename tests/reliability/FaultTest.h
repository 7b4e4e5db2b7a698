#pragma once

#include <filesystem>
#include <string>

#include "tests/cli/CliTest.h"
#include "tests/support/NamedPipe_posix.h"
#include "tests/support/RunningProgram_posix.h"

namespace korvande::testing {

namespace fs = std::filesystem;

// The console program with things going wrong around it. The small drawing and the control table are there, as IDEX
// ("a.idx") and NEN1878 ("a.nen").
class FaultTest : public CliTest {
 protected:
    FaultTest() {
        folder.Write("a.idx", smallIdex);
        folder.Write("a.nen", smallNen1878);
        folder.Write("t.nst", smallTable);
    }

    fs::path Path(const std::string& name) const { return fs::path(folder.Path()) / name; }

    // What no fault may touch.
    void ExpectInputsIntact() const {
        EXPECT_EQ(Bytes("a.idx"), smallIdex);
        EXPECT_EQ(Bytes("a.nen"), smallNen1878);
        EXPECT_EQ(Bytes("t.nst"), smallTable);
    }

    // A drawing of so many points.
    static std::string Points(int count) {
        std::string drawing = smallIdex.substr(0, smallIdex.find("    2,\"A2\""));
        for (int i = 2; i <= count; ++i) drawing += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
        return drawing + "END POINTS\r\nEND DATABASE\r\n";
    }
};

}  // namespace korvande::testing
