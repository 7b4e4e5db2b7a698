#include "cli/TranslateJob.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "cli/BatchReport.h"
#include "cli/ConsoleScreen.h"
#include "cli/Print.h"
#include "report/TranslationJson.h"
#include "run/TranslateFiles.h"
#include "translation/ClosingSentence.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The objects of which the unknown rows of the tables were the answer.
std::int64_t UnknownObjects(const CodeTables& codes) {
    std::int64_t count = 0;
    for (const CodeTable* table : {&codes.points, &codes.lines, &codes.texts}) {
        if (!table->rows.empty()) count += table->rows.front().Count;
    }
    return count;
}

void PrintResult(const Translation& translation) {
    const Drawing& drawing = translation.drawing;
    PrintLine(Concat(OutputName(translation), u": ", drawing.Points.UpperBound(), u" punten, ",
                     drawing.Lines.UpperBound(), u" lijnstrings, ", drawing.Edges.UpperBound(), u" lijnsegmenten, ",
                     drawing.Texts.UpperBound(), u" teksten, ", UnknownObjects(translation.codes),
                     u" onbekende objecten, ", translation.problems.errors, u" fouten"));
    std::fflush(stdout);
}

void PrintLines(const std::vector<Text>& lines) {
    for (const Text& line : lines) PrintErrorLine(line);
}

// Nothing that went wrong is kept quiet: where the log book tells more, it is named.
void PrintTroubles(const Translation& translation) {
    if (WentWell(translation)) return;
    const bool hasLogBook = !translation.LogFileName.empty() && !translation.outcome.logBookFailed;
    const Text seeLogBook = hasLogBook ? Concat(u" Zie het logboek: ", translation.LogFileName) : Text();
    PrintErrorLine(Concat(ClosingSentence(translation), seeLogBook));
}

int StatusOf(const Translation& translation) {
    if (translation.outcome.Failed()) return status::failed;
    return translation.problems.HasFaults() ? status::withErrors : status::done;
}

TranslateRow RowOf(const Translation& translation, const RunNames& job) {
    TranslateRow row = FailedRow(job);
    row.status = StatusOf(translation);
    const KindAccount total = translation.account.Total();
    row.read = total.read;
    row.written = total.written;
    row.leftOut = total.LeftOutTotal();
    row.unknown = UnknownObjects(translation.codes);
    row.errors = translation.problems.errors;
    std::vector<Text> lines = translation.problems.Lines(ProblemList::Loss);
    if (row.status == status::failed) lines.insert(lines.begin(), ClosingSentence(translation));
    row.problems = InOneValue(lines);
    return row;
}

// Without a log book the errors are told here; for JSON they are kept.
void ListenToErrors(ConsoleScreen& screen, const RunNames& job, const TranslateOptions& options, Problems& problems,
                    std::vector<Problem>& errors) {
    if (!job.logBook.empty() && !options.asJson) return;
    problems.onError = [&screen, &errors, isTold = job.logBook.empty(),
                        isKept = options.asJson](const Problem& problem) {
        if (isKept) errors.push_back(problem);
        if (!isTold) return;
        screen.ClearProgress();
        PrintErrorLine(Concat(u"FOUT:  ", Sentence(problem)));
    };
}

}  // namespace

TranslateRow FailedRow(const RunNames& job) {
    TranslateRow row;
    row.input = job.input;
    row.output = job.output;
    row.logBook = job.logBook;
    row.status = status::failed;
    return row;
}

JobResult TranslateJob(ConsoleScreen& screen, const Project& project, CodeTables& codes, const RunNames& job, Mode mode,
                       const TranslateOptions& options) {
    Translation translation(screen, project, std::move(codes));
    TakeNames(job, mode, translation);
    translation.readsWithoutLayers = options.reading.fromInstrument;
    std::vector<Problem> errors;
    ListenToErrors(screen, job, options, translation.problems, errors);
    TranslateFiles(translation);
    screen.ClearProgress();
    const bool hasFailed = translation.outcome.Failed();
    if (!hasFailed && !options.asJson) PrintResult(translation);
    PrintLines(options.batch.quiet ? LossLines(translation) : ProblemLines(translation));
    if (!options.batch.quiet) PrintLines(AccountLines(translation));
    PrintTroubles(translation);
    JobResult result{RowOf(translation, job), {}, {}};
    if (options.asJson) result.json = TranslationJson(translation, result.row.status, errors);
    result.problems.AddAll(translation.problems);
    codes = std::move(translation.codes);
    return result;
}

}  // namespace korvande
