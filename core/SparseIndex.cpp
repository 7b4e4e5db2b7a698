#include "core/SparseIndex.h"

#include <algorithm>

namespace korvande {

std::int32_t& SparseIndex::Place(std::int32_t number) {
    if (number < 0) throw RuntimeError(errors::subscriptOutOfRange);
    const std::int32_t key = number >> shift;
    std::uint32_t block = BlockOf(key);
    if (block == none) {
        AddBlock(key);
        block = lastBlock;
    }
    upperBound = std::max(upperBound, number);
    return blocks[block].values[static_cast<std::size_t>(number & (blockSize - 1))];
}

void SparseIndex::Reset() { *this = SparseIndex(); }

std::uint32_t SparseIndex::OtherBlock(std::int32_t key) const noexcept {
    if (slots.empty()) return none;
    const std::uint32_t block = slots[SlotOf(key)];
    if (block != none) lastBlock = block;
    return block;
}

std::size_t SparseIndex::FirstSlotOf(std::int32_t key) const noexcept {
    return static_cast<std::size_t>(Mixed(seed ^ static_cast<std::uint32_t>(key))) & (slots.size() - 1);
}

// The slot that holds the key's block, or the free one where it belongs.
std::size_t SparseIndex::SlotOf(std::int32_t key) const noexcept {
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = FirstSlotOf(key);
    while (slots[slot] != none && blocks[slots[slot]].key != key) slot = (slot + 1) & mask;
    return slot;
}

std::int64_t SparseIndex::StepsInTable() const noexcept {
    std::int64_t steps = 0;
    for (const Block& block : blocks) {
        steps += static_cast<std::int64_t>((SlotOf(block.key) - FirstSlotOf(block.key)) & (slots.size() - 1));
    }
    return steps;
}

void SparseIndex::AddBlock(std::int32_t key) {
    if ((blocks.size() + 1) * 4 > slots.size() * 3) GrowSlots();
    blocks.push_back({key, {}});
    lastBlock = static_cast<std::uint32_t>(blocks.size() - 1);
    slots[SlotOf(key)] = lastBlock;
}

void SparseIndex::GrowSlots() {
    slots.assign(std::max<std::size_t>(64, slots.size() * 2), none);
    for (std::size_t block = 0; block < blocks.size(); ++block) {
        slots[SlotOf(blocks[block].key)] = static_cast<std::uint32_t>(block);
    }
}

}  // namespace korvande
