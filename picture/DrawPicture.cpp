#include "picture/DrawPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "core/modAzimuth.h"
#include "core/modKORVANDE.h"
#include "picture/CutCanvas.h"
#include "picture/SpatialIndex.h"

namespace korvande {

namespace {

constexpr Colour unknownColour = 0xD00000;
constexpr Colour notWrittenColour = 0x8C8C8C;
constexpr Colour textColour = 0x202020;

// Dark enough for white paper, far from the red of unknown codes.
constexpr std::array<Colour, 9> colours = {0x1F4E9E, 0x2E6B2E, 0x7A4A00, 0x5B2A86, 0x00616B,
                                           0x404040, 0x6B6B00, 0x0B6E99, 0x3B3B8A};

// Of symbols, millimetres.
constexpr double plainRadius = 150;
constexpr double unknownRadius = 300;
constexpr double smallRadius = 80;
constexpr double symbolRadius = 400;
constexpr double tickLength = 900;
constexpr double triangleReach = 600;

// The same for a code in every drawing and on every machine.
Colour ColourOf(const PictureCode& code) {
    constexpr std::uint32_t prime = 16777619;
    std::uint32_t hash = 2166136261;
    for (const char16_t character : code.code) hash = (hash ^ character) * prime;
    return colours[(hash ^ hash >> 16) % colours.size()];
}

class Artist {
 public:
    Artist(const Drawing& itsDrawing, const DisplayList& itsList, const PictureFrame& itsFrame, Canvas& itsCanvas,
           const PictureChoice& itsChoice)
        : drawing(itsDrawing), list(itsList), frame(itsFrame), canvas(itsCanvas), choice(itsChoice) {}

    PictureCounts Draw() {
        const Seen seen = FindSeen();
        DrawTable(u'L', list.lines, seen[PictureKind::LineString], [this](const PictureLine& line) { DrawLine(line); });
        DrawTable(u'P', list.points, seen[PictureKind::Point], [this](const PicturePoint& point) { DrawPoint(point); });
        DrawTable(u'T', list.texts, seen[PictureKind::TextObject], [this](const PictureText& text) { DrawText(text); });
        return drawn;
    }

 private:
    // The places of what may be seen, in their order: those of each kind.
    struct Seen {
        std::array<std::vector<std::uint32_t>, 3> places;

        const std::vector<std::uint32_t>& operator[](PictureKind kind) const noexcept {
            return places[static_cast<std::size_t>(kind)];
        }
    };

    Seen FindSeen() const {
        Seen seen;
        const PictureBox& box = frame.box;
        if (choice.index == nullptr || box.Holds(list.extent)) {
            const std::size_t counts[] = {list.points.size(), list.lines.size(), list.texts.size()};
            for (std::size_t kind = 0; kind < seen.places.size(); ++kind) {
                seen.places[kind].resize(counts[kind]);
                std::iota(seen.places[kind].begin(), seen.places[kind].end(), 0);
            }
            return seen;
        }
        // Symbols reach beyond their points.
        PictureBox grown = box;
        grown.AddBox(BoxAbout({box.minEast, box.minNorth}, tickLength));
        grown.AddBox(BoxAbout({box.maxEast, box.maxNorth}, tickLength));
        choice.index->Find(list, grown, [&seen](PictureRef ref) {
            seen.places[static_cast<std::size_t>(ref.kind)].push_back(ref.place);
        });
        const std::size_t counts[] = {list.points.size(), list.lines.size(), list.texts.size()};
        for (std::size_t kind = 0; kind < seen.places.size(); ++kind) Sort(seen.places[kind], counts[kind]);
        return seen;
    }

    // Sorts places of so many; of a large part of them it is faster to look which of all they are.
    static void Sort(std::vector<std::uint32_t>& places, std::size_t count) {
        constexpr std::size_t smallPart = 16;
        if (places.size() < count / smallPart) return std::sort(places.begin(), places.end());
        std::vector<char> isThere(count);
        for (const std::uint32_t place : places) isThere[place] = 1;
        std::size_t next = 0;
        for (std::uint32_t place = 0; place < count; ++place) {
            if (isThere[place] != 0) places[next++] = place;
        }
    }

    bool IsHidden(std::size_t code) const {
        return choice.isHidden != nullptr && code < choice.isHidden->size() && (*choice.isHidden)[code];
    }

    // Without an index all is looked at; what it finds is seen.
    template <class Object>
    bool MayBeSeen(const Object& object) const {
        return choice.index != nullptr || IsSeen(object);
    }
    bool IsSeen(const PictureLine& line) const { return BoxOf(list, line).Overlaps(frame.box); }
    bool IsSeen(const PicturePoint& point) const { return BoxAbout(point.at, tickLength).Overlaps(frame.box); }
    bool IsSeen(const PictureText& text) const { return BoxOf(text).Overlaps(frame.box); }

    // Draws the objects of a table, those of one code together and in their order.
    template <class Object, class DrawOne>
    void DrawTable(char16_t table, const std::vector<Object>& objects, const std::vector<std::uint32_t>& seen,
                   DrawOne draw) {
        std::vector<std::uint32_t> begins(list.codes.size() + 1);
        for (const std::uint32_t place : seen) ++begins[objects[place].code + 1];
        std::partial_sum(begins.begin(), begins.end(), begins.begin());
        std::vector<std::uint32_t> order(seen.size());
        std::vector<std::uint32_t> next(begins.begin(), begins.end() - 1);
        for (const std::uint32_t place : seen) order[next[objects[place].code]++] = place;
        // Those that are not written, the known ones, the unknown ones.
        for (int layer = 0; layer < 3; ++layer) {
            for (std::size_t code = 0; code < list.codes.size(); ++code) {
                if (list.codes[code].table != table || LayerOf(list.codes[code]) != layer || IsHidden(code)) {
                    continue;
                }
                DrawCode(list.codes[code], objects, {order.data() + begins[code], begins[code + 1] - begins[code]},
                         draw);
            }
        }
    }

    struct Places {
        const std::uint32_t* first;
        std::size_t count;
    };

    // The objects of a code lie far from each other: while some are drawn, what comes soon is fetched from memory,
    // which would else take most of the time.
    void Fetch(const PictureLine& line) const {
        __builtin_prefetch(&list.steps[line.firstPlace]);
        __builtin_prefetch(&list.places[line.firstPlace]);
    }
    template <class Object>
    void Fetch(const Object& /*object*/) const {}

    template <class Object, class DrawOne>
    void DrawCode(const PictureCode& code, const std::vector<Object>& objects, Places places, DrawOne draw) {
        constexpr std::size_t soon = 8;
        bool isBegun = false;
        for (std::size_t i = 0; i < places.count; ++i) {
            if (i + 2 * soon < places.count) __builtin_prefetch(&objects[places.first[i + 2 * soon]]);
            if (i + soon < places.count) Fetch(objects[places.first[i + soon]]);
            const Object& object = objects[places.first[i]];
            if (!MayBeSeen(object)) continue;
            if (!isBegun) BeginCode(code);
            isBegun = true;
            draw(object);
        }
        FinishLine();
        if (isBegun) canvas.EndCode();
    }

    void BeginCode(const PictureCode& code) {
        const CodeStyle style = StyleOf(code, frame);
        canvas.BeginCode(code, style);
        isInParts = !canvas.IsOfObjects() && !style.isDashed;
        lineBefore = nullptr;
        pointBefore = nullptr;
    }

    static int LayerOf(const PictureCode& code) { return !code.isKnown ? 2 : code.isWritten ? 1 : 0; }

    struct LineDrawer {
        Artist& artist;

        void Begin(PicturePlace place, bool isResumed) {
            // A part goes on where the one before ended, when that was drawn.
            if (isResumed && artist.hasLine && place == artist.last) return;
            artist.canvas.MoveTo(place);
        }
        void Straight(PicturePlace to) { artist.canvas.LineTo(to); }
        void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
            artist.canvas.ArcTo(centre, to, isAnticlockwise);
        }
        void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
            artist.canvas.CurveTo(first, second, to);
        }
    };

    void DrawLine(const PictureLine& line) {
        // Of the one before the parts behind may not be seen, and of this one the parts before.
        const bool isNew = list.steps[line.firstPlace] != PictureStep::Resume || line.lineNo != lineNo;
        if (isNew) Count(line.code, drawn.lineStrings);
        if (isNew || isInParts) FinishLine();
        lineNo = line.lineNo;
        if (isNew && isInParts && lineBefore != nullptr && IsSame(*lineBefore, line)) return;
        lineBefore = &line;
        WalkLine(list, line, LineDrawer{*this});
        last = list.places[line.firstPlace + line.placeCount - 1];
        hasLine = true;
    }

    bool IsSame(const PictureLine& one, const PictureLine& other) const {
        const auto steps = list.steps.begin();
        const auto places = list.places.begin();
        return one.placeCount == other.placeCount &&
               std::equal(steps + one.firstPlace, steps + one.firstPlace + one.placeCount, steps + other.firstPlace) &&
               std::equal(places + one.firstPlace, places + one.firstPlace + one.placeCount, places + other.firstPlace);
    }

    void Count(std::uint32_t code, std::int64_t& kind) {
        ++kind;
        if (!list.codes[code].isKnown) ++drawn.unknown;
    }

    void FinishLine() {
        if (hasLine) canvas.Stroke();
        hasLine = false;
    }

    static PicturePlace Beside(PicturePlace at, double grads, double distance) {
        const double turn = GradsToRadians(grads);
        const Position from = PositionOf(at);
        return PlaceAt({from.east + std::cos(turn) * distance, from.north + std::sin(turn) * distance});
    }

    void Circle(PicturePlace at, double direction) {
        const PicturePlace start = Beside(at, direction, symbolRadius);
        canvas.MoveTo(start);
        canvas.ArcTo(at, Beside(at, direction + 200, symbolRadius), true);
        canvas.ArcTo(at, start, true);
    }

    void Line(PicturePlace from, PicturePlace to) {
        canvas.MoveTo(from);
        canvas.LineTo(to);
    }

    void DrawPoint(const PicturePoint& point) {
        const PictureCode& code = list.codes[point.code];
        Count(point.code, drawn.points);
        const bool isCovered = !canvas.IsOfObjects() && pointBefore != nullptr && pointBefore->at == point.at &&
                               pointBefore->direction == point.direction;
        pointBefore = &point;
        if (isCovered) return;
        switch (code.shape) {
            case PointShape::Plain:
                return canvas.Dot(point.at, code.isKnown ? plainRadius : unknownRadius);
            case PointShape::NotWritten:
                return canvas.Dot(point.at, smallRadius);
            case PointShape::Rotated:
                Circle(point.at, point.direction);
                Line(point.at, Beside(point.at, point.direction, tickLength));
                break;
            case PointShape::Symbol:
                Circle(point.at, point.direction);
                Line(Beside(point.at, point.direction + 200, symbolRadius),
                     Beside(point.at, point.direction, symbolRadius));
                Line(Beside(point.at, point.direction + 300, symbolRadius),
                     Beside(point.at, point.direction + 100, symbolRadius));
                break;
            case PointShape::ControlPoint:
                DrawTriangle(point.at);
                break;
        }
        canvas.Stroke();
    }

    void DrawTriangle(PicturePlace at) {
        constexpr double third = 400.0 / 3;
        canvas.MoveTo(Beside(at, 100, triangleReach));
        for (int corner = 1; corner <= 3; ++corner) {
            canvas.LineTo(Beside(at, 100 + corner * third, triangleReach));
        }
        Line(at, at);
    }

    void DrawText(const PictureText& text) {
        Count(text.code, drawn.texts);
        const auto& characters = drawing.Texts[text.index].Characters();
        canvas.Write(text, characters.Trimmed());
    }

    const Drawing& drawing;
    const DisplayList& list;
    const PictureFrame& frame;
    Canvas& canvas;
    const PictureChoice& choice;
    PictureCounts drawn;
    bool isInParts = false;                     // of the code being drawn: each part of a line is drawn by itself
    const PictureLine* lineBefore = nullptr;    // of that code, drawn last
    const PicturePoint* pointBefore = nullptr;  // the same
    bool hasLine = false;                       // a line was begun and not yet drawn
    PicturePlace last;                          // where it is
    std::int32_t lineNo = 0;                    // of its line string
};

}  // namespace

PictureFrame WholeFrame(const DisplayList& list) noexcept {
    PictureFrame frame;
    if (list.extent.IsEmpty()) return frame;
    const double width = static_cast<double>(list.extent.maxEast) - list.extent.minEast;
    const double height = static_cast<double>(list.extent.maxNorth) - list.extent.minNorth;
    constexpr double least = 2000;
    const double room = std::max(least, std::max(width, height) / 50);
    frame.box = list.extent;
    frame.box.AddBox(BoxAbout({list.extent.minEast, list.extent.minNorth}, room));
    frame.box.AddBox(BoxAbout({list.extent.maxEast, list.extent.maxNorth}, room));
    return frame;
}

CodeStyle StyleOf(const PictureCode& code, const PictureFrame& frame) {
    constexpr double least = 60;
    CodeStyle style;
    const double pixel = (static_cast<double>(frame.box.maxEast) - frame.box.minEast) / frame.pixels;
    style.lineWidth = std::max(least, pixel);
    style.isFilled = code.table == u'T' ||
                     (code.table == u'P' && (code.shape == PointShape::Plain || code.shape == PointShape::NotWritten));
    style.isDashed = code.table == u'L' && code.isKnown && !code.isWritten;
    style.colour = !code.isKnown        ? unknownColour
                   : !code.isWritten    ? notWrittenColour
                   : code.table == u'T' ? textColour
                                        : ColourOf(code);
    return style;
}

PictureCounts DrawPicture(const Drawing& drawing, const DisplayList& list, const PictureFrame& frame, Canvas& canvas,
                          const PictureChoice& choice) {
    // So far beyond a picture (pixels) lines are cut off, whose numbers would be too large for what draws them.
    constexpr double reach = 10'000;
    constexpr double quarterPixel = 0.25;
    const double scale = frame.pixels / (static_cast<double>(frame.box.maxEast) - frame.box.minEast);
    PictureBox box = BoxAbout({frame.box.minEast, frame.box.minNorth}, reach / scale);
    box.AddBox(BoxAbout({frame.box.maxEast, frame.box.maxNorth}, reach / scale));
    if (box.Holds(list.extent) || canvas.IsOfObjects()) return Artist(drawing, list, frame, canvas, choice).Draw();
    CutCanvas cut(canvas, box, quarterPixel / scale);
    return Artist(drawing, list, frame, cut, choice).Draw();
}

}  // namespace korvande
