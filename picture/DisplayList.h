#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/Curves.h"
#include "core/Text.h"
#include "picture/Place.h"

// What can be seen of a drawing, in the form in which it is drawn, searched and shown: places in whole millimetres from
// an origin, with the code of each object and where it stands in the drawing.
//
// What it takes: 9 bytes for each place of a line string, of which an arc has one more, its centre, and a curve two
// more for each segment; 16 for each part of one; 20 for each point and 24 for each text. A drawing of line strings of
// five segments takes 14 bytes a segment, one in which each segment stands alone 34, and the index over them
// (picture/SpatialIndex.h) some 5 for each point, text and part. The texts of objects stay in the drawing.
namespace korvande {

// How a point is shown: by the type of its code's row.
enum class PointShape : std::uint8_t { Plain, Rotated, ControlPoint, Symbol, NotWritten };

// A code of one of the three tables, as it stands in the drawing.
struct PictureCode {
    char16_t table = u'P';  // its letter: P, L or T
    Text code;              // trimmed, as the next ones
    Text lkiCode;           // that of the unknown row when the code is unknown
    Text description;       // of its row; empty when it is unknown
    Text type;              // of its row, or of the unknown row
    bool isKnown = false;
    bool isWritten = false;  // its type is one that an export writes
    PointShape shape = PointShape::Plain;
    std::int32_t count = 0;  // objects in the picture: points, line strings or texts
    std::int32_t row = 0;    // its row in its table; 0: none of its own
};

struct PicturePoint {
    PicturePlace at;
    float direction = 0;  // grads, anticlockwise from east
    std::uint32_t code = 0;
    std::int32_t index = 0;  // in the drawing's points
};

// What a place of a line string is.
enum class PictureStep : std::uint8_t {
    Begin,                // nothing joins it to the one before
    Resume,               // the place where the part before ended
    Straight,             // joined by a straight line
    ClockwiseCentre,      // the centre of an arc that goes to the next place
    AnticlockwiseCentre,  // the same
    Control,              // one of two control points of a cubic curve that goes to the place behind them
    End                   // of an arc or a curve
};

// A line string, or a part of one: those of more than 64 segments are several, so that what is seen of a long one can
// be found. A part that goes on from the one before begins with Resume.
struct PictureLine {
    std::uint32_t firstPlace = 0;  // in `places` and `steps`
    std::uint32_t placeCount = 0;
    std::uint32_t code = 0;
    std::int32_t lineNo = 0;
};

struct PictureText {
    PicturePlace at;      // of its anchor
    float direction = 0;  // of its baseline: grads, anticlockwise from east
    std::uint32_t code = 0;
    std::int32_t index = 0;     // in the drawing's texts
    std::uint16_t length = 0;   // in characters
    std::uint8_t position = 0;  // what of it lies at the anchor, 1 to 9; 0: anything else
};

struct DisplayList {
    PictureOrigin origin;
    PictureBox extent;
    std::vector<PictureCode> codes;
    std::vector<PicturePoint> points;
    std::vector<PictureLine> lines;    // by their numbers, the parts of each in their order
    std::vector<PicturePlace> places;  // of all line strings
    std::vector<PictureStep> steps;    // what each place is
    std::vector<PictureText> texts;
    std::int64_t segments = 0;  // of the drawing, that are in the picture
    std::int64_t notShown = 0;  // objects that refer to nothing or lie too far away
};

// How high texts are drawn, metres.
inline constexpr double textHeight = 1.0;

// How far a text may reach from its anchor, millimetres.
double ReachOf(const PictureText& text) noexcept;

// The bytes that it holds, those of the texts of its codes left aside.
std::size_t BytesOf(const DisplayList& list) noexcept;

// Walks over the pieces of a part of a line string: calls visitor.Begin(place, isResumed), .Straight(to),
// .ArcTo(centre, to, isAnticlockwise) and .CurveTo(first, second, to).
template <class Visitor>
void WalkLine(const DisplayList& list, const PictureLine& line, Visitor&& visitor) {
    const PicturePlace* place = list.places.data() + line.firstPlace;
    const PictureStep* step = list.steps.data() + line.firstPlace;
    const PictureStep* const end = step + line.placeCount;
    while (step != end) {
        switch (*step) {
            case PictureStep::Begin:
            case PictureStep::Resume:
                visitor.Begin(place[0], *step == PictureStep::Resume);
                break;
            case PictureStep::ClockwiseCentre:
            case PictureStep::AnticlockwiseCentre:
                visitor.ArcTo(place[0], place[1], *step == PictureStep::AnticlockwiseCentre);
                ++place;
                ++step;
                break;
            case PictureStep::Control:
                visitor.CurveTo(place[0], place[1], place[2]);
                place += 2;
                step += 2;
                break;
            case PictureStep::Straight:
            case PictureStep::End:
                visitor.Straight(place[0]);
                break;
        }
        ++place;
        ++step;
    }
}

// What it covers; of a curve no less than it covers.
PictureBox BoxOf(const DisplayList& list, const PictureLine& line) noexcept;
PictureBox BoxOf(const PictureText& text) noexcept;
PictureBox BoxOf(const PicturePoint& point) noexcept;

}  // namespace korvande
