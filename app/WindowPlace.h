#pragma once

#include <optional>
#include <span>

#include "core/Text.h"

namespace korvande {

// Where a window stands and how large it is, as it is kept for the next session.

// In pixels of the whole desktop, of which no screen need begin at 0.
struct ScreenArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct WindowPlace {
    ScreenArea area;  // when it is not maximised
    bool isMaximised = false;
};

// The form in which a place is kept; nothing for a text that is none, or tells of no sensible window.
Text TextOfPlace(const WindowPlace& place);
std::optional<WindowPlace> PlaceFromText(TextView text);

// The place, wholly on the screen that it covered most of, and no larger than that; nothing when it is on none of the
// screens that there are now.
std::optional<WindowPlace> PlaceInSight(const WindowPlace& place, std::span<const ScreenArea> screens);

}  // namespace korvande
