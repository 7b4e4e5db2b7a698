// Loaded in front of a program's libraries: behind so many bytes as KORVANDE_TEST_READABLE says every read fails with
// an input/output error, as from a disk with a bad spot.
#include <dlfcn.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace {

std::FILE* failed = nullptr;

template <class Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

std::size_t Read(void* target, std::size_t size, std::size_t count, std::FILE* file) {
    static const char* const variable = std::getenv("KORVANDE_TEST_READABLE");
    static const std::size_t readable = variable == nullptr ? 0 : std::strtoul(variable, nullptr, 10);
    static std::size_t total = 0;
    if (total >= readable) {
        failed = file;
        errno = EIO;
        return 0;
    }
    static const auto next = Next<std::size_t (*)(void*, std::size_t, std::size_t, std::FILE*)>("fread");
    const std::size_t items = next(target, size, count, file);
    total += items * size;
    return items;
}

}  // namespace

extern "C" {

// The library's own names of the parameters differ. NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
std::size_t fread(void* target, std::size_t size, std::size_t count, std::FILE* file) {
    return Read(target, size, count, file);
}

// What a program calls that was built with checks of its buffers.
// NOLINTNEXTLINE(bugprone-reserved-identifier, readability-identifier-naming)
std::size_t __fread_chk(void* target, std::size_t, std::size_t size, std::size_t count, std::FILE* file) {
    return Read(target, size, count, file);
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
int ferror(std::FILE* file) noexcept {
    if (file == failed) return 1;
    static const auto next = Next<int (*)(std::FILE*)>("ferror");
    return next(file);
}
}
