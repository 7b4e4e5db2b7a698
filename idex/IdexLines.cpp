#include "idex/IdexLines.h"

#include "core/Numbers.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "idex/IdexFile.h"
#include "idex/IdexTable.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Grows the lines array to a line number; the records in between are blank. A number far beyond what the rows read so
// far account for is no line number.
void GrowLinesTo(Drawing& drawing, std::int32_t lineNo, std::int64_t rowsRead) {
    RequireArrayIndex(lineNo, rowsRead);
    auto& lines = drawing.Lines;
    const std::int32_t first = lines.UpperBound() + 1;
    if (first > lineNo) return;
    LineKind blank{};
    blank.code.Assign(TextView());
    blank.description.Assign(TextView());
    const KeptNumber blankKind = drawing.LineKinds.NumberOf(blank);
    lines.GrowTo(lineNo);
    for (std::int32_t index = first; index <= lineNo; ++index) Drawing::SetKind(lines[index], blankKind);
}

// A line type that is cut to one of other characters, not one that is unknown with or without its end, which is told
// when it is looked up.
void TellLineTypeCut(IdexTable& table, std::string_view lineType, std::size_t width) {
    if (lineType[width - 1] == ' ') table.Tell(ProblemKind::LineTypeCut);
}

void ReadEdges(Translation& translation, IdexFile& file, std::string_view headerLine) {
    enum { lineNo, startPt, endPt, lineType };
    constexpr std::size_t lineTypeWidth = 12;
    Drawing& drawing = translation.drawing;
    translation.screen.ShowStatus(u"Inlezen Lijnsegmenten");
    IdexTable table(file, "EDGES", {{"LINENO"}, {"STARTPT"}, {"ENDPT"}, {"LINETYPE"}});
    table.ReadHeader(headerLine);
    std::string_view row;
    while (file.NextCapitalRow(row)) {
        if (StartsWith(row, "EXTRAINFO")) {
            file.SkipExtraInfo();
            continue;
        }
        if (file.SkipNestedBlock(row, "EDGES")) continue;
        table.Split(row);
        const std::int32_t line = table.Whole(lineNo);
        const std::int32_t start = drawing.PointIndex[table.StrictWhole(startPt)];
        const std::int32_t end = drawing.PointIndex[table.StrictWhole(endPt)];
        EdgeRec& edge = drawing.Edges.Append();
        edge.InputLine = static_cast<std::int32_t>(file.rowLine);
        edge.LineNo = line;
        edge.StartPt = start;
        edge.EndPt = end;
        const std::string_view type = table.Field(lineType);
        if (type.size() > lineTypeWidth) TellLineTypeCut(table, type, lineTypeWidth);
        drawing.SetLineType(edge, type, Letters::Capitals);
    }
    translation.screen.ShowStatus(u"Inlezen Lijnstrings");
}

}  // namespace

void ReadLines(Translation& translation, IdexFile& file, std::string_view keywordLine) {
    enum { lineNo, code, description, flags1, flags2 };
    Drawing& drawing = translation.drawing;
    translation.screen.ShowStatus(u"Inlezen Lijnstrings");
    IdexTable table(file, "LINES",
                    {{"LINENO"},
                     {"CODE"},
                     {"DESCRIPTION", Lacking::IsFine},
                     {"FLAGS1", Lacking::IsFine},
                     {"FLAGS2", Lacking::IsFine}});
    table.ReadHeader(keywordLine);
    std::string_view row;
    while (file.NextCapitalRow(row)) {
        if (StartsWith(row, "EDGES")) {
            ReadEdges(translation, file, std::string(row));
            continue;
        }
        if (file.SkipNestedBlock(row, "LINES")) continue;
        table.Split(row);
        const std::int32_t number = table.Whole(lineNo);
        GrowLinesTo(drawing, number, ++file.lineRows);
        LineRec& line = drawing.Lines[number];
        // What is no number has been told already.
        if (number == 0 && (table.Field(lineNo).empty() || IsNumber(table.Field(lineNo)))) {
            table.Tell(ProblemKind::LineNumberZero);
        } else if (number != 0 && line.InputLine != 0) {
            table.Tell(ProblemKind::LineNumberTwice);
        }
        line.InputLine = static_cast<std::int32_t>(file.rowLine);
        LineKind kind{};
        kind.code.Assign(table.Fitting(table.Unquoted(code), 7, ProblemKind::CodeCut), Letters::Capitals);
        kind.description.Assign(table.Fitting(table.Unquoted(description), 53, ProblemKind::DescriptionCut),
                                Letters::Capitals);
        Drawing::SetKind(line, drawing.LineKinds.NumberOf(kind));
        line.Flags1 = table.Flags(flags1);
        line.Flags2 = table.Flags(flags2);
    }
}

void AccountForPolygon(Translation& translation) {
    ++translation.account[ObjectKind::Polygon].read;
    LeaveOut(translation, ObjectKind::Polygon, LeftOut::NotTranslated);
}

bool ReadOverPolygons(Translation& translation, IdexFile& file, std::string_view keywordLine) {
    translation.screen.ShowStatus(u"Inlezen Veelhoeken");
    std::string header(keywordLine);
    file.CompleteHeader(header);
    std::string_view row;
    while (file.NextRow(row)) {
        if (StartsWith(row, "EDGES")) {
            // A nested block ends the table at its own END; what follows is then read over between the tables.
            while (file.NextRow(row)) {
            }
            return true;
        }
        AccountForPolygon(translation);
    }
    return false;
}

}  // namespace korvande
