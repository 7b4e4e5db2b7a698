#include "core/Memory.h"

#include <sys/mman.h>

#include <cstdint>

namespace korvande {

#ifdef MADV_POPULATE_WRITE

void ExpectToFill(void* block, std::size_t bytes) noexcept {
    constexpr std::size_t pageSize = 4096;
    // From the first whole page on.
    const std::size_t before = (pageSize - reinterpret_cast<std::uintptr_t>(block) % pageSize) % pageSize;
    if (bytes < before + pageSize) return;
    const std::size_t whole = (bytes - before) / pageSize * pageSize;
    // An older system does not know the wish.
    static_cast<void>(::madvise(static_cast<char*>(block) + before, whole, MADV_POPULATE_WRITE));
}

#else

void ExpectToFill(void* /*block*/, std::size_t /*bytes*/) noexcept {}

#endif

}  // namespace korvande
