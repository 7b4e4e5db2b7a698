#pragma once

// Written sources ask here which mutant is on. A test that is watched has in KORVANDE_REACHED a file with a byte for
// each mutant; what the test comes by, also in programs that it starts, is set in it at once.

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <type_traits>

namespace mutants {

inline int Chosen() {
    const char* const number = std::getenv("KORVANDE_MUTANT");
    return number == nullptr ? 0 : std::atoi(number);
}

inline unsigned char* Reached() {
    const char* const path = std::getenv("KORVANDE_REACHED");
    const int file = path == nullptr ? -1 : open(path, O_RDWR | O_CLOEXEC);
    struct stat status {};
    if (file < 0 || fstat(file, &status) != 0) return nullptr;
    void* const bytes =
        mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    close(file);
    return bytes == MAP_FAILED ? nullptr : static_cast<unsigned char*>(bytes);
}

inline const int chosen = Chosen();
inline unsigned char* const reached = Reached();

inline bool On(int number) noexcept {
    if (reached != nullptr) reached[number] = 1;
    return number == chosen;
}

// In functions that the compiler may evaluate: there it sees what stands in the source.
constexpr bool OnAtRunTime(int number) noexcept { return !std::is_constant_evaluated() && On(number); }

}  // namespace mutants
