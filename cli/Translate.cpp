#include "cli/Translate.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>

#include "cli/ConsoleScreen.h"
#include "cli/Jobs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/Projects.h"
#include "project/Grid.h"
#include "run/TranslateFiles.h"
#include "translation/ClosingSentence.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Asks on the terminal until the answer is one; the end of the input cancels.
Answer AskOnTerminal(const MessageBox& box) {
    while (true) {
        PrintErrorLine(Concat(box.text, u" [j]a / [n]ee / [a]nnuleren"));
        const int first = std::getchar();
        for (int c = first; c != '\n' && c != EOF;) c = std::getchar();
        switch (first) {
            case 'j':
            case 'J':
                return Answer::Yes;
            case 'n':
            case 'N':
                return Answer::No;
            case 'a':
            case 'A':
            case EOF:
                return Answer::Cancel;
            default:
                break;
        }
    }
}

// Questions are asked on a terminal. Elsewhere, or with an answer given beforehand, question and answer are told.
void PrepareScreen(ConsoleScreen& screen, std::optional<Answer> fixed) {
    screen.isInterrupted = IsInterrupted;
    screen.answerQuestion = [fixed](const MessageBox& box) {
        if (!fixed && InputIsTerminal()) return AskOnTerminal(box);
        const Answer answer = fixed.value_or(Answer::Yes);
        const TextView word = answer == Answer::Yes ? u"ja" : answer == Answer::No ? u"nee" : u"annuleren";
        PrintErrorLine(Concat(box.text, u" ", word));
        return answer;
    };
}

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

void TakeJob(const Job& job, Mode mode, Translation& translation) {
    const bool isFromIdex = mode.direction == Direction::FromIdex;
    translation.mode = mode;
    translation.modeText = NamesOf(mode).text;
    translation.IdexFileName = isFromIdex ? job.input : job.output;
    translation.SufNenFileName = isFromIdex ? job.output : job.input;
    translation.LogFileName = job.logBook;
}

// The code tables are handed on from file to file.
int TranslateOne(ConsoleScreen& screen, const Project& project, CodeTables& codes, const Job& job, Mode mode,
                 const TranslateOptions& options) {
    Translation translation(screen, project, std::move(codes));
    TakeJob(job, mode, translation);
    translation.readsWithoutLayers = options.reading.fromInstrument;
    // Without a log book the errors are told here.
    if (job.logBook.empty()) {
        translation.problems.onError = [&screen](const Problem& problem) {
            screen.ClearProgress();
            PrintErrorLine(Concat(u"FOUT:  ", Sentence(problem)));
        };
    }
    TranslateFiles(translation);
    screen.ClearProgress();
    const bool hasFailed = translation.outcome.Failed();
    if (!hasFailed) PrintResult(translation);
    PrintLines(options.quiet ? LossLines(translation) : ProblemLines(translation));
    if (!options.quiet) PrintLines(AccountLines(translation));
    PrintTroubles(translation);
    codes = std::move(translation.codes);
    if (hasFailed) return status::failed;
    const Problems& problems = translation.problems;
    return problems.errors > 0 || problems.HasDamage() ? status::withErrors : status::done;
}

int TranslateAll(ConsoleScreen& screen, const Project& project, const std::vector<Job>& jobs, Mode mode,
                 const TranslateOptions& options) {
    int worst = status::done;
    CodeTables codes = project.codes;
    PassThroughGrids(codes);
    for (const Job& job : jobs) {
        const int result = TranslateOne(screen, project, codes, job, mode, options);
        worst = std::max(worst, jobs.size() > 1 && result == status::failed ? status::withErrors : result);
        if (!IsInterrupted()) continue;
        if (&job != &jobs.back()) PrintErrorLine(u"De bestanden die volgen, zijn niet vertaald.");
        break;
    }
    return worst;
}

}  // namespace

int Translate(const TranslateOptions& options) {
    const Mode mode = ModeOf(options.mode);
    const std::optional<Answer> answer = FixedAnswer(options.answer);
    const bool choosesUnknowns = !options.unknowns.empty();
    const bool withUnknowns = choosesUnknowns && YesOrNo(u"--onbekend", options.unknowns);
    const std::vector<Job> jobs = JobsFor(options, NamesOf(mode));

    ConsoleScreen screen(!options.quiet && ErrorIsTerminal());
    PrepareScreen(screen, answer);
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
    RefuseClashes(jobs, options.project);
    if (!LoadControlTable(screen, project, options.project)) return status::failed;
    if (choosesUnknowns) project.options.chkExportUnknowns = project.options.chkImportUnknowns = withUnknowns;
    if (options.threePointArcs) {
        project.options.chkThreePointArcs = true;
        if (mode.direction == Direction::ToIdex) {
            PrintErrorLine(u"--driepuntsbogen geldt alleen voor een vertaling uit IDEX.");
        }
    }
    return TranslateAll(screen, project, jobs, mode, options);
}

}  // namespace korvande
