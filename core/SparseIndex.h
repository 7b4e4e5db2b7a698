#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/Hash.h"
#include "core/RuntimeError.h"

namespace korvande {

// An array of 32-bit numbers with the elements 0 to UpperBound(), all 0 until set, whose memory follows the number of
// elements set and not the highest: a lone element 2,000,000,000 costs as much as a lone element 1. Elements are kept
// in blocks of sixteen, found through a hash table; neighbours are found without it. No numbers can be chosen so that
// they meet in the table: each index mixes them with a seed of its own.
class SparseIndex {
 public:
    std::int32_t UpperBound() const noexcept { return upperBound; }

    // The element; error 9 when the number lies outside 0 to UpperBound().
    std::int32_t operator[](std::int32_t number) const {
        if (number < 0 || number > upperBound) throw RuntimeError(errors::subscriptOutOfRange);
        return Find(number);
    }

    // The element, 0 also for a number outside 0 to UpperBound().
    std::int32_t Find(std::int32_t number) const noexcept {
        if (number < 0) return 0;
        const std::uint32_t block = BlockOf(number >> shift);
        return block == none ? 0 : blocks[block].values[static_cast<std::size_t>(number & (blockSize - 1))];
    }

    // Sets the element, growing the array to the number; error 9 for a negative number.
    void Set(std::int32_t number, std::int32_t value) { Place(number) = value; }

    // The same element, to be set until an element of another block is; the array grows to the number at once.
    std::int32_t& Place(std::int32_t number);

    void Reset();

    // The steps that finding every block once takes beyond the first.
    std::int64_t StepsInTable() const noexcept;

 private:
    static constexpr int shift = 4;
    static constexpr std::int32_t blockSize = 1 << shift;
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    struct Block {
        std::int32_t key;
        std::array<std::int32_t, blockSize> values;
    };

    std::uint32_t BlockOf(std::int32_t key) const noexcept {
        return lastBlock != none && blocks[lastBlock].key == key ? lastBlock : OtherBlock(key);
    }
    std::uint32_t OtherBlock(std::int32_t key) const noexcept;
    std::size_t FirstSlotOf(std::int32_t key) const noexcept;
    std::size_t SlotOf(std::int32_t key) const noexcept;
    void AddBlock(std::int32_t key);
    void GrowSlots();

    std::uint64_t seed = NewHashSeed();
    std::int32_t upperBound = 0;
    std::vector<Block> blocks;
    std::vector<std::uint32_t> slots;        // the hash table: places in `blocks`
    mutable std::uint32_t lastBlock = none;  // most references are to the block of the one before
};

}  // namespace korvande
