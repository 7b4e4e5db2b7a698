#include "cli/DrawingBatch.h"

#include "cli/BatchReport.h"
#include "cli/ConsoleScreen.h"
#include "cli/Inputs.h"
#include "cli/Process.h"

namespace korvande {

DrawingBatch FindDrawings(const std::vector<std::string>& names, const BatchOptions& options,
                          const std::string& project, TextView progress) {
    const Text report = FromUtf8(options.report);
    if (!report.empty()) RefuseReportName(report);
    ConsoleScreen screen(false);
    screen.isInterrupted = IsInterrupted;
    DrawingBatch batch;
    batch.inputs = FindInputFiles(
        screen, names, {.goesDeep = options.goesDeep, .except = {}, .isWanted = [](Format) { return true; }});
    batch.workers = WorkersFor(options.atATime, batch.inputs);
    if (batch.IsMany() && !options.quiet && ErrorIsTerminal()) batch.progress = progress;
    if (report.empty()) return batch;
    RefuseClash(report, FromUtf8(project), u"Controletabel en verslag");
    for (const InputFile& file : batch.inputs.files) RefuseClash(report, file.name, u"Invoer en verslag");
    return batch;
}

}  // namespace korvande
