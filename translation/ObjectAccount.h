#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/Text.h"

// The account of a run's objects: per kind how many were read, how many were written, and how many were left out, by
// reason. Read = written + left out: no object vanishes unaccounted for.
namespace korvande {

enum class ObjectKind { Point, LineString, LineSegment, Arc, TextObject, Polygon, Other };
inline constexpr std::size_t objectKinds = 7;

enum class LeftOut {
    UnknownCode,
    Dummy,      // the code's row is of type DUMMY
    OtherType,  // the code's row is of a type that this kind of object is not written with
    LineType,   // a segment of a line type that is not written
    EmptyText,
    OutsideRectangle,
    NoCode,
    NoCoordinates,
    NoPlace,  // without coordinates, when such points are not wanted
    MissingRecord,
    InvalidArc,     // fewer than three points
    NoReference,    // it refers to a point or line string that was never read
    NotTranslated,  // a kind of object that no translation carries over
    Unfinished      // an error or a person ended the run while it was read
};
inline constexpr std::size_t leftOutReasons = 14;

struct KindAccount {
    std::int64_t read = 0;
    std::int64_t kept = 0;  // taken into the drawing, to be written
    std::int64_t written = 0;
    std::array<std::int64_t, leftOutReasons> leftOut{};

    std::int64_t LeftOutTotal() const noexcept;
    bool Balances() const noexcept { return read == written + LeftOutTotal(); }
};

class ObjectAccount {
 public:
    KindAccount& operator[](ObjectKind kind) noexcept { return kinds[static_cast<std::size_t>(kind)]; }
    const KindAccount& operator[](ObjectKind kind) const noexcept { return kinds[static_cast<std::size_t>(kind)]; }

    void Leave(ObjectKind kind, LeftOut reason, std::int64_t count = 1) noexcept {
        (*this)[kind].leftOut[static_cast<std::size_t>(reason)] += count;
    }

    bool Balances() const noexcept;

    // All kinds together.
    KindAccount Total() const noexcept;

    // What was kept in the drawing has been written.
    void KeptAreWritten() noexcept;

    // One line per kind that occurs, in Dutch.
    Text Summary() const;

 private:
    std::array<KindAccount, objectKinds> kinds{};
};

}  // namespace korvande
