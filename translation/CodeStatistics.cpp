#include "translation/CodeStatistics.h"

#include <algorithm>
#include <vector>

#include "core/Picture.h"
#include "project/CodeTables.h"
#include "translation/LogBook.h"

namespace korvande {

namespace {

void WriteTable(LogBook& log, TextView heading, const CodeTable& table, NoneFor noneFor) {
    log.WriteLine();
    log.WriteLine(heading);
    std::vector<std::int32_t> used = table.used;
    std::sort(used.begin(), used.end());
    for (const std::int32_t number : used) {
        const CodeRow& row = table.rows[static_cast<std::size_t>(number)];
        log.WriteLine(
            Concat(row.LiscadCode.View(), u" = ", row.Description.View(), FormatPicture(row.Count, " ######0 maal")));
    }
    const bool isNone = noneFor == NoneFor::TablesWithoutRows ? table.rows.empty() : used.empty();
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
