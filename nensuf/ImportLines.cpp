#include <optional>
#include <utility>

#include "core/Numbers.h"
#include "nensuf/ImportRun.h"
#include "nensuf/modArcFunctions.h"
#include "run/LogBook.h"

namespace korvande {

namespace {

const auto straight = MakeFixedText<12>(u"STRAIGHT");
const auto arcByCentre = MakeFixedText<12>(u"ARC_CENT");
constexpr std::int32_t anticlockwiseFlag = 16;

std::int32_t AppendLineString(const LineCodeRow& row) {
    auto& lines = TheDrawing().Lines;
    LineRec& line = lines.Append();
    line.Code = row.LiscadCode.View();
    line.Description = row.Description.View();
    return lines.UpperBound();
}

// A point of a line string: the line's code and description, no number and no height yet.
PointRec VertexOf(const LineCodeRow& row) {
    PointRec point{};
    point.PointID = TextView();
    point.Code = row.LiscadCode.View();
    point.Description = row.Description.View();
    return point;
}

void AppendEdge(std::int32_t lineNo, std::int32_t start, std::int32_t end, const FixedText<12>& lineType) {
    EdgeRec& edge = TheDrawing().Edges.Append();
    edge.LineNo = lineNo;
    edge.StartPt = start;
    edge.EndPt = end;
    edge.LineType = lineType;
}

PointRec& LastPoint() {
    auto& points = TheDrawing().Points;
    return points[points.UpperBound()];
}

// Looks the group's code up; null when it is unknown and unknown objects are not imported.
const LineCodeRow* RowOf(const ImportRun& run) {
    const std::int32_t row = LookupLineCode(KeyOf(run.group.ObjectCode));
    if (row == 0 && (!run.withUnknowns || LineCodes().rows.empty())) return nullptr;
    return &LineCodes().rows[static_cast<std::size_t>(row)];
}

void ReadLineFields(ImportRun& run, const LineCodeRow& row, std::int32_t lineNo, std::int32_t firstPoint) {
    PointRec vertex = VertexOf(row);
    std::string_view number;  // of an N field that stands directly before an X field
    for (const GroupField& field : run.records.GroupFields()) {
        const std::string_view numberBefore =
            std::exchange(number, field.Key == 'N' ? field.Value : std::string_view());
        switch (field.Key) {
            case 'X': {
                vertex.East = run.frame.X(field.Value);
                vertex.PointID.Assign(numberBefore);
                const std::int32_t index = AddImportedPoint(vertex);
                if (index > firstPoint) AppendEdge(lineNo, index - 1, index, straight);
                break;
            }
            case 'Y':
                LastPoint().North = run.frame.Y(field.Value);
                break;
            case 'Z':
                LastPoint().Elevation = run.frame.Z(field.Value);
                break;
            case 'I':
                if (LeadingNumber(field.Value) == 4) {
                    LogFile().WriteError(u"Boog in lijnstring wordt niet ondersteund");
                }
                break;
            default:
                break;
        }
    }
}

// The arcs of one group, each sharing its end point with the start of the next.
class ArcChain {
 public:
    ArcChain(ImportRun& importRun, const LineCodeRow& codeRow)
        : run(importRun),
          vertex(VertexOf(codeRow)),
          lineNo(AppendLineString(codeRow)),
          arcEnd(TheDrawing().Points.UpperBound() + 3) {}

    // The result is the last arc's; the ones before it are accounted for.
    std::optional<LeftOut> Read() {
        auto& points = TheDrawing().Points;
        for (const GroupField& field : run.records.GroupFields()) {
            switch (field.Key) {
                case 'X':
                    vertex.East = run.frame.X(field.Value);
                    AddImportedPoint(vertex);
                    break;
                case 'Y':
                    LastPoint().North = run.frame.Y(field.Value);
                    break;
                case 'Z':
                    LastPoint().Elevation = run.frame.Z(field.Value);
                    break;
                default:
                    break;
            }
            if (points.UpperBound() > arcEnd) BeginNextArc();
        }
        if (points.UpperBound() >= arcEnd) return FinishArc();
        LogFile().WriteError(u"Ongeldige boog");
        return LeftOut::InvalidArc;
    }

 private:
    void BeginNextArc() {
        SettleObject(ObjectKind::Arc, FinishArc());
        ++TheAccount()[ObjectKind::Arc].read;
        arcEnd += 2;
        auto& lines = TheDrawing().Lines;
        LineRec& line = lines.Append();
        line = lines[lineNo];
        line.Flags1 = 0;  // each arc carries its own direction
        lineNo = lines.UpperBound();
    }

    std::optional<LeftOut> FinishArc() const {
        Drawing& drawing = TheDrawing();
        const PointRec& end = drawing.Points[arcEnd];
        PointRec& middle = drawing.Points[arcEnd - 1];
        const PointRec& start = drawing.Points[arcEnd - 2];
        if (run.selection.Excludes(end) || run.selection.Excludes(middle) || run.selection.Excludes(start)) {
            return LeftOut::OutsideRectangle;
        }
        const ArcCentre arc =
            ArcCentreFrom3Points({start.East, start.North}, {middle.East, middle.North}, {end.East, end.North});
        const FixedText<12>& lineType = arc.direction == 0 ? straight : arcByCentre;
        AppendEdge(lineNo, arcEnd - 2, arcEnd - 1, lineType);
        AppendEdge(lineNo, arcEnd - 1, arcEnd, lineType);
        if (arc.direction == 0) return {};
        middle.East = arc.centre.east;
        middle.North = arc.centre.north;
        middle.PointID = TextView();
        if (arc.direction < 0) drawing.Lines[lineNo].Flags1 = anticlockwiseFlag;
        return {};
    }

    ImportRun& run;
    PointRec vertex;
    std::int32_t lineNo;
    std::int32_t arcEnd;  // the index of the current arc's third point
};

}  // namespace

std::optional<LeftOut> ImportLineGroup(ImportRun& run) {
    Drawing& drawing = TheDrawing();
    const std::int32_t pointsBefore = drawing.Points.UpperBound();
    const std::int32_t linesBefore = drawing.Lines.UpperBound();
    const std::int32_t edgesBefore = drawing.Edges.UpperBound();
    if (!ReadGeometryGroup(run, u"Lijn,")) return LeftOut::MissingRecord;
    const LineCodeRow* const row = RowOf(run);
    if (row == nullptr) return LeftOut::UnknownCode;

    const std::int32_t firstPoint = pointsBefore + 1;
    ReadLineFields(run, *row, AppendLineString(*row), firstPoint);

    // Only the first point decides: a line that starts inside is kept whole, one that starts outside goes whole.
    if (!run.selection.isOn) return {};
    const std::int32_t lastPoint = drawing.Points.UpperBound();
    if (lastPoint >= firstPoint && run.selection.Contains(drawing.Points[firstPoint])) return {};
    for (std::int32_t index = firstPoint; index <= lastPoint; ++index) drawing.PointIndex.Set(index, 0);
    drawing.Points.CutTo(pointsBefore);
    drawing.Lines.CutTo(linesBefore);
    drawing.Edges.CutTo(edgesBefore);
    return LeftOut::OutsideRectangle;
}

std::optional<LeftOut> ImportArcGroup(ImportRun& run) {
    if (!ReadGeometryGroup(run, u"Boog;")) return LeftOut::MissingRecord;
    const LineCodeRow* const row = RowOf(run);
    if (row == nullptr) return LeftOut::UnknownCode;
    return ArcChain(run, *row).Read();
}

}  // namespace korvande
