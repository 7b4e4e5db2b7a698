#include "app/WindowPlace.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>

namespace korvande {

namespace {

// The numbers of a text, separated by single blanks; nothing when there is anything else, or another number of them.
template <std::size_t count>
std::optional<std::array<int, count>> NumbersOf(const std::string& text) {
    std::array<int, count> numbers{};
    const char* at = text.data();
    const char* const end = text.data() + text.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0 && (at == end || *at++ != ' ')) return {};
        const std::from_chars_result result = std::from_chars(at, end, numbers.at(i));
        if (result.ec != std::errc()) return {};
        at = result.ptr;
    }
    if (at != end) return {};
    return numbers;
}

// The part of a window's width (or height) that is on a screen.
int Shared(int begin, int length, int screenBegin, int screenLength) {
    return std::max(0, std::min(begin + length, screenBegin + screenLength) - std::max(begin, screenBegin));
}

std::int64_t SharedArea(const ScreenArea& window, const ScreenArea& screen) {
    return static_cast<std::int64_t>(Shared(window.left, window.width, screen.left, screen.width)) *
           Shared(window.top, window.height, screen.top, screen.height);
}

}  // namespace

Text TextOfPlace(const WindowPlace& place) {
    const ScreenArea& area = place.area;
    return Concat(area.left, u" ", area.top, u" ", area.width, u" ", area.height, u" ", place.isMaximised ? 1 : 0);
}

std::optional<WindowPlace> PlaceFromText(TextView text) {
    constexpr int farthest = 100000;
    constexpr int smallest = 150;
    constexpr int largest = 30000;
    const auto numbers = NumbersOf<5>(ToWindows1252(text));
    if (!numbers) return {};
    const ScreenArea area = {numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3)};
    const int state = numbers->at(4);
    const auto isPlace = [](int place) { return place >= -farthest && place <= farthest; };
    const auto isLength = [](int length) { return length >= smallest && length <= largest; };
    if (!isPlace(area.left) || !isPlace(area.top) || !isLength(area.width) || !isLength(area.height)) return {};
    if (state != 0 && state != 1) return {};
    return WindowPlace{area, state == 1};
}

std::optional<WindowPlace> PlaceInSight(const WindowPlace& place, std::span<const ScreenArea> screens) {
    const auto most = std::max_element(screens.begin(), screens.end(), [&](const ScreenArea& a, const ScreenArea& b) {
        return SharedArea(place.area, a) < SharedArea(place.area, b);
    });
    if (most == screens.end() || SharedArea(place.area, *most) == 0) return {};
    ScreenArea area = place.area;
    area.width = std::min(area.width, most->width);
    area.height = std::min(area.height, most->height);
    area.left = std::clamp(area.left, most->left, most->left + most->width - area.width);
    area.top = std::clamp(area.top, most->top, most->top + most->height - area.height);
    return WindowPlace{area, place.isMaximised};
}

}  // namespace korvande
