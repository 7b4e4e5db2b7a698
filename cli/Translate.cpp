#include "cli/Translate.h"

#include <algorithm>

#include "cli/ConsoleScreen.h"
#include "cli/InputFiles.h"
#include "cli/Jobs.h"
#include "cli/JsonDocument.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/Projects.h"
#include "cli/TranslateBatch.h"
#include "project/Project.h"

namespace korvande {

namespace {

// Only into an output folder several are translated; without it the second name is that of the output.
InputFiles FindInputs(Screen& screen, const TranslateOptions& options, Mode mode) {
    if (options.outputFolder.empty()) return PlainInputFiles(options.files);
    return FindInputFiles(screen, options.files,
                          {.goesDeep = options.batch.goesDeep,
                           .except = FromUtf8(options.outputFolder),
                           .isWanted = [mode](Format format) { return format == InputFormat(mode); }});
}

}  // namespace

int Translate(const TranslateOptions& options) {
    const Mode mode = ModeOf(options.mode);
    FixedAnswer(options.answer);
    const bool choosesUnknowns = !options.unknowns.empty();
    const bool withUnknowns = choosesUnknowns && YesOrNo(u"--onbekend", options.unknowns);
    ConsoleScreen screen(false);
    screen.isInterrupted = IsInterrupted;
    Batch batch;
    batch.inputs = FindInputs(screen, options, mode);
    batch.jobs = JobsFor(options, mode, batch.inputs);
    batch.workers = WorkersFor(options.batch.atATime, batch.inputs);
    Project project;
    // Selection and source are no part of a control table, so loading one leaves them as they are.
    if (!options.selection.empty()) {
        TakeSelection(options.selection, project.options);
        if (mode.direction == Direction::FromIdex) {
            PrintErrorLine(u"--selectie geldt alleen voor een vertaling naar IDEX.");
        }
    }
    if (!options.source.empty()) TakeSource(options.source, project.options);
    TakeReading(options.reading, project.options);
    RefuseClashes(batch.jobs, options.project, options.batch.report);
    JsonDocument document(options.asJson, "vertaal");
    document.BeginList("bestanden");
    if (!LoadControlTable(screen, project, options.project)) return document.End(status::failed);
    if (choosesUnknowns) project.options.chkExportUnknowns = project.options.chkImportUnknowns = withUnknowns;
    if (options.threePointArcs) {
        project.options.chkThreePointArcs = true;
        if (mode.direction == Direction::ToIdex) {
            PrintErrorLine(u"--driepuntsbogen geldt alleen voor een vertaling uit IDEX.");
        }
    }
    TellFolders(batch.inputs, u"Er is geen bestand dat bij de modus past.");
    const int result = TranslateBatch(batch, project, mode, options, document);
    return document.End(batch.inputs.unreadFolders.empty() ? result : std::max(result, status::withErrors));
}

}  // namespace korvande
