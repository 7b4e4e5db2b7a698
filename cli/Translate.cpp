#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <unordered_set>

#include "cli/Arguments.h"
#include "cli/Process.h"
#include "core/ConsoleScreen.h"
#include "core/NativePath.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "host/modFileHandling.h"
#include "project/CodeTables.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"
#include "run/TranslateFiles.h"

namespace korvande {

namespace {

// The modes in the order of the mode list.
struct Mode {
    std::string_view shortName;
    std::int16_t direction;
    TextView extension;         // of an output that goes into a folder
    TextView derivedExtension;  // of an output whose name follows from the input's
};
constexpr std::array<Mode, 4> modes = {{{"idex-nen1878", fromIdex, u"sfn", u"SFN"},
                                        {"idex-suf2", fromIdex, u"sf2", u"SFN"},
                                        {"nen1878-idex", toIdex, u"idx", u"IDX"},
                                        {"suf2-idex", toIdex, u"idx", u"IDX"}}};

// One input with the names that belong to it.
struct Job {
    Text input;
    Text output;
    Text logBook;  // empty: none
};

[[noreturn]] void RefuseValue(TextView option, const std::string& value, TextView wanted) {
    throw UsageError{Concat(u"Ongeldige waarde bij ", option, u": ", FromUtf8(value), u" (", wanted, u")")};
}

int ModeIndex(const std::string& name) {
    if (name.empty()) throw UsageError{u"Er ontbreekt een optie: --modus"};
    for (std::size_t i = 0; i < modes.size(); ++i) {
        const bool isModeText = FromUtf8(name) == frmKORVANDE().cboXlateMode.items[i];
        if (isModeText || name == modes[i].shortName) return static_cast<int>(i);
    }
    RefuseValue(u"--modus", name, u"idex-nen1878, idex-suf2, nen1878-idex of suf2-idex");
}

bool YesOrNo(TextView option, const std::string& value) {
    if (value != "ja" && value != "nee") RefuseValue(option, value, u"ja of nee");
    return value == "ja";
}

std::optional<Answer> FixedAnswer(const std::string& value) {
    if (value.empty()) return {};
    if (value == "ja") return Answer::Yes;
    if (value == "nee") return Answer::No;
    if (value == "annuleren") return Answer::Cancel;
    RefuseValue(u"--antwoord", value, u"ja, nee of annuleren");
}

// Takes four numbers separated by commas, in the order of the option: the minima, then the maxima. False when they are
// no rectangle.
bool TakeRectangle(std::string_view value) {
    FormKORVANDE& form = frmKORVANDE();
    const std::array<Text FormKORVANDE::*, 4> boxes = {&FormKORVANDE::txtMinX, &FormKORVANDE::txtMinY,
                                                       &FormKORVANDE::txtMaxX, &FormKORVANDE::txtMaxY};
    std::array<double, 4> metres{};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const std::size_t end = std::min(value.find(','), value.size());
        const bool isLast = i + 1 == boxes.size();
        const std::string_view number = value.substr(0, end);
        if (!IsNumber(number) || (end == value.size()) != isLast) return false;
        metres[i] = LeadingNumber(number);
        form.*boxes[i] = FromUtf8(number);
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    return metres[0] <= metres[2] && metres[1] <= metres[3];
}

void TakeSelection(const std::string& value) {
    bool isRectangle = false;
    try {
        isRectangle = TakeRectangle(value);
    } catch (const RuntimeError&) {  // a number beyond all bounds
        isRectangle = false;
    }
    if (!isRectangle) RefuseValue(u"--selectie", value, u"MINX,MINY,MAXX,MAXY in meters");
    frmKORVANDE().chkSelectXY = true;
}

void TakeSource(const std::string& value) {
    const int last = static_cast<int>(frmKORVANDE().lstSource.items.size()) - 1;
    if (value.size() != 1 || value[0] < '0' || value[0] > '0' + last) {
        RefuseValue(u"--bronvermelding", value, u"0 tot en met 5");
    }
    frmKORVANDE().lstSource.index = value[0] - '0';
}

Job JobFor(const TranslateOptions& options, const Mode& mode, const std::string& file) {
    Job job;
    job.input = FromUtf8(file);
    if (!options.outputFolder.empty()) {
        const Text name = FileNameOf(job.input);
        const std::size_t dot = name.rfind(u'.');
        const Text stem = name.substr(0, dot == 0 ? Text::npos : dot);
        job.output = Concat(FolderWithSeparator(FromUtf8(options.outputFolder)), stem, u".", mode.extension);
    } else {
        job.output = options.files.size() > 1 ? FromUtf8(options.files[1])
                                              : WithLastThreeReplaced(job.input, mode.derivedExtension);
    }
    if (options.withoutLogBook) return job;
    job.logBook = options.logBook.empty() ? WithLastThreeReplaced(job.output, u"LOG") : FromUtf8(options.logBook);
    return job;
}

std::vector<Job> JobsFor(const TranslateOptions& options, const Mode& mode) {
    if (options.files.empty()) throw UsageError{u"Er ontbreekt een invoerbestand."};
    if (options.withoutLogBook && !options.logBook.empty()) {
        throw UsageError{u"--logboek en --geen-logboek gaan niet samen."};
    }
    if (options.outputFolder.empty() && options.files.size() > 2) {
        throw UsageError{u"Te veel bestanden; gebruik --uitvoermap om er meer te vertalen."};
    }
    if (!options.outputFolder.empty() && options.files.size() > 1 && !options.logBook.empty()) {
        throw UsageError{u"--logboek gaat samen met een invoerbestand; elk bestand krijgt zijn eigen logboek."};
    }
    const std::size_t inputs = options.outputFolder.empty() ? 1 : options.files.size();
    std::vector<Job> jobs;
    for (std::size_t i = 0; i < inputs; ++i) jobs.push_back(JobFor(options, mode, options.files[i]));
    return jobs;
}

// No run may write over an input or the control table, nor two writers over the same file.
void RefuseClashes(const std::vector<Job>& jobs, const std::string& project) {
    const auto refuse = [](TextView what, TextView name) {
        throw UsageError{Concat(what, u" zijn hetzelfde bestand:\n", name)};
    };
    std::unordered_set<std::string> inputs;
    for (const Job& job : jobs) inputs.insert(FileIdentity(job.input));
    const std::string table = project.empty() ? std::string() : FileIdentity(FromUtf8(project));
    std::unordered_set<std::string> written;
    for (const Job& job : jobs) {
        const std::string output = FileIdentity(job.output);
        if (inputs.contains(output)) refuse(u"Invoer en uitvoer", job.output);
        if (output == table) refuse(u"Controletabel en uitvoer", job.output);
        if (!written.insert(output).second) {
            throw UsageError{Concat(u"Meer dan een invoerbestand krijgt deze uitvoer:\n", job.output)};
        }
    }
    for (const Job& job : jobs) {
        if (job.logBook.empty()) continue;
        const std::string logBook = FileIdentity(job.logBook);
        if (inputs.contains(logBook)) refuse(u"Invoer en logboek", job.logBook);
        if (logBook == table) refuse(u"Controletabel en logboek", job.logBook);
        if (!written.insert(logBook).second) refuse(u"Uitvoer en logboek", job.logBook);
    }
}

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

std::int64_t UnknownObjects() {
    std::int64_t count = 0;
    for (const CodeTable* table : {&PointCodes(), &LineCodes(), &TextCodes()}) {
        if (!table->rows.empty()) count += table->rows.front().Count;
    }
    return count;
}

void PrintResult(const Job& job) {
    const Drawing& drawing = TheDrawing();
    PrintLine(Concat(job.output, u": ", drawing.Points.UpperBound(), u" punten, ", drawing.Lines.UpperBound(),
                     u" lijnstrings, ", drawing.Edges.UpperBound(), u" lijnsegmenten, ", drawing.Texts.UpperBound(),
                     u" teksten, ", UnknownObjects(), u" onbekende objecten, ", LogFile().ErrorCount(), u" fouten"));
    std::fflush(stdout);
}

// Where the output is written until it is finished; empty: in its own place, because it is no regular file, or because
// it may not be written, so that opening it tells why.
Text TemporaryNameFor(const Text& output) {
    if (!IsRegularFileOrMissing(output)) return {};
    try {
        if (FileExistsAt(output)) std::fclose(OpenNativeFile(output, OpenMode::Append));
    } catch (const RuntimeError&) {
        return {};
    }
    return TemporaryNameBeside(output);
}

// The run's log book is closed by now, so this goes behind its end.
void LogNotInPlace(const Job& job) {
    LogBook& log = LogFile();
    try {
        if (!job.logBook.empty()) log.Reopen(job.logBook);
    } catch (const RuntimeError&) {
        // Standard error tells it too.
    }
    log.WriteError(Concat(u"Kon bestand: '", job.output, u"' niet opslaan"));
    if (log.IsOpen()) log.Close();
}

// The finished output takes the place of an earlier one, which until then stayed as it was.
void PutInPlace(const Job& job) {
    RunValues& run = TheRun();
    if (run.temporaryOutput.empty()) return;
    if (run.outcome.Failed()) {
        DeleteFileAt(run.temporaryOutput);
    } else if (!RenameFileAt(run.temporaryOutput, job.output)) {
        DeleteFileAt(run.temporaryOutput);
        run.outcome.outputFailed = true;
        LogNotInPlace(job);
    }
}

TextView WhyNotTranslated(const RunValues& run) {
    const RunOutcome& outcome = run.outcome;
    if (outcome.cancelled) return u"afgebroken";
    if (outcome.logBookFailed) return u"het logboek kan niet worden geschreven";
    if (outcome.inputUnreadable) return u"het bestand kan niet worden gelezen";
    if (outcome.wrongFormat) {
        return run.XlateDirection == fromIdex ? u"het is geen IDEX bestand" : u"het is geen NEN1878 of SUF2 bestand";
    }
    return u"de uitvoer kan niet worden geschreven";
}

// Nothing that went wrong is kept quiet: where the log book tells more, it is named.
void PrintTroubles(const Job& job) {
    const bool hasFailed = TheRun().outcome.Failed();
    const bool hasLogBook = !job.logBook.empty() && !TheRun().outcome.logBookFailed;
    const Text seeLogBook = hasLogBook ? Concat(u" Zie het logboek: ", job.logBook) : Text();
    if (hasFailed) {
        PrintErrorLine(Concat(job.input, u" is niet vertaald: ", WhyNotTranslated(TheRun()), u".", seeLogBook));
    } else if (LogFile().ErrorCount() > 0) {
        PrintErrorLine(Concat(job.input, u" is vertaald, met fouten.", seeLogBook));
    }
}

// How many objects of each kind were read, written and left out.
void PrintAccount() {
    Text summary = TheAccount().Summary();
    if (summary.empty()) return;
    summary.pop_back();  // the last line's end
    PrintErrorLine(summary);
}

int TranslateOne(const Job& job, const Mode& mode, bool isQuiet, ConsoleScreen& screen) {
    RunValues& run = TheRun();
    run.XlateDirection = mode.direction;
    run.IdexFileName = mode.direction == fromIdex ? job.input : job.output;
    run.SufNenFileName = mode.direction == fromIdex ? job.output : job.input;
    run.LogFileName = job.logBook;
    run.temporaryOutput = TemporaryNameFor(job.output);
    SaveGridData();
    TranslateFiles();
    PutInPlace(job);
    screen.ClearProgress();
    if (!run.outcome.Failed()) {
        PrintResult(job);
        if (!isQuiet) PrintAccount();
    }
    PrintTroubles(job);
    return run.outcome.Failed() ? status::failed : LogFile().ErrorCount() > 0 ? status::withErrors : status::done;
}

}  // namespace

int Translate(const TranslateOptions& options) {
    const int modeIndex = ModeIndex(options.mode);
    const Mode& mode = modes[static_cast<std::size_t>(modeIndex)];
    const std::optional<Answer> answer = FixedAnswer(options.answer);
    const bool choosesUnknowns = !options.unknowns.empty();
    const bool withUnknowns = choosesUnknowns && YesOrNo(u"--onbekend", options.unknowns);
    const std::vector<Job> jobs = JobsFor(options, mode);

    ConsoleScreen screen(!options.quiet && ErrorIsTerminal());
    PrepareScreen(screen, answer);
    // Without a log book the errors are told here.
    if (options.withoutLogBook) {
        LogFile().onError = [&screen](TextView message) {
            screen.ClearProgress();
            PrintErrorLine(Concat(u"FOUT:  ", message));
        };
    }
    const ScreenInUse inUse(screen);
    if (!options.selection.empty()) {
        TakeSelection(options.selection);
        if (mode.direction == fromIdex) PrintErrorLine(u"--selectie geldt alleen voor een vertaling naar IDEX.");
    }
    if (!options.source.empty()) TakeSource(options.source);
    RefuseClashes(jobs, options.project);
    if (!LoadControlTable(options.project)) return status::failed;
    frmKORVANDE().cboXlateMode.index = modeIndex;
    if (choosesUnknowns) frmKORVANDE().chkExportUnknowns = frmKORVANDE().chkImportUnknowns = withUnknowns;

    int worst = status::done;
    for (const Job& job : jobs) {
        const int result = TranslateOne(job, mode, options.quiet, screen);
        worst = std::max(worst, jobs.size() > 1 && result == status::failed ? status::withErrors : result);
        if (!IsInterrupted()) continue;
        if (&job != &jobs.back()) PrintErrorLine(u"De bestanden die volgen, zijn niet vertaald.");
        break;
    }
    return worst;
}

}  // namespace korvande
