#include "idex/IdexLines.h"

#include "core/Numbers.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/IdexFile.h"
#include "translation/ObjectAccount.h"

namespace korvande {

namespace {

// Grows the lines array to a line number; the records in between are blank. A number far beyond what the rows read so
// far account for is no line number.
void GrowLinesTo(Drawing& drawing, std::int32_t lineNo, std::int64_t rowsRead) {
    RequireArrayIndex(lineNo, rowsRead);
    auto& lines = drawing.Lines;
    const std::int32_t first = lines.UpperBound() + 1;
    lines.GrowTo(lineNo);
    for (std::int32_t index = first; index <= lineNo; ++index) {
        drawing.SetCode(lines[index], TextView());
        drawing.SetDescription(lines[index], TextView());
    }
}

void ReadEdges(Screen& screen, IdexFile& file, std::string_view headerLine, Drawing& drawing) {
    enum { lineNo, startPt, endPt, lineType };
    screen.ShowStatus(u"Inlezen Lijnsegmenten");
    IdexTable table(file, {"LINENO", "STARTPT", "ENDPT", "LINETYPE"});
    table.ReadHeader(headerLine);
    std::string_view row;
    while (file.NextCapitalRow(row)) {
        if (StartsWith(row, "EXTRAINFO")) {
            file.SkipBlock();
            continue;
        }
        table.Split(row);
        const std::int32_t line = LeadingWholeNumber(table.Field(lineNo));
        const std::int32_t start = drawing.PointIndex[StrictWholeNumber(table.Field(startPt))];
        const std::int32_t end = drawing.PointIndex[StrictWholeNumber(table.Field(endPt))];
        EdgeRec& edge = drawing.Edges.Append();
        edge.LineNo = line;
        edge.StartPt = start;
        edge.EndPt = end;
        drawing.SetLineType(edge, table.Field(lineType), Letters::Capitals);
    }
    screen.ShowStatus(u"Inlezen Lijnstrings");
}

}  // namespace

void ReadLines(Screen& screen, IdexFile& file, std::string_view keywordLine, Drawing& drawing) {
    enum { lineNo, code, description, flags1, flags2 };
    screen.ShowStatus(u"Inlezen Lijnstrings");
    IdexTable table(file, {"LINENO", "CODE", "DESCRIPTION", "FLAGS1", "FLAGS2"});
    table.ReadHeader(keywordLine);
    std::string_view row;
    while (file.NextCapitalRow(row)) {
        if (StartsWith(row, "EDGES")) {
            ReadEdges(screen, file, std::string(row), drawing);
            continue;
        }
        table.Split(row);
        const std::int32_t number = LeadingWholeNumber(table.Field(lineNo));
        GrowLinesTo(drawing, number, ++file.lineRows);
        LineRec& line = drawing.Lines[number];
        drawing.SetCode(line, table.Unquoted(code), Letters::Capitals);
        drawing.SetDescription(line, table.Unquoted(description), Letters::Capitals);
        line.Flags1 = BinaryToFlags(table.Field(flags1));
        line.Flags2 = BinaryToFlags(table.Field(flags2));
    }
}

void ReadOverPolygons(Screen& screen, IdexFile& file, std::string_view keywordLine, ObjectAccount& account) {
    screen.ShowStatus(u"Inlezen Veelhoeken");
    IdexTable(file, {"LINENO", "CODE", "DESCRIPTION"}).ReadHeader(keywordLine);
    std::string_view row;
    while (file.NextRow(row)) {
        if (StartsWith(row, "EDGES")) {
            // A nested block ends the table at its own END; what follows is then read over as unknown keywords.
            while (file.NextRow(row)) {
            }
            return;
        }
        ++account[ObjectKind::Polygon].read;
        account.Leave(ObjectKind::Polygon, LeftOut::NotTranslated);
    }
}

}  // namespace korvande
