#include "core/LineWriter.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "idex/IdexFile.h"

namespace korvande {

namespace {

// Writes a heading and a line per element, 1 to the last, of what `lineOf` makes of it.
template <class Records, class LineOf>
void WriteList(TextView name, std::string_view heading, const Records& records, LineOf lineOf) {
    try {
        LineWriter file;
        file.Open(name);
        file.PutLine(heading);
        for (std::int32_t index = 1; index <= records.UpperBound(); ++index) {
            file.PutLine(ToWindows1252(lineOf(records[index])));
        }
        file.Close();
    } catch (const RuntimeError&) {
        // A help for diagnosis only: the translation does not depend on it.
        return;
    }
}

}  // namespace

void WriteDiagnosticFiles() {
    const Drawing& drawing = TheDrawing();
    WriteList(u"D:\\DEBUG_LINES.TXT", "Code,Descr,Flags 1,Flags 2", drawing.Lines, [](const LineRec& line) {
        return Concat(line.Code.View(), u",", line.Description.View(), u",", line.Flags1, u",", line.Flags2);
    });
    WriteList(u"D:\\DEBUG_EDGES.TXT", "Start Pt,End Pt,Line No,Line Type", drawing.Edges, [](const EdgeRec& edge) {
        return Concat(edge.StartPt, u",", edge.EndPt, u",", edge.LineNo, u",", edge.LineType.View());
    });
}

}  // namespace korvande
