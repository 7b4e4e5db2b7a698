#pragma once

#include <cstddef>

namespace korvande::testing {

// What the test program has asked of operator new since it started.
struct Allocations {
    std::size_t blocks;
    std::size_t bytes;
};
Allocations AllocationsSoFar() noexcept;

// What an action asks of operator new.
template <class Action>
Allocations AllocationsOf(Action action) {
    const Allocations before = AllocationsSoFar();
    action();
    const Allocations after = AllocationsSoFar();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

}  // namespace korvande::testing
