#include "core/ObjectSources.h"

#include <algorithm>

namespace korvande {

void ObjectSources::Append(std::int64_t line, Number source) {
    const auto firstLine = static_cast<std::int32_t>(line);
    const bool isAgain = !stretches.empty() && stretches.back().firstLine == firstLine;
    if (!isAgain) stretches.push_back({});
    stretches.back() = {.firstLine = firstLine, .source = source};
    last = source;
}

ObjectSources::Number ObjectSources::At(std::int32_t line) const noexcept {
    const auto behind = std::upper_bound(stretches.begin(), stretches.end(), line,
                                         [](std::int32_t one, const Stretch& other) { return one < other.firstLine; });
    return behind == stretches.begin() ? 0 : (behind - 1)->source;
}

void ObjectSources::Reset() {
    sources.Reset();
    stretches.clear();
    last = 0;
}

}  // namespace korvande
