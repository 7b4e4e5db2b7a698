#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <span>
#include <vector>

#include "core/LinePieces.h"
#include "picture/DisplayList.h"
#include "picture/PictureCodes.h"

// The objects of a drawing as they are compared with those of another one, whatever the format each was read from.
namespace korvande {

struct PointRec;
struct Translation;

enum class ComparedKind : std::uint8_t { Point, Segment, Arc, Circle, TextObject, LineString, Vertex };
inline constexpr std::size_t comparedKinds = 7;

// Where an object is, in whole millimetres. Of a segment or an arc the two ends, the western one (or of those the
// southern one) first, so that it does not matter which way it was drawn; of a circle its start.
struct ComparedPlace {
    std::int64_t east = 0;
    std::int64_t north = 0;
    std::int64_t otherEast = 0;
    std::int64_t otherNorth = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): the checker takes a 0 of the compiler's own for one of ours
    auto operator<=>(const ComparedPlace&) const = default;
};

struct ComparedObject {
    ComparedPlace place{};      // all 0 for one that refers to nothing
    std::uint32_t code = 0;     // in the codes of its drawing
    std::uint32_t shared = 0;   // the same for objects of one code in both drawings; set when they are compared
    std::int32_t index = 0;     // in the drawing's points, segments (the first one), texts or line strings
    std::uint32_t centre = 0;   // of an arc or circle, a hash of its place
    std::uint64_t content = 0;  // a hash of what it says: characters, name and height, line type, turning direction
    std::uint64_t detail =
        0;                // a hash by which equal ones are told apart: of a line its line string, else what IDEX adds
    float direction = 0;  // grads, of a point or text
    bool isReversed = false;  // its ends were exchanged
    bool refersToNothing = false;
};

// A point at a place where line strings may end or meet.
struct ComparedVertex {
    std::int64_t east = 0;
    std::int64_t north = 0;
    bool isPlace = false;    // a line string ends or a text hangs there, and it is no object of its own
    bool isCentre = false;   // it is nothing but the centre of an arc or circle
    std::int32_t point = 0;  // index

    // NOLINTNEXTLINE(modernize-use-nullptr, readability-implicit-bool-conversion): the same
    auto operator<=>(const ComparedVertex&) const = default;
};

struct ComparedObjects {
    std::vector<PictureCode> codes;
    std::array<std::vector<ComparedObject>, comparedKinds> kinds;  // line strings: those without segments
    std::vector<std::uint32_t> codeOfLine;                         // by line number

    std::vector<ComparedObject>& operator[](ComparedKind kind) noexcept {
        return kinds[static_cast<std::size_t>(kind)];
    }
    const std::vector<ComparedObject>& operator[](ComparedKind kind) const noexcept {
        return kinds[static_cast<std::size_t>(kind)];
    }
};

// Collects the objects of the drawing that a translation has read, some kinds at a time, since all of them take several
// times as much as the drawing. Its points are those that its picture shows; the others are the places of line strings
// and texts. The two places of a text in an exchange file are no objects of their own.
class ObjectCollector {
 public:
    explicit ObjectCollector(Translation& itsTranslation);
    ObjectCollector(const ObjectCollector&) = delete;
    ObjectCollector& operator=(const ObjectCollector&) = delete;

    ComparedObjects objects;

    void AddPoints();
    void AddTexts();
    void AddLines();

    // All points, by their places; for when the lines and texts were added.
    std::vector<ComparedVertex> Vertices() const;

 private:
    bool IsPoint(std::int32_t index) const noexcept;
    void Use(std::int32_t point);
    void EndAt(std::int32_t point);
    ComparedPlace PlaceOf(std::int32_t point) const;
    bool PlaceBetween(std::int32_t start, std::int32_t end, ComparedPlace& place) const;
    bool IsPlacement(std::span<const std::int32_t> segments, std::int32_t lineNo) const;
    std::uint64_t DetailOf(const LineRec& line) const;
    void AddLineString(std::span<const std::int32_t> segments, std::uint32_t code, std::uint64_t detail);
    void AddPieces(std::span<const std::int32_t> segments, std::uint32_t code);
    void AddSegment(std::int32_t index, std::uint32_t code);
    void AddArc(const LinePiece& piece, std::int32_t index, std::uint32_t code);
    void AddStraySegments();

    const Drawing& drawing;
    PictureCodes codes;
    bool isFromIdex;
    std::vector<bool> isUsed;          // by point: a line string or a text refers to it
    std::vector<bool> isObject;        // it is one of its own
    std::vector<bool> isEnd;           // and it is no mere centre, whose name and height belong to no place of a line
    std::vector<std::int32_t> textAt;  // by point of an exchange file: the text that hangs on it
};

// What coordinates and heights are compared by: whole millimetres; the bits of a number that those cannot tell.
std::int64_t Compared(double metres) noexcept;

}  // namespace korvande
