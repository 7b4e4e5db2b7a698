#include "nensuf/modExportSUFNEN.h"

#include <array>
#include <optional>

#include "nensuf/ExportCodes.h"
#include "nensuf/ExportHeader.h"
#include "nensuf/ExportProblems.h"
#include "nensuf/ExportRecords.h"
#include "nensuf/ExportStatistics.h"
#include "nensuf/RecordLayout.h"
#include "translation/CodeLookups.h"
#include "translation/Files.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// What the steps of one export share.
struct ExportRun {
    explicit ExportRun(Translation& itsTranslation)
        : translation(itsTranslation), unknowns(TallyOf(itsTranslation)), style(PrepareRecordStyle(itsTranslation)) {}

    Translation& translation;
    UnknownCodeTally* unknowns;  // null: none are tallied
    RecordStyle style;
};

// Exporting an object answers with the reason why it was left out, or with nothing when it was written.
using WhyLeftOut = std::optional<LeftOut>;

const ExportCode& CodeAt(const ExportCodes& codes, std::int32_t row) { return codes[static_cast<std::size_t>(row)]; }

// Points

WhyLeftOut ExportPoint(ExportRun& run, std::int32_t index, const ExportCodes& codes) {
    Translation& translation = run.translation;
    const Drawing& drawing = translation.drawing;
    const PointRec& point = drawing.Points[index];
    const ExportCode& code =
        CodeAt(codes, LookupPointByLiscadCode(translation.codes.points, run.unknowns, drawing.Code(point)));
    if (!code.isWritten) return code.reason;
    WritePoint(translation.output, run.style, point, code);
    TellPointWritten(translation, point, code);
    return {};
}

// Lines

// Nothing for a line type that is not written.
std::optional<SegmentShape> ShapeOf(TextView lineType) {
    if (lineType == u"STRAIGHT" || lineType == u"CURVE_3RD" || lineType == u"CURVE_4RD") return SegmentShape::Straight;
    if (lineType == u"ARC_CENT" || lineType == u"CIRCLE_CENT") return SegmentShape::Arc;
    return {};
}

// An object that refers to what was never read is a problem.
LeftOut ReportNoReference(Translation& translation, ProblemKind kind, TextView object, std::int32_t index) {
    Report(translation, {.kind = kind, .words = Text(object), .number = index});
    return LeftOut::NoReference;
}

WhyLeftOut ExportSegment(ExportRun& run, std::int32_t index, const ExportCodes& codes) {
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
    const ExportCode& code = CodeAt(
        codes, LookupLineByLiscadCode(translation.codes.lines, run.unknowns, drawing.Code(drawing.Lines[edge.LineNo])));
    if (!code.isWritten) return code.reason;
    const TextView lineType = drawing.LineType(edge).TrimmedRight();
    const auto shape = ShapeOf(lineType);
    if (!shape) return LeftOut::LineType;
    WriteSegment(translation.output, run.style, drawing.Points[edge.StartPt], drawing.Points[edge.EndPt], *shape, code);
    TellSegmentWritten(translation, edge, lineType, code);
    return {};
}

// Texts

WhyLeftOut ExportText(ExportRun& run, std::int32_t index, const ExportCodes& codes) {
    Translation& translation = run.translation;
    const Drawing& drawing = translation.drawing;
    const TextRec& text = drawing.Texts[index];
    if (text.Characters().IsBlank()) return LeftOut::EmptyText;
    const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
    if (anchor == 0) return ReportNoReference(translation, ProblemKind::UnknownPoint, u"Tekst", index);
    if (drawing.Code(text).View().front() == lkiCodeMark) {
        WriteGeneratedText(translation.output, run.style, drawing.Points[anchor], drawing, text);
        TellTextWritten(translation, text, drawing.Points[anchor], nullptr);
        return {};
    }
    const ExportCode& code =
        CodeAt(codes, LookupTextByLiscadCode(translation.codes.texts, run.unknowns, drawing.Code(text)));
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
            const TextView lineType = Trim(drawing.LineType(edge).View());
            return LeaveOut(translation, kind, reason, edge.InputLine, lineType.empty() ? u"(leeg)" : lineType);
        }
        default:
            return LeaveOut(translation, kind, reason, drawing.Texts[index].InputLine);
    }
}

using ExportObject = WhyLeftOut(ExportRun& run, std::int32_t index, const ExportCodes& codes);

// One step: exports all objects of a kind and accounts for each.
void ExportEach(ExportRun& run, ObjectKind kind, ExportObject exportObject, const ExportCodes& codes) {
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
    const CodeTables& codes = translation.codes;
    const Variant variant = translation.mode.variant;
    const bool withUnknowns = translation.options.chkExportUnknowns;
    Screen& screen = translation.screen;
    WriteExportHeader(translation.output, variant, translation.owner);
    screen.ShowStatus(u"Schrijven Exportbestand: Symbolen");
    ExportEach(run, ObjectKind::Point, ExportPoint, PreparePointCodes(codes.points, variant, withUnknowns));
    screen.ShowStatus(u"Schrijven Exportbestand: Lijnen");
    ExportEach(run, ObjectKind::LineSegment, ExportSegment, PrepareLineCodes(codes.lines, variant, withUnknowns));
    screen.ShowStatus(u"Schrijven Exportbestand: Teksten");
    ExportEach(run, ObjectKind::TextObject, ExportText, PrepareTextCodes(codes.texts, variant, withUnknowns));
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
