#pragma once

#include <cstdint>
#include <vector>

#include "picture/ComparedObjects.h"

namespace korvande {

// Two objects that belong together: their places among those compared; noObject for one that has no other.
inline constexpr std::uint32_t noObject = 0xFFFFFFFF;
struct ObjectMatch {
    std::uint32_t first = noObject;
    std::uint32_t second = noObject;
};

// How objects at one place whose codes differ may still belong together: never, when they say the same or nothing else
// is left there, or in any case.
enum class OtherCode { Never, SameContent, Any };

// Matches objects of one kind, those at the same place: first those that are equal in everything, then those equal in
// shape, in code and content, in their code, and then those of different codes, as far as they may. Whatever is left
// stands alone. Where they stand among the objects makes no difference, but between those that are equal in everything.
std::vector<ObjectMatch> MatchObjects(const std::vector<ComparedObject>& first,
                                      const std::vector<ComparedObject>& second, OtherCode otherCode);

}  // namespace korvande
