#include "tests/core/Allocations.h"

#include <cstdlib>
#include <new>

namespace korvande::testing {

namespace {

Allocations soFar{};

}  // namespace

Allocations AllocationsSoFar() noexcept { return soFar; }

}  // namespace korvande::testing

// These take the place of the library's own in the whole test program; the array forms call them.
// NOLINTBEGIN(cppcoreguidelines-no-malloc)
void* operator new(std::size_t size) {
    ++korvande::testing::soFar.blocks;
    korvande::testing::soFar.bytes += size;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc)
