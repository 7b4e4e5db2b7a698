#include "cli/TranslateBatch.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/BatchSummary.h"
#include "cli/ConsoleScreen.h"
#include "cli/EarlierBatch.h"
#include "cli/FormatQuestion.h"
#include "cli/JsonDocument.h"
#include "cli/OptionValues.h"
#include "cli/OrderedJobs.h"
#include "cli/OrderedLines.h"
#include "cli/OrderedProblems.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/TranslateJob.h"
#include "core/RuntimeError.h"
#include "host/Folders.h"
#include "host/modFileHandling.h"
#include "project/Project.h"
#include "report/TranslationJson.h"

namespace korvande {

namespace {

std::string JsonOf(const TranslateRow& row) {
    return OtherTranslationJson({.input = row.input,
                                 .output = row.output,
                                 .logBook = row.logBook,
                                 .status = row.status,
                                 .isEarlier = row.isSkipped});
}

// What the account of all of them needs: an archive may have a hundred thousand drawings.
TranslateRow NumbersOf(TranslateRow row) {
    for (Text* const text : {&row.input, &row.output, &row.logBook, &row.problems, &row.options}) Text().swap(*text);
    return row;
}

// Several jobs, some at a time.
class ManyJobs {
 public:
    ManyJobs(const Batch& itsBatch, const Project& itsProject, Mode itsMode, const TranslateOptions& itsOptions,
             const JsonDocument& itsDocument)
        : batch(itsBatch),
          project(itsProject),
          mode(itsMode),
          options(itsOptions),
          document(itsDocument),
          earlier(itsOptions),
          rows(itsBatch.jobs.size()),
          codes(itsBatch.workers, FreshTables(itsProject)),
          problems(itsBatch.jobs.size()) {}

    void Do() {
        const TextView progress = !options.batch.quiet && ErrorIsTerminal() ? u"Vertalen:" : u"";
        DoInOrder({.jobs = batch.jobs.size(), .workers = batch.workers, .progress = progress},
                  [this](std::size_t job, std::size_t worker, OrderedLines& lines) {
                      // What an earlier batch has done stays in the report, also when an interrupt came.
                      rows[job] = earlier.RowOf(batch.jobs[job]);
                      const bool isOver = rows[job] || IsInterrupted();
                      problems.Take(job, isOver ? Problems() : Translate(job, worker, lines));
                      if (isOver) document.Element(job, JsonOfOther(job));
                  });
    }

    // Of the jobs that were done, in their order.
    std::vector<TranslateRow> Rows() const {
        std::vector<TranslateRow> done;
        for (const std::optional<TranslateRow>& row : rows) {
            if (row) done.push_back(*row);
        }
        return done;
    }

    const Problems& AllProblems() const noexcept { return problems.All(); }

 private:
    Problems Translate(std::size_t place, std::size_t worker, OrderedLines& lines) {
        const RunNames& job = batch.jobs[place];
        ConsoleScreen screen(false);
        AnswerQuestions(screen, FixedAnswer(options.answer), [&](const std::function<void()>& ask) {
            lines.Alone([&] {
                const PrintsElsewhere directly;
                PrintErrorLine(Concat(job.input, u":"));
                ask();
            });
        });
        JobResult result = TranslateTo(screen, job, worker);
        document.Element(place, result.json);
        result.row.options = earlier.Mark();
        rows[place] = options.batch.report.empty() ? NumbersOf(std::move(result.row)) : std::move(result.row);
        return std::move(result.problems);
    }

    // Of a job that an earlier batch has done, or that was not begun.
    std::string JsonOfOther(std::size_t place) const {
        return JsonOf(rows[place] ? *rows[place] : FailedRow(batch.jobs[place]));
    }

    // An error that nothing in a translation expects ends that one only.
    JobResult TranslateTo(ConsoleScreen& screen, const RunNames& job, std::size_t worker) {
        try {
            if (batch.inputs.hasFolders) MakeFolders(FolderOf(job.output));
        } catch (const RuntimeError&) {
            // The translation tells that it cannot write.
        }
        try {
            return TranslateJob(screen, project, codes[worker], job, mode, options);
        } catch (const std::exception&) {
            JobResult result{FailedRow(job), {}, JsonOf(FailedRow(job))};
            result.row.problems = CurrentError().Description();
            PrintErrorLine(Concat(job.input, u": ", result.row.problems));
            codes[worker] = FreshTables(project);
            return result;
        }
    }

    const Batch& batch;
    const Project& project;
    Mode mode;
    const TranslateOptions& options;
    const JsonDocument& document;
    EarlierBatch earlier;
    std::vector<std::optional<TranslateRow>> rows;
    std::vector<CodeTables> codes;  // of each worker
    OrderedProblems problems;
};

int TranslateMany(const Batch& batch, const Project& project, Mode mode, const TranslateOptions& options,
                  const JsonDocument& document) {
    ManyJobs jobs(batch, project, mode, options, document);
    jobs.Do();
    const std::vector<TranslateRow> rows = jobs.Rows();
    const bool areAllDone = rows.size() == batch.jobs.size();
    const bool isReported = options.batch.report.empty() || WriteTranslateReport(FromUtf8(options.batch.report), rows);
    if (!areAllDone) PrintErrorLine(u"De bestanden die volgen, zijn niet vertaald.");
    if (!options.batch.quiet) TellTranslated(batch.inputs, rows, jobs.AllProblems());
    if (batch.jobs.empty()) return status::failed;
    const bool isAllWell =
        std::all_of(rows.begin(), rows.end(), [](const TranslateRow& row) { return row.status == status::done; });
    return isAllWell && areAllDone && isReported ? status::done : status::withErrors;
}

int TranslateOnly(const RunNames& job, const Project& project, Mode mode, const TranslateOptions& options,
                  const JsonDocument& document) {
    ConsoleScreen screen(!options.batch.quiet && ErrorIsTerminal());
    AnswerQuestions(screen, FixedAnswer(options.answer), [](const std::function<void()>& ask) { ask(); });
    CodeTables codes = FreshTables(project);
    const JobResult result = TranslateJob(screen, project, codes, job, mode, options);
    document.Element(0, result.json);
    return static_cast<int>(result.row.status);
}

}  // namespace

int TranslateBatch(const Batch& batch, const Project& project, Mode mode, const TranslateOptions& options,
                   const JsonDocument& document) {
    if (batch.jobs.size() == 1 && !batch.inputs.hasFolders && options.batch.report.empty()) {
        return TranslateOnly(batch.jobs.front(), project, mode, options, document);
    }
    return TranslateMany(batch, project, mode, options, document);
}

}  // namespace korvande
