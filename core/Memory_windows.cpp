#include "core/Memory.h"

namespace korvande {

void ExpectToFill(void* /*block*/, std::size_t /*bytes*/) noexcept {}

}  // namespace korvande
