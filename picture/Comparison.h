#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/Text.h"
#include "core/modLineIntraVerse.h"
#include "picture/ComparedObjects.h"

// What two drawings have in common and in what they differ, whatever the formats they were read from. Objects belong
// together by kind and place to the millimetre: those of the same code first, of those the ones that say the same;
// then, at the same place, those that differ in their code. Numbers of points and line strings, by which a file refers
// to its own objects, are not compared, nor is the order of anything.
namespace korvande {

struct Translation;

enum class DifferenceKind : std::uint8_t { Changed, Missing, Added };

struct Difference {
    ComparedKind object = ComparedKind::Point;
    DifferenceKind kind = DifferenceKind::Changed;
    Text code{};                  // of the first drawing; of an added object, of the second
    Position place{};             // metres; of a line its start
    Position end{};               // of a segment or arc
    bool hasPlace = true;         // false for one that refers to no point
    bool isSplit = false;         // a line string that came as several, of which both drawings have each segment
    std::int32_t firstIndex = 0;  // in the first drawing's points, segments, texts or line strings; 0 when it is added
    std::int32_t secondIndex = 0;
    std::int32_t firstLine = 0;  // of the inputs; 0: none
    std::int32_t secondLine = 0;
    Text what{};    // what was changed, in Dutch: "hoogte 1.140 > geen; code A > B"; of a text its characters
    Text reason{};  // why, in Dutch, when the drawings and the code tables tell; else empty
};

struct ComparisonCount {
    std::int64_t equal = 0;
    std::int64_t changed = 0;
    std::int64_t missing = 0;
    std::int64_t added = 0;
};

struct Comparison {
    std::array<ComparisonCount, comparedKinds> counts{};
    std::vector<Difference> differences;  // by kind of object, of the first drawing in its order, then those added

    bool AreEqual() const noexcept { return differences.empty(); }
};

// Compares the drawings that two translations have read. Descriptions and flags, which the exchange formats do not
// have, are compared when both came from IDEX.
Comparison Compare(Translation& first, Translation& second);

}  // namespace korvande
