#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace korvande::testing {

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

}  // namespace korvande::testing
