#include "run/CodeStatistics.h"

#include <algorithm>

#include "core/Picture.h"
#include "project/CodeTables.h"
#include "run/LogBook.h"

namespace korvande {

namespace {

bool IsUsed(const CodeRow& row) { return row.Count != 0; }

void WriteTable(TextView heading, const CodeTable& table, NoneFor noneFor) {
    LogBook& log = LogFile();
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

void WriteCodeStatistics(TextView participle, NoneFor noneFor) {
    WriteTable(Concat(participle, u" lijnobjecten:"), LineCodes(), noneFor);
    WriteTable(Concat(participle, u" puntobjecten:"), PointCodes(), noneFor);
    WriteTable(Concat(participle, u" tekstelementen:"), TextCodes(), noneFor);
}

}  // namespace korvande
