#include "translation/CodeStatistics.h"

#include <algorithm>

#include "core/Picture.h"
#include "project/CodeTables.h"
#include "translation/LogBook.h"

namespace korvande {

namespace {

bool IsUsed(const CodeRow& row) { return row.Count != 0; }

void WriteTable(LogBook& log, TextView heading, const CodeTable& table, NoneFor noneFor) {
    log.WriteLine();
    log.WriteLine(heading);
    for (const CodeRow& row : table.rows) {
        if (!IsUsed(row)) continue;
        log.WriteLine(
            Concat(row.LiscadCode.View(), u" = ", row.Description.View(), FormatPicture(row.Count, " ######0 maal")));
    }
    const bool isNone = noneFor == NoneFor::TablesWithoutRows
                            ? table.rows.empty()
                            : std::none_of(table.rows.begin(), table.rows.end(), IsUsed);
    if (!isNone) return;
    log.WriteAtColumn(5, u"GEEN");
    log.EndLine();
}

}  // namespace

void WriteCodeStatistics(LogBook& log, const CodeTables& codes, TextView participle, NoneFor noneFor) {
    WriteTable(log, Concat(participle, u" lijnobjecten:"), codes.lines, noneFor);
    WriteTable(log, Concat(participle, u" puntobjecten:"), codes.points, noneFor);
    WriteTable(log, Concat(participle, u" tekstelementen:"), codes.texts, noneFor);
}

}  // namespace korvande
