#include "core/UnknownCodeTally.h"

#include <algorithm>

namespace korvande {

void UnknownCodeTally::Count(const FixedText<8>& code) {
    const auto [place, isNew] = places.try_emplace(code, entries.size());
    if (isNew) entries.push_back({code, 0});
    ++entries[place->second].Count;
}

void UnknownCodeTally::Reset() {
    entries.clear();
    places.clear();
}

void UnknownCodeTally::Sort() {
    // Codes occur once, so any sorting puts them in the same order.
    std::sort(entries.begin(), entries.end(),
              [](const UnknownCodeRec& a, const UnknownCodeRec& b) { return a.Code.View() < b.Code.View(); });
    for (std::size_t place = 0; place < entries.size(); ++place) places[entries[place].Code] = place;
}

}  // namespace korvande
