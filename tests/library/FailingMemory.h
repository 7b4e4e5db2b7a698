#pragma once

#include <cstdint>

namespace korvande::testing {

// What the blocks of memory that this thread asks for count as, while an object of this kind lives: the one of this
// number (from 1) is not to be had, and with `goesOn` none after it either. Number 0: all are.
class FailingMemory {
 public:
    FailingMemory(std::int64_t number, bool goesOn) noexcept;
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    // The blocks asked for so far.
    static std::int64_t Asked() noexcept;
};

}  // namespace korvande::testing
