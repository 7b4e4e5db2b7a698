#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "core/FixedText.h"

namespace korvande {

// A code that a translation could not find, and how many objects carried it. The code's first character is the letter
// of the table: L, P or T.
struct UnknownCodeRec {
    FixedText<8> Code;
    std::int32_t Count;
};

// The tally of unknown codes, in order of first occurrence.
class UnknownCodeTally {
 public:
    // Adds 1 to the code's entry.
    void Count(const FixedText<8>& code);
    void Reset();

    // Puts the entries in the order of their codes.
    void Sort();
    const std::vector<UnknownCodeRec>& Entries() const noexcept { return entries; }

 private:
    struct Hash {
        std::size_t operator()(const FixedText<8>& code) const noexcept { return std::hash<TextView>()(code.View()); }
    };

    std::vector<UnknownCodeRec> entries;
    std::unordered_map<FixedText<8>, std::size_t, Hash> places;  // in `entries`
};

// Adds 1 to the tally's entry of the code, given in its fixed 8-character form (table letter and code).
inline void CountUnknownCode(UnknownCodeTally& tally, const FixedText<8>& code) { tally.Count(code); }

}  // namespace korvande
