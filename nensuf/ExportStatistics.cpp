#include "nensuf/ExportStatistics.h"

#include <algorithm>
#include <string>

#include "translation/CodeStatistics.h"
#include "translation/Translation.h"
#include "translation/UnknownObjects.h"

namespace korvande {

namespace {

// A count on the right of six columns; a larger one takes the columns it needs.
void WriteCount(LogBook& log, TextView label, std::int32_t count) {
    const std::string digits = std::to_string(count);
    log.WriteLine(Concat(label, std::string(6 - std::min<std::size_t>(digits.size(), 6), ' '), digits));
}

}  // namespace

void WriteExportStatistics(Translation& translation) {
    const Drawing& drawing = translation.drawing;
    LogBook& log = translation.log;
    log.WriteLine(u" Statistiek:");
    WriteCount(log, u" Punten:       ", drawing.Points.UpperBound());
    WriteCount(log, u" Lijnstrings:  ", drawing.Lines.UpperBound());
    WriteCount(log, u" Lijnsegmenten:", drawing.Edges.UpperBound());
    WriteCount(log, u" Teksten:      ", drawing.Texts.UpperBound());
    WriteCodeStatistics(log, translation.codes, u"Geëxporteerde", NoneFor::TablesWithoutRows);
    if (translation.options.chkExportUnknowns) {
        WriteUnknownObjectOverview(log, translation.unknowns);
    } else {
        log.WriteEmptyLines(2);
        log.WriteLine(u"Onbekende objecten werden niet geëxporteerd.");
        log.WriteEmptyLines(2);
    }
}

}  // namespace korvande
