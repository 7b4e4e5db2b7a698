#include "nensuf/modExportSUFNEN.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "core/modAzimuth.h"
#include "core/modKORVANDE.h"
#include "core/modLineIntraVerse.h"
#include "core/modScreen.h"
#include "nensuf/ExportCodes.h"
#include "nensuf/ExportHeader.h"
#include "nensuf/ExportStatistics.h"
#include "nensuf/RecordLayout.h"
#include "project/CodeTables.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"

namespace korvande {

namespace {

// Closing flags: whether the object's group has more records.
constexpr int goesOn = 0;
constexpr int closesGroup = 1;

constexpr std::size_t longestText = 40;
constexpr std::string_view heightTextCount = "09";  // whatever the length of the height

// What a 03 record holds behind the LKI code, by what the object is: G marker (7 columns, blank for a text, which has
// no geometry of its own), source kind (1), "1   ", fieldwork date (10, or nothing) and source block (10).
struct CodeRecordTails {
    std::string point;
    std::string line;
    std::string arc;
    std::string text;
};

CodeRecordTails PrepareCodeRecordTails() {
    const bool nen = TheRun().ExportNen;
    const int sourceKind = std::max(frmKORVANDE().lstSource.index, 0);
    const std::string rest = std::to_string(sourceKind) + "1   " + FormatFieldworkDate() + FormatSourceBlock();
    return {.point = (nen ? "  G0101" : "  G 10 ") + rest,
            .line = (nen ? "  G1201" : "  G 30 ") + rest,
            .arc = (nen ? "  G1301" : "  G 40 ") + rest,
            .text = "       " + rest};
}

// Writes a record and empties it for the next one.
void Write(RecordText& record, int closingFlag, std::string_view tail = {}) {
    WriteRecord(record, tail, closingFlag);
    record.Clear();
}

// The coordinate fields of the place one metre from a point in a direction (grads, clockwise from north), at the
// point's height and without a name. It stands in the scratch point.
RecordText FormatPlaceBeside(const PointRec& point, double direction) {
    const Position place = PolarPoint(point.East, point.North, GradsToRadians(direction), 1);
    PointRec& scratch = TheDrawing().Points[0];
    scratch.PointID = u"";
    scratch.East = place.east;
    scratch.North = place.north;
    scratch.Elevation = point.Elevation;
    return FormatCoordinates(0);
}

// Points

// The direction of a symbol's P1 to P2: its own, or with chkExportSymRotation the one that makes it its north.
double ReferenceDirection(const PointRec& point) {
    const double direction = MirrorGrads(point.SymDir);
    return frmKORVANDE().chkExportSymRotation ? NormalizeGrads(direction - 100) : direction;
}

void WritePoint(std::int32_t index, const ExportCode& code, const CodeRecordTails& tails) {
    const PointRec& point = TheDrawing().Points[index];
    const RecordText coordinates = FormatCoordinates(index);
    RecordText record;
    record.Put("03M", code.lkiCode, tails.point);
    Write(record, goesOn);
    record.Put("04I1        ", coordinates.View());
    Write(record, goesOn, code.quality);
    record.Put("05F112      ", coordinates.View());
    Write(record, goesOn);
    if (code.isSymbol) {
        record.Put("05F012", std::string_view(code.lkiCode).substr(4), "   ", coordinates.View(),
                   FormatPlaceBeside(point, ReferenceDirection(point)).View());
        Write(record, goesOn);
    }
    record.Put("06A20T", code.description);
    Write(record, closesGroup);
}

// Exporting an object answers with the reason why it was left out, or with nothing when it was written.
using WhyLeftOut = std::optional<LeftOut>;

WhyLeftOut ExportPoint(std::int32_t index, const ExportCodes& codes, const CodeRecordTails& tails) {
    const std::int32_t row = LookupPointByLiscadCode(TheDrawing().Points[index].Code);
    const ExportCode& code = codes[static_cast<std::size_t>(row)];
    if (!code.isWritten) return code.reason;
    WritePoint(index, code, tails);
    return {};
}

// Lines

enum class Shape { Straight, Arc, Other };

Shape ShapeOf(TextView lineType) {
    if (lineType == u"STRAIGHT" || lineType == u"CURVE_3RD" || lineType == u"CURVE_4RD") return Shape::Straight;
    if (lineType == u"ARC_CENT" || lineType == u"CIRCLE_CENT") return Shape::Arc;
    return Shape::Other;
}

// An object that refers to what was never read is told in the log book.
LeftOut ReportNoReference(TextView object, std::int32_t index, TextView reference) {
    LogFile().WriteError(Concat(object, u" ", index, u" verwijst naar een ", reference));
    return LeftOut::NoReference;
}

void WriteSegment(const EdgeRec& edge, Shape shape, const ExportCode& code, const CodeRecordTails& tails) {
    const bool isArc = shape == Shape::Arc;
    RecordText record;
    record.Put("03M", code.lkiCode, isArc ? tails.arc : tails.line);
    Write(record, goesOn);
    record.Put("04I1        ", FormatCoordinates(edge.StartPt).View(), isArc ? "I4        " : "I2        ",
               FormatCoordinates(edge.EndPt).View());
    Write(record, closesGroup, code.quality);
}

WhyLeftOut ExportSegment(std::int32_t index, const ExportCodes& codes, const CodeRecordTails& tails) {
    const Drawing& drawing = TheDrawing();
    const EdgeRec& edge = drawing.Edges[index];
    const auto isPoint = [&](std::int32_t point) { return point >= 1 && point <= drawing.Points.UpperBound(); };
    if (!isPoint(edge.StartPt) || !isPoint(edge.EndPt)) {
        return ReportNoReference(u"Lijnsegment", index, u"onbekend punt");
    }
    if (edge.LineNo < 1 || edge.LineNo > drawing.Lines.UpperBound()) {
        return ReportNoReference(u"Lijnsegment", index, u"onbekende lijn");
    }
    const std::int32_t row = LookupLineByLiscadCode(drawing.Lines[edge.LineNo].Code);
    const ExportCode& code = codes[static_cast<std::size_t>(row)];
    if (!code.isWritten) return code.reason;
    const Shape shape = ShapeOf(edge.LineType.TrimmedRight());
    if (shape == Shape::Other) return LeftOut::LineType;
    WriteSegment(edge, shape, code, tails);
    return {};
}

// Texts

// A text made from point data holds its LKI code behind the mark and is not looked up.
bool IsGenerated(const TextRec& text) { return text.Code.characters[0] == lkiCodeMark; }

// The count field of a text's 06 record: two digits.
void PutTextCount(RecordText& record, const TextRec& text, std::size_t length) {
    if (IsGenerated(text) && text.AnchorPosition == heightAnchor) {
        record.Put(heightTextCount);
    } else {
        const std::array<char, 2> digits = {static_cast<char>('0' + length / 10), static_cast<char>('0' + length % 10)};
        record.Put(std::string_view(digits.data(), digits.size()));
    }
}

void WriteText(const TextRec& text, std::int32_t anchor, std::string_view lkiCode, const CodeRecordTails& tails) {
    RecordText record;
    record.Put("03M", lkiCode, tails.text);
    Write(record, goesOn);
    record.Put("05F111      ", FormatCoordinates(anchor).View(),
               FormatPlaceBeside(TheDrawing().Points[anchor], MirrorGrads(text.HzDirection)).View(),
               TheRun().ExportNen ? "K" : "Q", lkiCode);
    Write(record, goesOn);
    const TextView characters = text.Text.Trimmed().substr(0, longestText);
    record.Put("06A");
    PutTextCount(record, text, characters.size());
    record.Put("T", characters);
    Write(record, closesGroup);
}

WhyLeftOut ExportText(std::int32_t index, const ExportCodes& codes, const CodeRecordTails& tails) {
    const Drawing& drawing = TheDrawing();
    const TextRec& text = drawing.Texts[index];
    if (text.Text.IsBlank()) return LeftOut::EmptyText;
    const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
    if (anchor == 0) return ReportNoReference(u"Tekst", index, u"onbekend punt");
    if (IsGenerated(text)) {
        RecordText lkiCode;
        lkiCode.Put(text.Code.View().substr(1), " ");
        WriteText(text, anchor, lkiCode.View(), tails);
        return {};
    }
    const ExportCode& code = codes[static_cast<std::size_t>(LookupTextByLiscadCode(text.Code))];
    if (!code.isWritten) return code.reason;
    WriteText(text, anchor, code.lkiCode, tails);
    return {};
}

// The run

constexpr std::array exportedKinds = {ObjectKind::Point, ObjectKind::LineSegment, ObjectKind::TextObject};

std::int32_t CountOf(ObjectKind kind) {
    const Drawing& drawing = TheDrawing();
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
void CountObjectsRead() {
    for (const ObjectKind kind : exportedKinds) TheAccount()[kind].read += CountOf(kind);
}

void LeaveTheRestUnfinished() {
    for (const ObjectKind kind : exportedKinds) {
        const KindAccount& account = TheAccount()[kind];
        TheAccount().Leave(kind, LeftOut::Unfinished, account.read - account.written - account.LeftOutTotal());
    }
}

using ExportObject = WhyLeftOut(std::int32_t index, const ExportCodes& codes, const CodeRecordTails& tails);

// One step: exports all objects of a kind and accounts for each.
void ExportEach(ObjectKind kind, ExportObject exportObject, const ExportCodes& codes, const CodeRecordTails& tails) {
    ObjectAccount& account = TheAccount();
    const std::int32_t count = CountOf(kind);
    BeginProgress(count);
    for (std::int32_t index = 1; index <= count; ++index) {
        if (const WhyLeftOut reason = exportObject(index, codes, tails)) {
            account.Leave(kind, *reason);
        } else {
            ++account[kind].written;
        }
        StepProgress(index);
    }
}

// Only the types that a step knows are written, so this leaves out what has no code in the tables.
void LeaveUnknownObjectsOut() {
    for (CodeTable* table : {&PointCodes(), &LineCodes(), &TextCodes()}) {
        if (!table->rows.empty()) table->rows.front().Type = types::dummy;
    }
}

bool OpenExportFile() {
    const Text& name = TheRun().SufNenFileName;
    try {
        OpenOutput(name);
        return true;
    } catch (const RuntimeError& error) {
        const Text message = Concat(u"Kon bestand: '", name, u"' niet opslaan;\nFoutcode: ", error.Number());
        TheRun().outcome.outputFailed = true;
        LogFile().WriteError(message);
        ShowMessage(message);
        return false;
    }
}

void WriteExportFile() {
    const CodeRecordTails tails = PrepareCodeRecordTails();
    WriteExportHeader();
    if (!frmKORVANDE().chkExportUnknowns) LeaveUnknownObjectsOut();
    ShowStatus(u"Schrijven Exportbestand: Symbolen");
    ExportEach(ObjectKind::Point, ExportPoint, PreparePointCodes(), tails);
    ShowStatus(u"Schrijven Exportbestand: Lijnen");
    ExportEach(ObjectKind::LineSegment, ExportSegment, PrepareLineCodes(), tails);
    ShowStatus(u"Schrijven Exportbestand: Teksten");
    ExportEach(ObjectKind::TextObject, ExportText, PrepareTextCodes(), tails);
    WriteClosingRecord();
    TheRun().output.Close();
}

}  // namespace

void ExportSufNen() {
    ShowStatus(u"Schrijven Exportbestand: Voorbereiden");
    CountObjectsRead();
    if (!OpenExportFile()) return LeaveTheRestUnfinished();
    try {
        WriteExportFile();
    } catch (const TranslationAborted&) {
        LeaveTheRestUnfinished();
        throw;
    } catch (const std::exception&) {
        LeaveTheRestUnfinished();
        TheRun().outcome.outputFailed = true;
        throw;
    }
    WriteExportStatistics();
}

}  // namespace korvande
