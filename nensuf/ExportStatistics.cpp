#include "nensuf/ExportStatistics.h"

#include <algorithm>
#include <string>

#include "core/modKORVANDE.h"
#include "project/frmKORVANDE.h"
#include "run/CodeStatistics.h"
#include "run/LogBook.h"
#include "run/UnknownObjects.h"

namespace korvande {

namespace {

// A count on the right of six columns; a larger one takes the columns it needs.
void WriteCount(TextView label, std::int32_t count) {
    const std::string digits = std::to_string(count);
    LogFile().WriteLine(Concat(label, std::string(6 - std::min<std::size_t>(digits.size(), 6), ' '), digits));
}

}  // namespace

void WriteExportStatistics() {
    const Drawing& drawing = TheDrawing();
    LogBook& log = LogFile();
    log.WriteLine(u" Statistiek:");
    WriteCount(u" Punten:       ", drawing.Points.UpperBound());
    WriteCount(u" Lijnstrings:  ", drawing.Lines.UpperBound());
    WriteCount(u" Lijnsegmenten:", drawing.Edges.UpperBound());
    WriteCount(u" Teksten:      ", drawing.Texts.UpperBound());
    WriteCodeStatistics(u"Geëxporteerde", NoneFor::TablesWithoutRows);
    if (frmKORVANDE().chkExportUnknowns) {
        WriteUnknownObjectOverview();
    } else {
        log.WriteEmptyLines(2);
        log.WriteLine(u"Onbekende objecten werden niet geëxporteerd.");
        log.WriteEmptyLines(2);
    }
}

}  // namespace korvande
