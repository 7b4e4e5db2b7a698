#include "picture/VertexComparison.h"

#include <algorithm>
#include <set>
#include <span>
#include <utility>

#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "picture/DifferenceTexts.h"

namespace korvande {

namespace {

class VertexComparer {
 public:
    VertexComparer(const ComparedVertices& itsFirst, const ComparedVertices& itsSecond, bool theyAreBothFromIdex,
                   Comparison& itsResult)
        : first(itsFirst), second(itsSecond), areBothFromIdex(theyAreBothFromIdex), result(itsResult) {}

    void Compare() {
        const std::vector<ComparedVertex>& points1 = first.vertices;
        const std::vector<ComparedVertex>& points2 = second.vertices;
        const auto endOf = [](const std::vector<ComparedVertex>& points, std::size_t at) {
            std::size_t end = at;
            while (end < points.size() && points[end].east == points[at].east &&
                   points[end].north == points[at].north) {
                ++end;
            }
            return end;
        };
        std::size_t at1 = 0;
        std::size_t at2 = 0;
        while (at1 < points1.size() && at2 < points2.size()) {
            const auto place1 = std::pair(points1[at1].east, points1[at1].north);
            const auto place2 = std::pair(points2[at2].east, points2[at2].north);
            const std::size_t end1 = place2 < place1 ? at1 : endOf(points1, at1);
            const std::size_t end2 = place1 < place2 ? at2 : endOf(points2, at2);
            if (place1 == place2) {
                CompareVertex(std::span(points1).subspan(at1, end1 - at1), std::span(points2).subspan(at2, end2 - at2));
            }
            at1 = end1;
            at2 = end2;
        }
    }

 private:
    using Vertices = std::span<const ComparedVertex>;

    // The names and heights that a place of line strings or texts has, of one drawing.
    struct PlaceTexts {
        std::vector<Text> own;  // of the points that are only that
        std::vector<Text> all;  // of objects there too
    };

    void CompareVertex(Vertices points1, Vertices points2) {
        const auto isPlace = [this](const ComparedVertex& point) { return IsPlace(point); };
        const bool is1 = std::any_of(points1.begin(), points1.end(), isPlace);
        const bool is2 = std::any_of(points2.begin(), points2.end(), isPlace);
        if (!is1 && !is2) return;
        Text what = ChangesOf(TextsAt(first.drawing, points1, NameText), TextsAt(second.drawing, points2, NameText),
                              u"puntnummer");
        const Text heights = ChangesOf(TextsAt(first.drawing, points1, HeightText),
                                       TextsAt(second.drawing, points2, HeightText), u"hoogte");
        if (!heights.empty()) what = what.empty() ? heights : Concat(what, u"; ", heights);
        ComparisonCount& count = result.counts[static_cast<std::size_t>(ComparedKind::Vertex)];
        if (what.empty()) {
            ++count.equal;
            return;
        }
        ++count.changed;
        const std::int32_t point1 = points1.front().point;
        const std::int32_t point2 = points2.front().point;
        result.differences.push_back({.object = ComparedKind::Vertex,
                                      .place = {first.drawing.Points[point1].East, first.drawing.Points[point1].North},
                                      .firstIndex = point1,
                                      .secondIndex = point2,
                                      .firstLine = first.drawing.Points[point1].InputLine,
                                      .secondLine = second.drawing.Points[point2].InputLine,
                                      .what = std::move(what)});
    }

    static Text NameText(const PointRec& point) {
        const auto& name = point.PointIDBytes();
        return name.NeverFilled() ? Text() : FromWindows1252(name.Trimmed());
    }

    static Text HeightText(const PointRec& point) {
        return Compared(point.Elevation) == 0 ? Text() : FromUtf8(FormatPicture(point.Elevation, "0.000"));
    }

    // The exchange formats have no names and heights of centres.
    bool IsPlace(const ComparedVertex& point) const { return point.isPlace || (point.isCentre && areBothFromIdex); }

    PlaceTexts TextsAt(const Drawing& drawing, Vertices points, Text (*textOf)(const PointRec&)) const {
        PlaceTexts texts;
        for (const ComparedVertex& point : points) {
            const Text text = textOf(drawing.Points[point.point]);
            if (text.empty()) continue;
            texts.all.push_back(text);
            if (IsPlace(point)) texts.own.push_back(text);
        }
        return texts;
    }

    // What of each the other one has not, at an object there either.
    static Text ChangesOf(const PlaceTexts& texts1, const PlaceTexts& texts2, TextView what) {
        const auto without = [](const std::vector<Text>& texts, const std::vector<Text>& others) {
            std::set<TextView> there(others.begin(), others.end());
            std::vector<Text> rest;
            for (const Text& text : texts) {
                if (there.insert(text).second) rest.push_back(text);
            }
            return rest;
        };
        const std::vector<Text> gone = without(texts1.own, texts2.all);
        const std::vector<Text> come = without(texts2.own, texts1.all);
        return gone.empty() && come.empty() ? Text() : ChangesOfVertex(gone, come, what);
    }

    const ComparedVertices& first;
    const ComparedVertices& second;
    bool areBothFromIdex;
    Comparison& result;
};

}  // namespace

void CompareVertices(const ComparedVertices& first, const ComparedVertices& second, bool areBothFromIdex,
                     Comparison& result) {
    VertexComparer(first, second, areBothFromIdex, result).Compare();
}

}  // namespace korvande
