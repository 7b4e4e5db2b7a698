#pragma once

#include <cstddef>
#include <cstdint>

// Mixing for hash tables whose keys come from files. A file that is made to fill one place of a table would have to
// know the table's seed.
namespace korvande {

// Another number each time, for one table.
std::uint64_t NewHashSeed() noexcept;

// Every bit of the result depends on every bit of the number.
constexpr std::uint64_t Mixed(std::uint64_t number) noexcept {
    number = (number ^ (number >> 32)) * 0xE9846AF9B1A615D;
    number = (number ^ (number >> 32)) * 0xE9846AF9B1A615D;
    return number ^ (number >> 28);
}

// The same of the bytes of a key.
std::uint64_t HashOfBytes(std::uint64_t seed, const void* bytes, std::size_t size) noexcept;

}  // namespace korvande
