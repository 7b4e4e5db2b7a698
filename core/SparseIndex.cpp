#include "core/SparseIndex.h"

#include <algorithm>

#include "core/RuntimeError.h"

namespace korvande {

std::int32_t SparseIndex::operator[](std::int32_t number) const {
    if (number < 0 || number > upperBound) throw RuntimeError(errors::subscriptOutOfRange);
    return Find(number);
}

std::int32_t SparseIndex::Find(std::int32_t number) const noexcept {
    if (number < 0) return 0;
    const std::uint32_t block = BlockOf(number >> shift);
    return block == none ? 0 : blocks[block].values[static_cast<std::size_t>(number & (blockSize - 1))];
}

void SparseIndex::Set(std::int32_t number, std::int32_t value) {
    if (number < 0) throw RuntimeError(errors::subscriptOutOfRange);
    const std::int32_t key = number >> shift;
    std::uint32_t block = BlockOf(key);
    if (block == none) {
        AddBlock(key);
        block = lastBlock;
    }
    blocks[block].values[static_cast<std::size_t>(number & (blockSize - 1))] = value;
    upperBound = std::max(upperBound, number);
}

void SparseIndex::Reset() { *this = SparseIndex(); }

std::uint32_t SparseIndex::BlockOf(std::int32_t key) const noexcept {
    if (lastBlock != none && blocks[lastBlock].key == key) return lastBlock;
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
