#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/Memory.h"
#include "core/RuntimeError.h"

namespace korvande {

// An array with the elements 0 to UpperBound(), kept in pages: growing it moves nothing and wastes at most a page.
// A new element is zeroed memory (never filled). Element 0 always exists, whatever the upper bound.
template <class Record>
class PagedArray {
    static_assert(std::is_trivially_copyable_v<Record> && std::is_trivially_default_constructible_v<Record>);

 public:
    using Index = std::int32_t;

    Index UpperBound() const noexcept { return upperBound; }

    Record& operator[](Index index) noexcept { return pages[PageOf(index)].get()[PlaceOf(index)]; }
    const Record& operator[](Index index) const noexcept { return pages[PageOf(index)].get()[PlaceOf(index)]; }

    // Error 9 when the index lies outside the array.
    Record& At(Index index) {
        if (index < 0 || index > upperBound) throw RuntimeError(errors::subscriptOutOfRange);
        return (*this)[index];
    }

    // Adds an element behind the last one and returns it; its index is the new upper bound.
    Record& Append() {
        GrowTo(upperBound + 1);
        return (*this)[upperBound];
    }

    // Adds a copy of this record, which may not be one of the array's own.
    Record& Append(const Record& record) {
        AddPagesFor(upperBound + 1);
        return (*this)[++upperBound] = record;
    }

    // Grows the array to this upper bound; a smaller one changes nothing. Error 7 when memory runs out, which leaves
    // the array as it was.
    void GrowTo(Index newUpperBound) {
        if (newUpperBound <= upperBound) return;
        AddPagesFor(newUpperBound);
        while (upperBound < newUpperBound) Clear(++upperBound);
    }

    // Drops the elements above this upper bound.
    void CutTo(Index newUpperBound) noexcept { upperBound = std::min(upperBound, newUpperBound); }

    // Back to the empty array: the upper bound 0, element 0 never filled, the memory given back.
    void Reset() {
        Page first = NewPage();
        pages.clear();
        pages.push_back(std::move(first));
        upperBound = 0;
        Clear(0);
    }

    PagedArray() {
        AddPagesFor(0);
        Clear(0);
    }

 private:
    struct Free {
        void operator()(Record* records) const noexcept { std::free(records); }  // NOLINT(cppcoreguidelines-no-malloc)
    };
    using Page = std::unique_ptr<Record, Free>;

    static constexpr std::size_t pageBytes = std::size_t{1} << 18;
    static constexpr std::size_t perPage = std::bit_floor(std::max<std::size_t>(1, pageBytes / sizeof(Record)));
    static constexpr int shift = std::countr_zero(perPage);

    static std::size_t PageOf(Index index) noexcept { return static_cast<std::size_t>(index) >> shift; }
    static std::size_t PlaceOf(Index index) noexcept { return static_cast<std::size_t>(index) & (perPage - 1); }

    // Left as it comes: an element is zeroed when the array grows to it, just before it is filled, so that no memory
    // is gone over twice.
    static Page NewPage() {
        Page page(static_cast<Record*>(std::malloc(perPage * sizeof(Record))));  // NOLINT(cppcoreguidelines-no-malloc)
        if (!page) throw RuntimeError(errors::outOfMemory);
        return page;
    }

    void Clear(Index index) noexcept { std::memset(static_cast<void*>(&(*this)[index]), 0, sizeof(Record)); }

    void AddPagesFor(Index index) {
        while (pages.size() <= PageOf(index)) {
            Page page = NewPage();
            // A small drawing never fills its first pages.
            if (!pages.empty()) ExpectToFill(page.get(), perPage * sizeof(Record));
            pages.push_back(std::move(page));
        }
    }

    std::vector<Page> pages;
    Index upperBound = 0;
};

}  // namespace korvande
