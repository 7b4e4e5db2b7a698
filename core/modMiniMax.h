#pragma once

#include <cstdint>

namespace korvande {

constexpr std::int16_t MinInt(std::int16_t first, std::int16_t second) noexcept {
    return first > second ? second : first;
}

constexpr std::int32_t MaxLong(std::int32_t first, std::int32_t second) noexcept {
    return first < second ? second : first;
}

}  // namespace korvande
