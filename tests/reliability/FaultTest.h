#pragma once

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/cli/CliTest.h"
#include "tests/support/RunningProgram_posix.h"

namespace korvande::testing {

namespace fs = std::filesystem;

// A pipe with a name, so that a program that reads it stops at a place of our choice until it is fed or the pipe ends.
class NamedPipe {
 public:
    explicit NamedPipe(const std::string& path) {
        EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
        // Open for reading as well, so that opening waits for nobody.
        descriptor = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        EXPECT_GE(descriptor, 0);
    }
    NamedPipe(const NamedPipe&) = delete;
    NamedPipe& operator=(const NamedPipe&) = delete;
    ~NamedPipe() { End(); }

    // Writes, and waits until all of it was read.
    void Feed(const std::string& bytes) const {
        EXPECT_EQ(::write(descriptor, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        int left = 1;
        for (int i = 0; i < 10000 && left > 0; ++i) {
            ::usleep(2000);
            ::ioctl(descriptor, FIONREAD, &left);
        }
        EXPECT_EQ(left, 0) << "nobody reads the pipe";
    }

    void End() {
        if (descriptor >= 0) ::close(descriptor);
        descriptor = -1;
    }

 private:
    int descriptor = -1;
};

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
