#include "core/Memory.h"

#include <sys/mman.h>

#include <cstdint>

namespace korvande {

#ifdef MADV_POPULATE_WRITE

void ExpectToFill(void* block, std::size_t bytes) noexcept {
    constexpr std::uintptr_t pageSize = 4096;
    const auto begin = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t first = (begin + pageSize - 1) / pageSize * pageSize;
    const std::uintptr_t end = (begin + bytes) / pageSize * pageSize;
    // An older system does not know the wish.
    if (end > first) static_cast<void>(::madvise(reinterpret_cast<void*>(first), end - first, MADV_POPULATE_WRITE));
}

#else

void ExpectToFill(void* /*block*/, std::size_t /*bytes*/) noexcept {}

#endif

}  // namespace korvande
