#include "cli/GeoPackageInputs.h"

#include <optional>
#include <utility>

#include "cli/BatchReport.h"
#include "cli/Inputs.h"
#include "cli/OrderedJobs.h"
#include "cli/Print.h"
#include "core/RuntimeError.h"
#include "geopackage/GeoPackageFile.h"
#include "picture/MakeDisplayList.h"
#include "picture/RdArea.h"
#include "project/Project.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

void PrintNotShown(const Text& name, std::int64_t count) {
    if (count == 1) {
        PrintErrorLine(Concat(name, u": 1 object is weggelaten: het verwijst naar niets of ligt te ver weg"));
    } else if (count > 1) {
        PrintErrorLine(
            Concat(name, u": ", count, u" objecten zijn weggelaten: ze verwijzen naar niets of liggen te ver weg"));
    }
}

}  // namespace

void PrintCounts(const Text& name, const RowCounts& counts) {
    PrintLine(Concat(name, u": ", counts.points, u" punten, ", counts.lineStrings, u" lijnstrings, ", counts.texts,
                     u" teksten, ", counts.unknown, u" onbekende objecten"));
}

GeoPackageInputs::GeoPackageInputs(const GeoPackageOptions& itsOptions, const Project& itsProject,
                                   const DrawingBatch& itsBatch, GeoPackageFile& itsFile)
    : options(itsOptions),
      project(itsProject),
      batch(itsBatch),
      file(itsFile),
      added(itsBatch.inputs.files.size()),
      codes(itsBatch.workers, FreshTables(itsProject)),
      problems(itsBatch.inputs.files.size()),
      turns(itsBatch.inputs.files.size()) {}

void GeoPackageInputs::AddAll() {
    DoInOrder({.jobs = added.size(), .workers = batch.workers, .progress = batch.progress},
              [this](std::size_t job, std::size_t worker, OrderedLines&) {
                  try {
                      AddOne(job, worker);
                  } catch (...) {
                      turns.End();
                      throw;
                  }
                  turns.Pass(job);
              });
}

RowCounts GeoPackageInputs::Total() const noexcept {
    RowCounts total;
    for (const AddedDrawing& drawing : added) total.Add(drawing.counts);
    return total;
}

void GeoPackageInputs::AddOne(std::size_t job, std::size_t worker) {
    const Text& name = batch.inputs.files[job].name;
    ReadingScreen screen;
    Problems some;
    const std::optional<InputDrawing> found = FindInput(screen, name);
    if (found) {
        Translation translation(screen, project, std::move(codes[worker]));
        AddDrawing(job, screen, *found, translation);
        some.AddAll(translation.problems);
        codes[worker] = std::move(translation.codes);
    } else {
        added[job].remarks = u"niet te lezen, of geen IDEX, NEN1878 of SUF2 bestand";
    }
    problems.Take(job, std::move(some));
}

void GeoPackageInputs::AddDrawing(std::size_t job, ReadingScreen& screen, const InputDrawing& found,
                                  Translation& translation) {
    const Text& name = batch.inputs.files[job].name;
    AddedDrawing& result = added[job];
    const bool isRead = ReadInputDrawing(screen, found, name, options.reading, translation);
    const Problems& itsProblems = translation.problems;
    result.errors = itsProblems.errors;
    result.remarks = InOneValue(itsProblems.Lines(ProblemList::Loss));
    if (!isRead) return;
    const DisplayList list = MakeDisplayList(translation);
    if (!options.isLocal && RdPlaceOf(list) != RdPlace::Inside) {
        result.remarks = Concat(RdSentence(list), u"; niet overgenomen (zie --lokaal)");
        PrintErrorLine(Concat(name, u": ", result.remarks));
        return;
    }
    if (!turns.Await(job)) return;
    result.counts = file.Add(translation, list, [&screen] { screen.PumpEvents(); });
    result.notShown = list.notShown;
    result.status = itsProblems.HasFaults() ? status::withErrors : status::done;
    PrintCounts(name, result.counts);
    PrintNotShown(name, list.notShown);
}

}  // namespace korvande
