#include "cli/GeoPackage.h"

#include <algorithm>
#include <utility>

#include "cli/Arguments.h"
#include "cli/BatchReport.h"
#include "cli/BatchSummary.h"
#include "cli/ConsoleScreen.h"
#include "cli/DrawingBatch.h"
#include "cli/GeoPackageInputs.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "core/RuntimeError.h"
#include "geopackage/GeoPackageFile.h"
#include "host/modFileHandling.h"
#include "project/Project.h"

namespace korvande {

namespace {

int NotSaved(const Text& output, const RuntimeError& error) {
    PrintErrorLine(
        Concat(u"Kon bestand: '", output, u"' niet opslaan;\nFoutcode: ", error.Number(), u"\n", error.Description()));
    return status::failed;
}

void RefuseOutput(const GeoPackageOptions& options, const DrawingBatch& batch, const Text& output) {
    if (!ToCapitals(output).ends_with(u".GPKG")) {
        throw UsageError{Concat(u"De uitvoer moet op .gpkg eindigen: ", output)};
    }
    for (const InputFile& input : batch.inputs.files) RefuseClash(output, input.name, u"Invoer en uitvoer");
    RefuseClash(output, FromUtf8(options.project), u"Controletabel en uitvoer");
    if (MayBeMade(output)) return;
    if (!MayBeReplaced(output)) throw UsageError{Concat(u"De uitvoer is geen gewoon bestand: ", output)};
    if (!options.overwrites) {
        throw UsageError{Concat(u"Er bestaat al een bestand met deze naam (zie --overschrijf):\n", output)};
    }
}

BatchReport ReportOf(const std::vector<InputFile>& files, const std::vector<AddedDrawing>& drawings) {
    BatchReport report{.command = u"geopackage",
                       .columns = {"invoer", "status", "punten", "lijnstrings", "teksten", "onbekend", "weggelaten",
                                   "fouten", "meldingen"},
                       .rows = {}};
    for (std::size_t place = 0; place < files.size(); ++place) {
        const AddedDrawing& drawing = drawings[place];
        report.rows.push_back({files[place].name, std::int64_t{drawing.status}, drawing.counts.points,
                               drawing.counts.lineStrings, drawing.counts.texts, drawing.counts.unknown,
                               drawing.notShown, drawing.errors, drawing.remarks});
    }
    return report;
}

// The status of all: with errors when any input had some, failed when there is nothing to be put in its place.
int AddAll(const GeoPackageOptions& options, const Project& project, const DrawingBatch& batch, const Text& output) {
    GeoPackageFile file(output, {.isLocal = options.isLocal,
                                 .isStraight = options.isStraight,
                                 .replaces = options.overwrites,
                                 .namesOwner = !options.project.empty()});
    GeoPackageInputs inputs(options, project, batch, file);
    inputs.AddAll();
    const std::vector<AddedDrawing>& drawings = inputs.Added();
    const auto count = [&drawings](int status) {
        return std::count_if(drawings.begin(), drawings.end(),
                             [status](const AddedDrawing& drawing) { return drawing.status == status; });
    };
    const auto takenOver = static_cast<std::int64_t>(drawings.size()) - count(status::failed);
    if (takenOver > 0) {
        file.Finish();
        PrintCounts(output, inputs.Total());
    }
    const std::string& report = options.batch.report;
    const bool isReported = report.empty() || WriteReport(FromUtf8(report), ReportOf(batch.inputs.files, drawings));
    if (batch.IsMany() && !options.batch.quiet) TellTakenOver(batch.inputs, takenOver, inputs.AllProblems());
    if (takenOver == 0) return status::failed;
    const bool isAllWell = count(status::done) == static_cast<std::ptrdiff_t>(drawings.size()) && isReported &&
                           batch.inputs.unreadFolders.empty();
    return isAllWell ? status::done : status::withErrors;
}

}  // namespace

int MakeGeoPackage(const GeoPackageOptions& options) {
    if (options.files.size() < 2) throw UsageError{u"Er ontbreekt een argument: uitvoer"};
    std::vector<std::string> names = options.files;
    const Text output = FromUtf8(names.back());
    names.pop_back();
    const DrawingBatch batch = FindDrawings(names, options.batch, options.project, u"Overnemen:");
    try {
        RefuseOutput(options, batch, output);
    } catch (const RuntimeError& error) {
        return NotSaved(output, error);
    }
    Project project;
    ConsoleScreen screen(false);
    TakeReading(options.reading, project.options);
    if (!LoadControlTable(screen, project, options.project)) return status::failed;
    TellFolders(batch.inputs, u"Er is geen tekening gevonden.");
    if (batch.inputs.files.empty()) return status::failed;
    try {
        return AddAll(options, project, batch, output);
    } catch (const RuntimeError& error) {
        return NotSaved(output, error);
    }
}

}  // namespace korvande
