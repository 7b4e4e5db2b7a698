#include "core/Hash.h"

#include <chrono>
#include <cstring>

namespace korvande {

// The time of the clock, and where the stack lies in this process.
std::uint64_t NewHashSeed() noexcept {
    const auto ticks = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    const auto place = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&ticks));
    return Mixed(Mixed(ticks) ^ place);
}

// By eight bytes at a time; the last eight may overlap those before them.
std::uint64_t HashOfBytes(std::uint64_t seed, const void* bytes, std::size_t size) noexcept {
    constexpr std::size_t step = sizeof(std::uint64_t);
    const auto* const begin = static_cast<const char*>(bytes);
    std::uint64_t hash = seed;
    std::uint64_t word = 0;
    if (size < step) {
        std::memcpy(&word, begin, size);
        return Mixed(Mixed(hash ^ word) ^ size);
    }
    for (std::size_t at = 0; at + step < size; at += step) {
        std::memcpy(&word, begin + at, step);
        hash = Mixed(hash ^ word);
    }
    std::memcpy(&word, begin + size - step, step);
    return Mixed(hash ^ word);
}

}  // namespace korvande
