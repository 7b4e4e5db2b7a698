#include "nensuf/ImportLines.h"

#include <utility>

#include "core/LinePieces.h"
#include "core/Numbers.h"
#include "nensuf/ImportProblems.h"
#include "nensuf/modArcFunctions.h"
#include "translation/CodeLookups.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The line string of the group being imported, with its row in the table of lines.
std::int32_t AppendLineString(ImportRun& run, const ObjectRow& row) {
    Drawing& drawing = run.translation.drawing;
    LineRec& line = drawing.Lines.Append();
    line.InputLine = static_cast<std::int32_t>(run.group.line);
    run.lineKinds.Mark(line, row);
    return drawing.Lines.UpperBound();
}

// A point of a line string: the line's code and description, no number and no height yet.
PointRec VertexOf(ImportRun& run, const ObjectRow& row) {
    PointRec point{};
    point.SetPointID(std::string_view());
    run.vertexKinds.Mark(point, row);
    return point;
}

void AppendEdge(Drawing& drawing, std::int32_t lineNo, std::int32_t start, std::int32_t end, KeptNumber lineType) {
    EdgeRec& edge = drawing.Edges.Append();
    edge.InputLine = drawing.Points[end].InputLine;
    edge.LineNo = lineNo;
    edge.StartPt = start;
    edge.EndPt = end;
    Drawing::SetLineTypeNumber(edge, lineType);
}

PointRec& LastPoint(Drawing& drawing) { return drawing.Points[drawing.Points.UpperBound()]; }

// Looks the group's code up: its row, or nothing when it is unknown and unknown objects are not imported.
std::optional<ObjectRow> RowOf(ImportRun& run) {
    CodeTable& lines = run.translation.codes.lines;
    const CodeKey code = KeyOf(run.group.ObjectCode);
    const std::int32_t row = LookupLineCode(lines, run.unknowns, code);
    if (row == 0 && (!run.withUnknowns || lines.rows.empty())) return {};
    return RowFor(run, row, code);
}

// Whether the number that an I field begins with is that of an arc.
bool IsArcMark(std::string_view value) {
    const bool isOneDigit = value[0] >= '0' && value[0] <= '9' && value[1] == ' ';
    return isOneDigit ? value[0] == '4' : LeadingNumber(value) == 4;
}

void ReadLineFields(ImportRun& run, const ObjectRow& row, std::int32_t lineNo, std::int32_t firstPoint) {
    Drawing& drawing = run.translation.drawing;
    PointRec vertex = VertexOf(run, row);
    CoordinateWatch watch;
    std::string_view number;  // of an N field that stands directly before an X field
    bool isNamed = false;     // the vertex
    for (const GroupField& field : run.records.GroupFields()) {
        watch.See(field);
        const std::string_view numberBefore =
            std::exchange(number, field.Key == 'N' ? field.Value : std::string_view());
        if (!numberBefore.empty() && field.Key != 'X') watch.LeaveNumber(numberBefore, field.Line);
        switch (field.Key) {
            case 'X': {
                vertex.InputLine = static_cast<std::int32_t>(field.Line);
                vertex.East = run.frame.X(field);
                if (!numberBefore.empty() || isNamed) vertex.SetPointID(numberBefore);
                isNamed = !numberBefore.empty();
                const std::int32_t index = AddImportedPoint(drawing, vertex);
                if (index > firstPoint) AppendEdge(drawing, lineNo, index - 1, index, run.straight);
                break;
            }
            case 'Y':
                LastPoint(drawing).North = run.frame.Y(field);
                break;
            case 'Z':
                LastPoint(drawing).Elevation = run.frame.Z(field);
                break;
            case 'I':
                if (IsArcMark(field.Value)) {
                    Report(run.translation, {.kind = ProblemKind::ArcInLineString});
                }
                break;
            default:
                break;
        }
    }
    if (!number.empty()) watch.LeaveNumber(number, run.records.GroupFields().back().Line);
    watch.Tell(run.translation);
}

// The arcs of one group, each sharing its end point with the start of the next.
class ArcChain {
 public:
    ArcChain(ImportRun& importRun, const ObjectRow& row)
        : run(importRun),
          drawing(importRun.translation.drawing),
          vertex(VertexOf(importRun, row)),
          lineNo(AppendLineString(importRun, row)),
          arcEnd(drawing.Points.UpperBound() + 3) {}

    // The result is the last arc's; the ones before it are accounted for.
    std::optional<LeftOut> Read() {
        const auto& points = drawing.Points;
        CoordinateWatch watch;
        for (const GroupField& field : run.records.GroupFields()) {
            watch.See(field);
            switch (field.Key) {
                case 'N':
                    DropNumber(field);
                    break;
                case 'X':
                    vertex.InputLine = static_cast<std::int32_t>(field.Line);
                    vertex.East = run.frame.X(field);
                    AddImportedPoint(drawing, vertex);
                    break;
                case 'Y':
                    LastPoint(drawing).North = run.frame.Y(field);
                    break;
                case 'Z':
                    LastPoint(drawing).Elevation = run.frame.Z(field);
                    break;
                default:
                    break;
            }
            if (points.UpperBound() > arcEnd) BeginNextArc();
        }
        watch.Tell(run.translation);
        if (points.UpperBound() >= arcEnd) return FinishArc();
        Report(run.translation, {.kind = ProblemKind::InvalidArc});
        return LeftOut::InvalidArc;
    }

 private:
    void DropNumber(const GroupField& field) {
        if (Trim(field.Value).empty()) return;
        Tell(run.translation, {.kind = ProblemKind::ArcNumberDropped, .line = field.Line});
    }

    void BeginNextArc() {
        SettleObject(run, ObjectKind::Arc, FinishArc());
        ++run.translation.account[ObjectKind::Arc].read;
        arcEnd += 2;
        auto& lines = drawing.Lines;
        LineRec& line = lines.Append();
        line = lines[lineNo];
        line.Flags1 = 0;  // each arc carries its own direction
        lineNo = lines.UpperBound();
    }

    std::optional<LeftOut> FinishArc() {
        const PointRec& end = drawing.Points[arcEnd];
        PointRec& middle = drawing.Points[arcEnd - 1];
        const PointRec& start = drawing.Points[arcEnd - 2];
        if (run.selection.Excludes(end) || run.selection.Excludes(middle) || run.selection.Excludes(start)) {
            return LeftOut::OutsideRectangle;
        }
        const ArcCentre arc = ArcCentreFrom3Points({start.East, start.North}, {middle.East, middle.North},
                                                   {end.East, end.North}, run.translation.crossingsFound);
        const KeptNumber lineType = arc.direction == 0 ? run.straight : run.arcByCentre;
        AppendEdge(drawing, lineNo, arcEnd - 2, arcEnd - 1, lineType);
        AppendEdge(drawing, lineNo, arcEnd - 1, arcEnd, lineType);
        if (arc.direction == 0) return {};
        middle.East = arc.centre.east;
        middle.North = arc.centre.north;
        middle.SetPointID(std::string_view());
        if (arc.direction < 0) drawing.Lines[lineNo].Flags1 = anticlockwiseFlag;
        return {};
    }

    ImportRun& run;
    Drawing& drawing;
    PointRec vertex;
    std::int32_t lineNo;
    std::int32_t arcEnd;  // the index of the current arc's third point
};

// A line string without any segment, which stays all the same.
void TellNoCoordinates(ImportRun& run) {
    Tell(run.translation,
         {.kind = ProblemKind::GroupWithoutCoordinates, .object = ObjectKind::LineString, .line = run.group.line});
}

}  // namespace

std::optional<LeftOut> ImportLineGroup(ImportRun& run) {
    Drawing& drawing = run.translation.drawing;
    const std::int32_t pointsBefore = drawing.Points.UpperBound();
    const std::int32_t linesBefore = drawing.Lines.UpperBound();
    const std::int32_t edgesBefore = drawing.Edges.UpperBound();
    if (!ReadGeometryGroup(run, u"Lijn,")) return LeftOut::MissingRecord;
    const std::optional<ObjectRow> row = RowOf(run);
    if (!row) return LeftOut::UnknownCode;

    const std::int32_t firstPoint = pointsBefore + 1;
    ReadLineFields(run, *row, AppendLineString(run, *row), firstPoint);

    // Only the first point decides: a line that starts inside is kept whole, one that starts outside goes whole.
    const std::int32_t lastPoint = drawing.Points.UpperBound();
    if (!run.selection.isOn) {
        if (lastPoint < firstPoint) TellNoCoordinates(run);
        return {};
    }
    if (lastPoint >= firstPoint && run.selection.Contains(drawing.Points[firstPoint])) return {};
    for (std::int32_t index = firstPoint; index <= lastPoint; ++index) drawing.PointIndex.Set(index, 0);
    drawing.Points.CutTo(pointsBefore);
    drawing.Lines.CutTo(linesBefore);
    drawing.Edges.CutTo(edgesBefore);
    return LeftOut::OutsideRectangle;
}

std::optional<LeftOut> ImportArcGroup(ImportRun& run) {
    if (!ReadGeometryGroup(run, u"Boog;")) return LeftOut::MissingRecord;
    const std::optional<ObjectRow> row = RowOf(run);
    if (!row) return LeftOut::UnknownCode;
    return ArcChain(run, *row).Read();
}

}  // namespace korvande
