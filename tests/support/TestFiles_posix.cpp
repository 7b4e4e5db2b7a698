#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>

#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace fs = std::filesystem;

int ProcessNumber() { return ::getpid(); }

Text TestProgram() { return FromUtf8(fs::read_symlink("/proc/self/exe").string()); }

std::ptrdiff_t OpenFiles() { return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()); }

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

}  // namespace korvande::testing
