#include "nensuf/ExportProblems.h"

#include <cstdint>

#include "nensuf/ExportCodes.h"
#include "nensuf/RecordLayout.h"
#include "nensuf/ThreePointArcs.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Nine columns hold these numbers of millimetres: the sign takes one of them.
constexpr double leastMillimetres = -99'999'999;
constexpr double mostMillimetres = 999'999'999;

// How many coordinates of a place lose digits or their sign. Halves are rounded away from zero.
std::int64_t CutCoordinates(const Options& options, const PointRec& place) {
    // Nearly every coordinate is far from the limits.
    constexpr double least = leastMillimetres / 1000;
    constexpr double most = mostMillimetres / 1000;
    const auto fits = [](double metres) { return metres > least && metres < most; };
    if (fits(place.East) && fits(place.North) && fits(place.Elevation)) return 0;
    const auto cut = [](double metres) -> std::int64_t {
        const double millimetres = metres * 1000;
        return millimetres <= leastMillimetres - 0.5 || millimetres >= mostMillimetres + 0.5 ? 1 : 0;
    };
    const bool hasHeight = options.chkExport3D && place.Elevation != 0;
    return cut(place.East) + cut(place.North) + (hasHeight ? cut(place.Elevation) : 0);
}

// Whether a place one metre from a point may lose what the point does not.
bool IsNearLimit(const PointRec& point) noexcept {
    constexpr double most = (mostMillimetres - 2000) / 1000;
    constexpr double least = (leastMillimetres + 2000) / 1000;
    const auto isFar = [](double metres) { return metres > least && metres < most; };
    return !isFar(point.East) || !isFar(point.North);
}

void TellCutCoordinates(Translation& translation, ObjectKind kind, std::int64_t line, std::int64_t count) {
    if (count > 0) Tell(translation, {.kind = ProblemKind::CoordinateCut, .object = kind, .line = line}, count);
}

void TellRow(Translation& translation, ObjectKind kind, std::int64_t line, const ExportCode& code) {
    if (code.cutsQuality) Tell(translation, {.kind = ProblemKind::QualityCut, .object = kind, .line = line});
    if (code.lacksCharacter) {
        Tell(translation, {.kind = ProblemKind::CharacterNotWritten, .object = kind, .line = line});
    }
}

}  // namespace

void TellPointWritten(Translation& translation, const PointRec& point, const ExportCode& code) {
    const Options& options = translation.options;
    std::int64_t cut = CutCoordinates(options, point);
    if (code.isSymbol && IsNearLimit(point)) cut += CutCoordinates(options, ReferencePlaceOf(options, point));
    TellCutCoordinates(translation, ObjectKind::Point, point.InputLine, cut);
    TellRow(translation, ObjectKind::Point, point.InputLine, code);
}

void TellArcWritten(Translation& translation, const ThreePointArc& arc, const EdgeRec& edge, const ExportCode& code) {
    const Drawing& drawing = translation.drawing;
    const Options& options = translation.options;
    constexpr ObjectKind kind = ObjectKind::LineSegment;
    std::int64_t cut = CutCoordinates(options, drawing.Points[arc.start]) + CutCoordinates(options, arc.middle) +
                       CutCoordinates(options, drawing.Points[arc.end]);
    if (arc.isCircle) cut += 2 * CutCoordinates(options, arc.opposite) + CutCoordinates(options, arc.otherMiddle);
    TellCutCoordinates(translation, kind, edge.InputLine, cut);
    TellRow(translation, kind, edge.InputLine, code);
    if (!arc.keepsCentre)
        Tell(translation, {.kind = ProblemKind::ArcCentreMoved, .object = kind, .line = edge.InputLine});
}

void TellSegmentWritten(Translation& translation, const EdgeRec& edge, std::string_view lineType,
                        const ExportCode& code) {
    const Drawing& drawing = translation.drawing;
    const Options& options = translation.options;
    constexpr ObjectKind kind = ObjectKind::LineSegment;
    const std::int64_t cut =
        CutCoordinates(options, drawing.Points[edge.StartPt]) + CutCoordinates(options, drawing.Points[edge.EndPt]);
    TellCutCoordinates(translation, kind, edge.InputLine, cut);
    TellRow(translation, kind, edge.InputLine, code);
    if (lineType == "STRAIGHT") return;
    const bool isCurve = lineType == "CURVE_3RD" || lineType == "CURVE_4RD";
    Tell(translation, {.kind = isCurve ? ProblemKind::CurveAsStraight : ProblemKind::ArcByEdges,
                       .object = kind,
                       .line = edge.InputLine});
}

void TellTextWritten(Translation& translation, const TextRec& text, const PointRec& anchor, const ExportCode* code) {
    const Options& options = translation.options;
    constexpr ObjectKind kind = ObjectKind::TextObject;
    std::int64_t cut = CutCoordinates(options, anchor);
    if (IsNearLimit(anchor)) cut += CutCoordinates(options, InsertionPlaceOf(text, anchor));
    TellCutCoordinates(translation, kind, text.InputLine, cut);
    if (code != nullptr) TellRow(translation, kind, text.InputLine, *code);
    if (text.CharacterBytes().Trimmed().size() > longestText) {
        Tell(translation, {.kind = ProblemKind::TextCut, .words = Concat(longestText), .line = text.InputLine});
    }
}

}  // namespace korvande
