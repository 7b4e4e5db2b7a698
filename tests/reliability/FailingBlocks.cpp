// Loaded in front of a program's libraries: of the blocks of memory for the buffers of files (a little over 128 KB) the
// one whose number KORVANDE_TEST_BLOCK tells is not to be had.
#include <cerrno>
#include <cstddef>
#include <cstdlib>

extern "C" {

// The library's own, under the name that it has for itself.
// NOLINTNEXTLINE(bugprone-reserved-identifier, readability-identifier-naming)
void* __libc_malloc(std::size_t size);

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
void* malloc(std::size_t size) {
    constexpr std::size_t bufferSize = std::size_t{1} << 17;
    static int number = 0;
    if (size >= bufferSize && size <= bufferSize + 64) {
        const char* const failing = std::getenv("KORVANDE_TEST_BLOCK");
        if (++number == (failing == nullptr ? 0 : std::atoi(failing))) {
            errno = ENOMEM;
            return nullptr;
        }
    }
    return __libc_malloc(size);
}
}
