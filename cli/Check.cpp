#include "cli/Check.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/Arguments.h"
#include "cli/BatchReport.h"
#include "cli/BatchSummary.h"
#include "cli/CheckFile.h"
#include "cli/ConsoleScreen.h"
#include "cli/DrawingBatch.h"
#include "cli/JsonDocument.h"
#include "cli/OptionValues.h"
#include "cli/OrderedJobs.h"
#include "cli/OrderedProblems.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/Projects.h"
#include "core/RuntimeError.h"
#include "project/Project.h"
#include "report/CheckJson.h"

namespace korvande {

namespace {

// The files of a command, some at a time.
class Checks {
 public:
    Checks(const CheckOptions& itsOptions, const Project& itsProject, const DrawingBatch& itsBatch,
           const JsonDocument& itsDocument)
        : options(itsOptions),
          document(itsDocument),
          project(itsProject),
          batch(itsBatch),
          results(itsBatch.inputs.files.size()),
          codes(itsBatch.workers, FreshTables(itsProject)),
          problems(itsBatch.inputs.files.size()) {}

    // False when an interrupt came.
    bool Do() {
        DoInOrder({.jobs = results.size(), .workers = batch.workers, .progress = batch.progress},
                  [this](std::size_t job, std::size_t worker, OrderedLines&) {
                      if (!IsInterrupted()) DoOne(job, worker);
                      document.Element(job, JsonOf(job));
                  });
        return std::all_of(results.begin(), results.end(), [](const auto& result) { return result.has_value(); });
    }

    // Of the files that were checked, in their order.
    std::vector<CheckedFile> Checked() const {
        std::vector<CheckedFile> checked;
        for (std::size_t job = 0; job < results.size(); ++job) {
            if (results[job]) checked.push_back({batch.inputs.files[job].name, *results[job]});
        }
        return checked;
    }

    const Problems& AllProblems() const noexcept { return problems.All(); }

 private:
    // Of a file that was not checked its name and that it failed.
    std::string JsonOf(std::size_t job) {
        if (!options.asJson) return {};
        if (results[job] && !results[job]->json.empty()) return std::exchange(results[job]->json, {});
        return FailedCheckJson(batch.inputs.files[job].name, status::failed);
    }

    void DoOne(std::size_t job, std::size_t worker) {
        try {
            results[job] = CheckFile(project, codes[worker], options, batch.inputs.files[job].name);
        } catch (const TranslationAborted&) {
            return;
        } catch (const std::exception&) {
            if (!batch.IsMany()) throw;
            // One that nothing in a check expects ends that one only.
            PrintErrorLine(Concat(batch.inputs.files[job].name, u": ", CurrentError().Description()));
            codes[worker] = FreshTables(project);
            results[job] = CheckResult();
        }
        problems.Take(job, std::exchange(results[job]->problems, {}));
    }

    const CheckOptions& options;
    const JsonDocument& document;
    const Project& project;
    const DrawingBatch& batch;
    std::vector<std::optional<CheckResult>> results;
    std::vector<CodeTables> codes;  // of each worker
    OrderedProblems problems;
};

BatchReport ReportOf(const std::vector<CheckedFile>& files) {
    BatchReport report{.command = u"controleer",
                       .columns = {"invoer", "formaat", "status", "punten", "lijnstrings", "lijnsegmenten", "teksten",
                                   "onbekend", "problemen", "fouten", "meldingen"},
                       .rows = {}};
    for (const auto& [name, result] : files) {
        const Text lines = result.format.empty() ? Text(u"niet te lezen, of geen IDEX, NEN1878 of SUF2 bestand")
                                                 : InOneValue(result.losses);
        report.rows.push_back({name, result.format, std::int64_t{result.status}, result.points, result.lineStrings,
                               result.edges, result.texts, result.unknown, result.findings, result.errors, lines});
    }
    return report;
}

}  // namespace

int Check(const CheckOptions& options) {
    Project settings;
    ConsoleScreen screen(false);
    TakeReading(options.reading, settings.options);
    const DrawingBatch batch = FindDrawings(options.files, options.batch, options.project, u"Controleren:");
    JsonDocument document(options.asJson, "controleer");
    document.BeginList("bestanden");
    if (!LoadControlTable(screen, settings, options.project)) return document.End(status::failed);
    TellFolders(batch.inputs, u"Er is geen tekening gevonden.");
    Checks checks(options, settings, batch, document);
    const bool areAllDone = checks.Do();
    const std::vector<CheckedFile> files = checks.Checked();
    const std::string& report = options.batch.report;
    const bool isReported = report.empty() || WriteReport(FromUtf8(report), ReportOf(files));
    if (!areAllDone || batch.inputs.files.empty()) return document.End(status::failed);
    if (batch.IsMany() && !options.batch.quiet) TellChecked(batch.inputs, files, checks.AllProblems());
    int worst = isReported && batch.inputs.unreadFolders.empty() ? status::done : status::withErrors;
    for (const CheckedFile& file : files) worst = std::max(worst, file.result.status);
    return document.End(worst);
}

}  // namespace korvande
