#include "idex/DiagnosticFiles.h"

#include "core/LineWriter.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "idex/IdexRow.h"

namespace korvande {

namespace {

// Writes a heading and a line per element, 1 to the last, which `putFields` fills.
template <class Records, class PutFields>
void WriteList(TextView name, std::string_view heading, const Records& records, PutFields putFields) {
    try {
        LineWriter file;
        file.Open(name);
        file.PutLine(heading);
        for (std::int32_t index = 1; index <= records.UpperBound(); ++index) {
            IdexRow row(file);
            putFields(row, records[index]);
            row.End();
        }
        file.Close();
    } catch (const RuntimeError&) {
        // A help for diagnosis only: the translation does not depend on it.
        return;
    }
}

}  // namespace

void WriteDiagnosticFiles(const Drawing& drawing) {
    WriteList(u"D:\\DEBUG_LINES.TXT", "Code,Descr,Flags 1,Flags 2", drawing.Lines,
              [&drawing](IdexRow& row, const LineRec& line) {
                  row.PutFixed(drawing.CodeBytes(line).View()).Put(",");
                  row.PutFixed(drawing.DescriptionBytes(line).View()).Put(",");
                  row.PutWhole(line.Flags1).Put(",").PutWhole(line.Flags2);
              });
    WriteList(u"D:\\DEBUG_EDGES.TXT", "Start Pt,End Pt,Line No,Line Type", drawing.Edges,
              [&drawing](IdexRow& row, const EdgeRec& edge) {
                  row.PutWhole(edge.StartPt).Put(",").PutWhole(edge.EndPt).Put(",").PutWhole(edge.LineNo).Put(",");
                  row.PutFixed(drawing.LineTypeBytes(edge).View());
              });
}

}  // namespace korvande
