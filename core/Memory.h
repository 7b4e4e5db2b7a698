#pragma once

#include <cstddef>

namespace korvande {

// Platform: tells the system that a block of memory is about to be filled. Where it can, it then gives the block at
// once, which takes less than to be asked for each of its pages. Changes nothing else, also when it cannot.
void ExpectToFill(void* block, std::size_t bytes) noexcept;

}  // namespace korvande
