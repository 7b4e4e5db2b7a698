#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include "core/Hash.h"
#include "core/PagedArray.h"

namespace korvande {

// Texts that many records have in common, each kept once and known by its number, in the order in which they came.
// Number 0 is the one that was never filled. A text is a record of bytes without padding.
template <class Kept>
class KeptTexts {
    static_assert(std::has_unique_object_representations_v<Kept>);

 public:
    using Number = std::uint32_t;

    // The number of a text, which is kept when it is new; error 7 when memory runs out.
    Number NumberOf(const Kept& text) {
        Number& number = recent[PlaceInRecent(text)];
        if (text == (*this)[number]) return number;
        if (text == (*this)[0]) return 0;
        if (2 * (Count() + 1) > slots.size()) GrowSlots();
        const std::size_t slot = SlotOf(text);
        if (slots[slot] == 0) {
            texts.Append(text);
            slots[slot] = static_cast<Number>(texts.UpperBound());
        }
        return number = slots[slot];
    }

    const Kept& operator[](Number number) const noexcept { return texts[static_cast<std::int32_t>(number)]; }

    // How many there are, number 0 included.
    std::size_t Count() const noexcept { return static_cast<std::size_t>(texts.UpperBound()) + 1; }

    void Reset() {
        texts.Reset();
        slots.clear();
        recent.fill(0);
    }

 private:
    static std::size_t PlaceInRecent(const Kept& text) noexcept {
        constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;
        std::uint64_t word = 0;
        std::memcpy(&word, &text, std::min(sizeof(word), sizeof(text)));
        return static_cast<std::size_t>((word * multiplier) >> 58);
    }

    // The slot that holds the text, or the free one where it belongs.
    std::size_t SlotOf(const Kept& text) const noexcept {
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = static_cast<std::size_t>(HashOfBytes(seed, &text, sizeof(text))) & mask;
        while (slots[slot] != 0 && !((*this)[slots[slot]] == text)) slot = (slot + 1) & mask;
        return slot;
    }

    void GrowSlots() {
        const std::size_t wanted = std::max<std::size_t>(64, slots.size() * 2);
        std::vector<Number> grown(wanted, 0);
        slots.swap(grown);
        for (std::size_t number = 1; number < Count(); ++number) {
            slots[SlotOf((*this)[static_cast<Number>(number)])] = static_cast<Number>(number);
        }
    }

    std::uint64_t seed = NewHashSeed();
    PagedArray<Kept> texts;
    std::vector<Number> slots;  // a hash table, at most half full; 0: free

    // Most records have a text that was met just before: where its first bytes lead to, and not those of all others.
    std::array<Number, 64> recent{};
};

}  // namespace korvande
