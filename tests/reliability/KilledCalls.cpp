// Loaded in front of a program's libraries: ends the program, as a power cut would, at the call of
// KORVANDE_TEST_KILL_AT among those that change files: before it is made, or in the middle of it when it writes. With
// KORVANDE_TEST_KILL_SINCE only those count that come when there is a file of that name.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

template <class Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool Counts() {
    static const char* const since = std::getenv("KORVANDE_TEST_KILL_SINCE");
    return since == nullptr || ::access(since, F_OK) == 0;
}

// Whether the call that is about to be made is the last one.
bool IsLast() {
    static int callsLeft = [] {
        const char* const number = std::getenv("KORVANDE_TEST_KILL_AT");
        return number == nullptr ? -1 : std::atoi(number);
    }();
    return callsLeft > 0 && Counts() && --callsLeft == 0;
}

void EndIfLast() {
    if (IsLast()) ::kill(::getpid(), SIGKILL);
}

}  // namespace

extern "C" {

// The library's own names of the parameters differ.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto next = Next<int (*)(const char*, int, ...)>("open");
    if ((flags & O_CREAT) != 0) EndIfLast();
    return next(path, flags, mode);
}

FILE* fopen(const char* path, const char* how) {
    static const auto next = Next<FILE* (*)(const char*, const char*)>("fopen");
    if (how[0] != 'r') EndIfLast();
    return next(path, how);
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, FILE* file) {
    static const auto next = Next<std::size_t (*)(const void*, std::size_t, std::size_t, FILE*)>("fwrite");
    if (IsLast()) {
        next(bytes, 1, size * count / 2, file);
        ::kill(::getpid(), SIGKILL);
    }
    return next(bytes, size, count, file);
}

int fclose(FILE* file) {
    static const auto next = Next<int (*)(FILE*)>("fclose");
    EndIfLast();
    return next(file);
}

int fsync(int descriptor) {
    static const auto next = Next<int (*)(int)>("fsync");
    EndIfLast();
    return next(descriptor);
}

int rename(const char* from, const char* to) noexcept {
    static const auto next = Next<int (*)(const char*, const char*)>("rename");
    EndIfLast();
    return next(from, to);
}

int remove(const char* path) noexcept {
    static const auto next = Next<int (*)(const char*)>("remove");
    EndIfLast();
    return next(path);
}

int unlink(const char* path) noexcept {
    static const auto next = Next<int (*)(const char*)>("unlink");
    EndIfLast();
    return next(path);
}

int fchmod(int descriptor, mode_t mode) noexcept {
    static const auto next = Next<int (*)(int, mode_t)>("fchmod");
    EndIfLast();
    return next(descriptor, mode);
}

int fchown(int descriptor, uid_t owner, gid_t group) noexcept {
    static const auto next = Next<int (*)(int, uid_t, gid_t)>("fchown");
    EndIfLast();
    return next(descriptor, owner, group);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
}
