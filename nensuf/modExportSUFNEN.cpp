#include "nensuf/modExportSUFNEN.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "nensuf/ExportCodes.h"
#include "nensuf/ExportHeader.h"
#include "nensuf/ExportProblems.h"
#include "nensuf/ExportRecords.h"
#include "nensuf/ExportStatistics.h"
#include "nensuf/RecordLayout.h"
#include "nensuf/ThreePointArcs.h"
#include "translation/CodeLookups.h"
#include "translation/Files.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The codes of one kind of object, by the numbers that the drawing keeps them under: each is looked up in its table
// once, and counted for every object.
class CodesOfObjects {
 public:
    CodesOfObjects(CodeTable& itsTable, UnknownCodeTally* tally, std::size_t keptCodes, ExportCodes& itsCodes)
        : table(itsTable), unknowns(tally), codes(itsCodes), rows(keptCodes, notLookedUp) {}

    const ExportCode& Look(KeptNumber number, const FixedBytes<7>& code) {
        std::int32_t& row = rows[number];
        if (row == notLookedUp) row = FindLiscadCode(table, code.Wide());
        if (row == 0) {
            CountLookup(table, unknowns, code.Wide(), row);
        } else {
            CountUse(table, row);
        }
        return codes[row];
    }

 private:
    static constexpr std::int32_t notLookedUp = -1;

    CodeTable& table;
    UnknownCodeTally* unknowns;  // null: none are tallied
    ExportCodes& codes;
    std::vector<std::int32_t> rows;
};

// How segments are written, by the numbers of their line types: nothing for a type that is not written.
using SegmentShapes = std::vector<std::optional<SegmentShape>>;

std::optional<SegmentShape> ShapeOf(std::string_view lineType) {
    if (lineType == "STRAIGHT" || lineType == "CURVE_3RD" || lineType == "CURVE_4RD") return SegmentShape::Straight;
    if (lineType == "ARC_CENT" || lineType == "CIRCLE_CENT") return SegmentShape::Arc;
    return {};
}

SegmentShapes ShapesOf(const Drawing& drawing) {
    SegmentShapes shapes;
    for (KeptNumber number = 0; number < drawing.LineTypes.Count(); ++number) {
        shapes.push_back(ShapeOf(drawing.LineTypes[number].TrimmedRight()));
    }
    return shapes;
}

// What the steps of one export share.
struct ExportRun {
    explicit ExportRun(Translation& itsTranslation)
        : translation(itsTranslation),
          unknowns(TallyOf(itsTranslation)),
          style(PrepareRecordStyle(itsTranslation)),
          shapes(ShapesOf(itsTranslation.drawing)) {
        if (translation.options.chkThreePointArcs) arcs = ThreePointArcs(translation.drawing);
    }

    Translation& translation;
    UnknownCodeTally* unknowns;  // null: none are tallied
    RecordStyle style;
    SegmentShapes shapes;
    ThreePointArcs arcs;  // those to be written as such
};

// Exporting an object answers with the reason why it was left out, or with nothing when it was written.
using WhyLeftOut = std::optional<LeftOut>;

// Points

WhyLeftOut ExportPoint(ExportRun& run, std::int32_t index, CodesOfObjects& codes) {
    Translation& translation = run.translation;
    const Drawing& drawing = translation.drawing;
    const PointRec& point = drawing.Points[index];
    const ExportCode& code = codes.Look(Drawing::KindOf(point), drawing.CodeBytes(point));
    if (!code.isWritten) return code.reason;
    WritePoint(translation.output, run.style, point, code);
    TellPointWritten(translation, point, code);
    return {};
}

// Lines

// An object that refers to what was never read is a problem.
LeftOut ReportNoReference(Translation& translation, ProblemKind kind, TextView object, std::int32_t index) {
    Report(translation, {.kind = kind, .words = Text(object), .number = index});
    return LeftOut::NoReference;
}

// Writes an arc or a circle, of which the segment is the first half, instead of it.
void ExportArc(ExportRun& run, const ThreePointArc& arc, const EdgeRec& edge, const ExportCode& code) {
    Translation& translation = run.translation;
    const PointRec& start = translation.drawing.Points[arc.start];
    const PointRec& end = translation.drawing.Points[arc.end];
    WriteArc(translation.output, run.style, start, arc.middle, arc.isCircle ? arc.opposite : end, code);
    if (arc.isCircle) WriteArc(translation.output, run.style, arc.opposite, arc.otherMiddle, end, code);
    TellArcWritten(translation, arc, edge, code);
}

WhyLeftOut ExportSegment(ExportRun& run, std::int32_t index, CodesOfObjects& codes) {
    Translation& translation = run.translation;
    const Drawing& drawing = translation.drawing;
    const EdgeRec& edge = drawing.Edges[index];
    const auto isPoint = [&](std::int32_t point) { return point >= 1 && point <= drawing.Points.UpperBound(); };
    if (!isPoint(edge.StartPt) || !isPoint(edge.EndPt)) {
        return ReportNoReference(translation, ProblemKind::UnknownPoint, u"Lijnsegment", index);
    }
    if (edge.LineNo < 1 || edge.LineNo > drawing.Lines.UpperBound()) {
        return ReportNoReference(translation, ProblemKind::UnknownLine, u"Lijnsegment", index);
    }
    const LineRec& line = drawing.Lines[edge.LineNo];
    const ExportCode& code = codes.Look(Drawing::KindOf(line), drawing.CodeBytes(line));
    if (!code.isWritten) return code.reason;
    if (run.arcs.IsSecondHalf(index)) return {};
    if (const ThreePointArc* const arc = run.arcs.BeginningAt(index)) {
        ExportArc(run, *arc, edge, code);
        return {};
    }
    const auto shape = run.shapes[Drawing::LineTypeNumber(edge)];
    if (!shape) return LeftOut::LineType;
    WriteSegment(translation.output, run.style, drawing.Points[edge.StartPt], drawing.Points[edge.EndPt], *shape, code);
    TellSegmentWritten(translation, edge, drawing.LineTypeBytes(edge).TrimmedRight(), code);
    return {};
}

// Texts

WhyLeftOut ExportText(ExportRun& run, std::int32_t index, CodesOfObjects& codes) {
    Translation& translation = run.translation;
    const Drawing& drawing = translation.drawing;
    const TextRec& text = drawing.Texts[index];
    if (text.CharacterBytes().IsBlank()) return LeftOut::EmptyText;
    const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
    if (anchor == 0) return ReportNoReference(translation, ProblemKind::UnknownPoint, u"Tekst", index);
    if (drawing.CodeBytes(text).View().front() == lkiCodeMark) {
        WriteGeneratedText(translation.output, run.style, drawing.Points[anchor], drawing, text);
        TellTextWritten(translation, text, drawing.Points[anchor], nullptr);
        return {};
    }
    const ExportCode& code = codes.Look(Drawing::CodeNumber(text), drawing.CodeBytes(text));
    if (!code.isWritten) return code.reason;
    WriteText(translation.output, run.style, drawing.Points[anchor], text, code);
    TellTextWritten(translation, text, drawing.Points[anchor], &code);
    return {};
}

// The run

constexpr std::array<ObjectKind, 3> exportedKinds = {ObjectKind::Point, ObjectKind::LineSegment,
                                                     ObjectKind::TextObject};

std::int32_t CountOf(const Drawing& drawing, ObjectKind kind) {
    switch (kind) {
        case ObjectKind::Point:
            return drawing.Points.UpperBound();
        case ObjectKind::LineSegment:
            return drawing.Edges.UpperBound();
        default:
            return drawing.Texts.UpperBound();
    }
}

// The account of the drawing's objects begins with all of them read; an export that ends early has not come to the
// rest.
void CountObjectsRead(ObjectAccount& account, const Drawing& drawing) {
    for (const ObjectKind kind : exportedKinds) account[kind].read += CountOf(drawing, kind);
}

void LeaveTheRestUnfinished(Translation& translation) {
    for (const ObjectKind kind : exportedKinds) {
        const KindAccount& objects = translation.account[kind];
        LeaveUnfinished(translation, kind, objects.read - objects.written - objects.LeftOutTotal());
    }
}

// Accounts for an object that was not written, and tells it with its line of the input, and a segment with its type.
void LeaveOutOfExport(Translation& translation, ObjectKind kind, std::int32_t index, LeftOut reason) {
    const Drawing& drawing = translation.drawing;
    switch (kind) {
        case ObjectKind::Point:
            return LeaveOut(translation, kind, reason, drawing.Points[index].InputLine);
        case ObjectKind::LineSegment: {
            const EdgeRec& edge = drawing.Edges[index];
            if (reason != LeftOut::LineType) return LeaveOut(translation, kind, reason, edge.InputLine);
            const Text lineType = FromWindows1252(drawing.LineTypeBytes(edge).Trimmed());
            return LeaveOut(translation, kind, reason, edge.InputLine, lineType.empty() ? u"(leeg)" : lineType);
        }
        default:
            return LeaveOut(translation, kind, reason, drawing.Texts[index].InputLine);
    }
}

using ExportObject = WhyLeftOut(ExportRun& run, std::int32_t index, CodesOfObjects& codes);

// One step: exports all objects of a kind and accounts for each.
void ExportEach(ExportRun& run, ObjectKind kind, ExportObject exportObject, CodeTable& table, std::size_t keptCodes) {
    ExportCodes rowCodes(table, kind, run.style, run.translation.options.chkExportUnknowns);
    CodesOfObjects codes(table, run.unknowns, keptCodes, rowCodes);
    Screen& screen = run.translation.screen;
    const std::int32_t count = CountOf(run.translation.drawing, kind);
    BeginProgress(screen, count);
    for (std::int32_t index = 1; index <= count; ++index) {
        if (const WhyLeftOut reason = exportObject(run, index, codes)) {
            LeaveOutOfExport(run.translation, kind, index, *reason);
        } else {
            ++run.translation.account[kind].written;
        }
        StepProgress(screen, index);
    }
}

bool OpenExportFile(Translation& translation) {
    const Text& name = translation.SufNenFileName;
    try {
        OpenOutput(translation, name);
        return true;
    } catch (const RuntimeError& error) {
        const Problem problem{.kind = ProblemKind::ExportNotOpened, .number = error.Number(), .name = name};
        translation.outcome.outputFailed = true;
        Report(translation, problem);
        ShowMessage(translation.screen, Sentence(problem));
        return false;
    }
}

void WriteExportFile(Translation& translation) {
    ExportRun run(translation);
    CodeTables& codes = translation.codes;
    const Drawing& drawing = translation.drawing;
    Screen& screen = translation.screen;
    WriteExportHeader(translation.output, translation.mode.variant, translation.owner);
    screen.ShowStatus(u"Schrijven Exportbestand: Symbolen");
    ExportEach(run, ObjectKind::Point, ExportPoint, codes.points, drawing.PointKinds.Count());
    screen.ShowStatus(u"Schrijven Exportbestand: Lijnen");
    ExportEach(run, ObjectKind::LineSegment, ExportSegment, codes.lines, drawing.LineKinds.Count());
    screen.ShowStatus(u"Schrijven Exportbestand: Teksten");
    ExportEach(run, ObjectKind::TextObject, ExportText, codes.texts, drawing.TextCodes.Count());
    WriteClosingRecord(translation.output);
    translation.output.Close();
}

}  // namespace

void ExportSufNen(Translation& translation) {
    translation.screen.ShowStatus(u"Schrijven Exportbestand: Voorbereiden");
    CountObjectsRead(translation.account, translation.drawing);
    if (!OpenExportFile(translation)) return LeaveTheRestUnfinished(translation);
    try {
        WriteExportFile(translation);
    } catch (const TranslationAborted&) {
        LeaveTheRestUnfinished(translation);
        throw;
    } catch (const std::exception&) {
        LeaveTheRestUnfinished(translation);
        translation.outcome.outputFailed = true;
        throw;
    }
    WriteExportStatistics(translation);
}

}  // namespace korvande
