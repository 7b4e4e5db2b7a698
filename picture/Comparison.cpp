#include "picture/Comparison.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "core/Picture.h"
#include "picture/DifferenceReasons.h"
#include "picture/DifferenceTexts.h"
#include "picture/ObjectMatching.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

using Record = std::vector<ComparedObject>;

// Gives the same number to a code in both drawings. A text made of a point has the LKI code itself, by which it comes
// back with the code of that row.
class SharedCodes {
 public:
    void Share(Translation& translation, ComparedObjects& objects) {
        std::vector<std::uint32_t> numbers;
        for (const PictureCode& code : objects.codes) {
            const auto next = static_cast<std::uint32_t>(all.size());
            numbers.push_back(all.try_emplace({code.table, NameOf(translation, code)}, next).first->second);
        }
        for (Record& kind : objects.kinds) {
            for (ComparedObject& object : kind) object.shared = numbers[object.code];
        }
    }

 private:
    static Text NameOf(Translation& translation, const PictureCode& code) {
        const bool isLki = code.table == u'T' && !code.code.empty() && ToWindows1252(code.code.front()) == lkiCodeMark;
        if (!isLki) return code.code;
        CodeTable& texts = translation.codes.texts;
        const std::int32_t row = FindLkiCode(texts, MakeFixedText<CodeKey::width>(code.lkiCode));
        if (row == 0) return code.lkiCode;
        return Text(texts.rows[static_cast<std::size_t>(row)].LiscadCode.TrimmedRight());
    }

    std::map<std::pair<char16_t, Text>, std::uint32_t> all;
};

std::int32_t InputLineOf(const Drawing& drawing, ComparedKind kind, std::int32_t index) {
    switch (kind) {
        case ComparedKind::Point:
        case ComparedKind::Vertex:
            return drawing.Points[index].InputLine;
        case ComparedKind::TextObject:
            return drawing.Texts[index].InputLine;
        case ComparedKind::LineString:
            return drawing.Lines[index].InputLine;
        default:
            return drawing.Edges[index].InputLine;
    }
}

bool IsPoint(const Drawing& drawing, std::int32_t point) { return point >= 1 && point <= drawing.Points.UpperBound(); }

Position MetresOf(const Drawing& drawing, std::int32_t point) {
    if (!IsPoint(drawing, point)) return {};
    return {drawing.Points[point].East, drawing.Points[point].North};
}

class Comparer {
 public:
    Comparer(Translation& itsFirst, Translation& itsSecond)
        : collector1(itsFirst), collector2(itsSecond), first{itsFirst, objects1}, second{itsSecond, objects2} {}

    Comparison Compare() {
        collector1.AddPoints();
        collector2.AddPoints();
        ShareCodes();
        CompareKind(ComparedKind::Point, OtherCode::Any);
        collector1.AddLines();
        collector2.AddLines();
        ShareCodes();
        CompareKind(ComparedKind::Segment, OtherCode::Any);
        CompareKind(ComparedKind::Arc, OtherCode::Any);
        CompareKind(ComparedKind::Circle, OtherCode::Any);
        collector1.AddTexts();
        collector2.AddTexts();
        ShareCodes();
        CompareKind(ComparedKind::TextObject, OtherCode::SameContent);
        CompareKind(ComparedKind::LineString, OtherCode::Never);
        CompareLineStrings();
        CompareVertices();
        return std::move(result);
    }

 private:
    const Drawing& Drawing1() const { return first.translation.drawing; }
    const Drawing& Drawing2() const { return second.translation.drawing; }

    void ShareCodes() {
        codes.Share(first.translation, objects1);
        codes.Share(second.translation, objects2);
    }

    ComparisonCount& CountOf(ComparedKind kind) { return result.counts[static_cast<std::size_t>(kind)]; }

    // Those of the first drawing in its order, with what became of them, then those added in theirs.
    void CompareKind(ComparedKind kind, OtherCode otherCode) {
        auto matches = MatchObjects(objects1[kind], objects2[kind], otherCode);
        std::sort(matches.begin(), matches.end(), [](const ObjectMatch& a, const ObjectMatch& b) {
            return a.first != b.first ? a.first < b.first : a.second < b.second;
        });
        const auto isAlone = [](const ObjectMatch& match) {
            return match.first == noObject || match.second == noObject;
        };
        result.differences.reserve(result.differences.size() +
                                   static_cast<std::size_t>(std::count_if(matches.begin(), matches.end(), isAlone)));
        const bool areLines =
            kind == ComparedKind::Segment || kind == ComparedKind::Arc || kind == ComparedKind::Circle;
        for (const ObjectMatch& match : matches) {
            if (match.first == noObject) {
                TellAdded(kind, objects2[kind][match.second]);
            } else if (match.second == noObject) {
                TellMissing(kind, objects1[kind][match.first]);
            } else {
                const ComparedObject& one = objects1[kind][match.first];
                const ComparedObject& other = objects2[kind][match.second];
                CompareMatched(kind, one, other);
                if (!areLines) continue;
                linePairs.emplace_back(Drawing1().Edges[one.index].LineNo, Drawing2().Edges[other.index].LineNo);
            }
        }
        objects1[kind] = Record();
        objects2[kind] = Record();
    }

    void CompareMatched(ComparedKind kind, const ComparedObject& one, const ComparedObject& other) {
        Difference difference{.object = kind, .kind = DifferenceKind::Changed};
        difference.what = Changes(first, one, second, other, kind);
        if (difference.what.empty()) {
            ++CountOf(kind).equal;
            return;
        }
        ++CountOf(kind).changed;
        difference.reason = WhyChanged(first, one, second, other, kind);
        TakeFirst(one, difference);
        TakeSecond(other, difference);
        Add(first, one, std::move(difference));
    }

    void TellMissing(ComparedKind kind, const ComparedObject& one) {
        ++CountOf(kind).missing;
        Difference difference{.object = kind, .kind = DifferenceKind::Missing};
        difference.reason = WhyMissing(first, one, kind);
        TakeFirst(one, difference);
        Add(first, one, std::move(difference));
    }

    void TellAdded(ComparedKind kind, const ComparedObject& other) {
        ++CountOf(kind).added;
        Difference difference{.object = kind, .kind = DifferenceKind::Added};
        difference.reason = WhyAdded(second, other, kind);
        TakeSecond(other, difference);
        Add(second, other, std::move(difference));
    }

    void TakeFirst(const ComparedObject& one, Difference& difference) const {
        difference.firstIndex = one.index;
        difference.firstLine = InputLineOf(Drawing1(), difference.object, one.index);
    }

    void TakeSecond(const ComparedObject& other, Difference& difference) const {
        difference.secondIndex = other.index;
        difference.secondLine = InputLineOf(Drawing2(), difference.object, other.index);
    }

    void Add(const ComparedDrawing& where, const ComparedObject& object, Difference difference) {
        Locate(where, object, difference);
        result.differences.push_back(std::move(difference));
    }

    // What and where an object is, for a person.
    static void Locate(const ComparedDrawing& where, const ComparedObject& object, Difference& difference) {
        const Drawing& drawing = where.translation.drawing;
        difference.code = where.objects.codes[object.code].code;
        switch (difference.object) {
            case ComparedKind::Point:
                difference.place = MetresOf(drawing, object.index);
                break;
            case ComparedKind::TextObject: {
                const TextRec& text = drawing.Texts[object.index];
                const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
                difference.place = MetresOf(drawing, anchor);
                difference.hasPlace = IsPoint(drawing, anchor);
                if (difference.what.empty()) {
                    difference.what = Concat(u"\"", FromWindows1252(text.CharacterBytes().Trimmed()), u"\"");
                }
                break;
            }
            case ComparedKind::Segment: {
                const EdgeRec& edge = drawing.Edges[object.index];
                difference.place = MetresOf(drawing, edge.StartPt);
                difference.end = MetresOf(drawing, edge.EndPt);
                difference.hasPlace = IsPoint(drawing, edge.StartPt) && IsPoint(drawing, edge.EndPt);
                break;
            }
            case ComparedKind::Arc:
            case ComparedKind::Circle: {
                const auto metres = [](std::int64_t millimetres) { return static_cast<double>(millimetres) / 1000; };
                const ComparedPlace& place = object.place;
                difference.place = {metres(place.east), metres(place.north)};
                difference.end = {metres(place.otherEast), metres(place.otherNorth)};
                if (difference.object == ComparedKind::Circle) difference.end = difference.place;
                if (object.isReversed) std::swap(difference.place, difference.end);
                break;
            }
            default:
                break;
        }
    }

    // Line strings whose segments both drawings have: whether they are one line string in both.
    void CompareLineStrings() {
        std::sort(linePairs.begin(), linePairs.end());
        linePairs.erase(std::unique(linePairs.begin(), linePairs.end()), linePairs.end());
        std::map<std::int32_t, std::int32_t> parts2;
        for (const auto& pair : linePairs) ++parts2[pair.second];
        for (std::size_t at = 0; at < linePairs.size();) {
            const auto [line1, line2] = linePairs[at];
            std::size_t end = at;
            while (end < linePairs.size() && linePairs[end].first == line1) ++end;
            CompareLineString(line1, line2, end - at, parts2[line2] > 1);
            at = end;
        }
    }

    void CompareLineString(std::int32_t line1, std::int32_t line2, std::size_t parts, bool isJoined) {
        Difference difference{.object = ComparedKind::LineString, .firstIndex = line1, .secondIndex = line2};
        if (line1 < 1 || line1 > Drawing1().Lines.UpperBound() || line2 < 1 || line2 > Drawing2().Lines.UpperBound()) {
            return;
        }
        if (parts > 1) {
            difference.what = Concat(u"in ", parts, u" lijnstrings");
            difference.reason = u"elk segment wordt een eigen object";
        } else if (isJoined) {
            difference.what = u"samengevoegd met een andere lijnstring";
        } else if (AreBothFromIdex()) {
            difference.what = ChangesOfLine(Drawing1(), Drawing1().Lines[line1], Drawing2(), Drawing2().Lines[line2]);
        }
        if (difference.what.empty()) {
            ++CountOf(ComparedKind::LineString).equal;
            return;
        }
        ++CountOf(ComparedKind::LineString).changed;
        difference.code = objects1.codes[objects1.codeOfLine[static_cast<std::size_t>(line1)]].code;
        difference.firstLine = Drawing1().Lines[line1].InputLine;
        difference.secondLine = Drawing2().Lines[line2].InputLine;
        result.differences.push_back(std::move(difference));
    }

    bool AreBothFromIdex() const {
        return first.translation.mode.direction == Direction::FromIdex &&
               second.translation.mode.direction == Direction::FromIdex;
    }

    // The names and heights that a place of line strings or texts has, of one drawing.
    struct PlaceTexts {
        std::vector<Text> own;  // of the points that are only that
        std::vector<Text> all;  // of objects there too
    };

    // Places of line strings and texts that both drawings have: their points' names and heights.
    void CompareVertices() {
        const std::vector<ComparedVertex> points1 = collector1.Vertices();
        const std::vector<ComparedVertex> points2 = collector2.Vertices();
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

    using Vertices = std::span<const ComparedVertex>;

    void CompareVertex(Vertices points1, Vertices points2) {
        const auto isPlace = [this](const ComparedVertex& point) { return IsPlace(point); };
        const bool is1 = std::any_of(points1.begin(), points1.end(), isPlace);
        const bool is2 = std::any_of(points2.begin(), points2.end(), isPlace);
        if (!is1 && !is2) return;
        Text what =
            ChangesOf(TextsAt(Drawing1(), points1, NameText), TextsAt(Drawing2(), points2, NameText), u"puntnummer");
        const Text heights =
            ChangesOf(TextsAt(Drawing1(), points1, HeightText), TextsAt(Drawing2(), points2, HeightText), u"hoogte");
        if (!heights.empty()) what = what.empty() ? heights : Concat(what, u"; ", heights);
        ComparisonCount& count = CountOf(ComparedKind::Vertex);
        if (what.empty()) {
            ++count.equal;
            return;
        }
        ++count.changed;
        const std::int32_t point1 = points1.front().point;
        const std::int32_t point2 = points2.front().point;
        result.differences.push_back({.object = ComparedKind::Vertex,
                                      .place = MetresOf(Drawing1(), point1),
                                      .firstIndex = point1,
                                      .secondIndex = point2,
                                      .firstLine = Drawing1().Points[point1].InputLine,
                                      .secondLine = Drawing2().Points[point2].InputLine,
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
    bool IsPlace(const ComparedVertex& point) const { return point.isPlace || (point.isCentre && AreBothFromIdex()); }

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

    ObjectCollector collector1;
    ObjectCollector collector2;
    ComparedObjects& objects1 = collector1.objects;
    ComparedObjects& objects2 = collector2.objects;
    SharedCodes codes;
    ComparedDrawing first;
    ComparedDrawing second;
    std::vector<std::pair<std::int32_t, std::int32_t>> linePairs;  // of matched segments
    Comparison result;
};

}  // namespace

Comparison Compare(Translation& first, Translation& second) { return Comparer(first, second).Compare(); }

}  // namespace korvande
