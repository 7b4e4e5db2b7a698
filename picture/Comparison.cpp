#include "picture/Comparison.h"

#include <algorithm>
#include <map>
#include <utility>

#include "picture/DifferenceReasons.h"
#include "picture/DifferenceTexts.h"
#include "picture/ObjectMatching.h"
#include "picture/VertexComparison.h"
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
        CompareVertices({Drawing1(), collector1.Vertices()}, {Drawing2(), collector2.Vertices()}, AreBothFromIdex(),
                        result);
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
            difference.isSplit = true;
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
