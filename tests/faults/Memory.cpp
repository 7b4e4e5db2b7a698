#include "tests/faults/Memory.h"

#include <cerrno>
#include <cstddef>

#ifdef __SANITIZE_ADDRESS__

namespace korvande::testing {

void WatchMemory(bool (*)()) {}

}  // namespace korvande::testing

#else

namespace {

bool (*isToFail)() = nullptr;

bool Fails() {
    if (isToFail == nullptr || !isToFail()) return false;
    errno = ENOMEM;
    return true;
}

}  // namespace

extern "C" {

// The library's own, under the names that it has for itself.
// NOLINTBEGIN(bugprone-reserved-identifier, readability-identifier-naming)
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier, readability-identifier-naming)

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
void* malloc(std::size_t size) { return Fails() ? nullptr : __libc_malloc(size); }
void* calloc(std::size_t count, std::size_t size) { return Fails() ? nullptr : __libc_calloc(count, size); }
void* realloc(void* block, std::size_t size) { return Fails() ? nullptr : __libc_realloc(block, size); }
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return Fails() ? nullptr : __libc_memalign(alignment, size);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
}

namespace korvande::testing {

void WatchMemory(bool (*newIsToFail)()) { isToFail = newIsToFail; }

}  // namespace korvande::testing

#endif
