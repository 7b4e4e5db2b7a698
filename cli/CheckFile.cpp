#include "cli/CheckFile.h"

#include <optional>
#include <span>
#include <utility>

#include "cli/Inputs.h"
#include "cli/Print.h"
#include "core/Picture.h"
#include "picture/RdArea.h"
#include "report/CheckJson.h"
#include "run/Check.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"
#include "translation/UnknownObjects.h"

namespace korvande {

namespace {

// What is wrong with the file being checked, one line each; for JSON they are kept.
class Findings {
 public:
    explicit Findings(bool itIsKept) : isKept(itIsKept) {}

    void Add(CheckFinding finding, TextView line) {
        ++count;
        if (!isKept) {
            PrintLine(Concat(u"  ", line));
        } else {
            kept.push_back(std::move(finding));
        }
    }
    void Add(const Problem& problem) { Add(FindingOf(problem), SentenceWithLine(problem)); }
    // What a run would have asked is a problem.
    void AddQuestion(TextView question, std::int64_t line) {
        CheckFinding finding = FindingOfQuestion(question, line);
        const Text withLine = line > 0 ? Concat(finding.text, u" (regel ", line, u")") : finding.text;
        Add(std::move(finding), withLine);
    }
    // JSON has these in a list of their own.
    void AddUnknownCode(TextView sentence) {
        ++count;
        if (!isKept) PrintLine(Concat(u"  ", sentence));
    }
    std::int64_t Count() const noexcept { return count; }
    std::span<const CheckFinding> Kept() const noexcept { return kept; }

 private:
    bool isKept;
    std::int64_t count = 0;
    std::vector<CheckFinding> kept;
};

void PrintCounts(const Drawing& drawing) {
    PrintLine(Concat(u"Aantallen: ", drawing.Points.UpperBound(), u" punten, ", drawing.Lines.UpperBound(),
                     u" lijnstrings, ", drawing.Edges.UpperBound(), u" lijnsegmenten, ", drawing.Texts.UpperBound(),
                     u" teksten"));
    const std::optional<DrawingExtent> extent = ExtentOf(drawing);
    if (!extent) return;
    const auto metres = [](double value) { return FormatPicture(value, "0.000"); };
    PrintLine(Concat(u"Omvang: X ", metres(extent->minX), u" tot ", metres(extent->maxX), u", Y ", metres(extent->minY),
                     u" tot ", metres(extent->maxY)));
    if (const TextView remark = RdRemark(RdPlaceOf(*extent)); !remark.empty()) {
        PrintLine(Concat(u"Let op: ", remark));
    }
}

void PrintCodes(TextView heading, const CodeTable& table) {
    bool isFirst = true;
    for (std::size_t row = 1; row < table.rows.size(); ++row) {
        const CodeRow& code = table.rows[row];
        if (code.Count == 0) continue;
        if (isFirst) PrintLine(heading);
        isFirst = false;
        PrintLine(Concat(u"  ", code.LiscadCode.View(), u" = ", code.LkiCode.View(), u" ", code.Description.View(),
                         u" ", code.Count, u" maal"));
    }
}

// The codes that the control table does not know; each is a problem.
void AddUnknownCodes(UnknownCodeTally& unknowns, Findings& findings) {
    unknowns.Sort();
    for (const UnknownCodeRec& unknown : unknowns.Entries()) findings.AddUnknownCode(UnknownCodeSentence(unknown));
}

void PrintAll(const Translation& translation) {
    for (const Text& line : ProblemLines(translation)) PrintLine(line);
    PrintLine(u"Objectbalans:");
    for (const Text& line : AccountLines(translation)) PrintLine(Concat(u"  ", line));
    PrintCounts(translation.drawing);
    PrintCodes(u"Lijncodes:", translation.codes.lines);
    PrintCodes(u"Puntcodes:", translation.codes.points);
    PrintCodes(u"Tekstcodes:", translation.codes.texts);
}

CheckResult ResultOf(const Translation& translation, std::int64_t findings) {
    CheckResult result;
    result.points = translation.drawing.Points.UpperBound();
    result.lineStrings = translation.drawing.Lines.UpperBound();
    result.edges = translation.drawing.Edges.UpperBound();
    result.texts = translation.drawing.Texts.UpperBound();
    for (const UnknownCodeRec& unknown : translation.unknowns.Entries()) result.unknown += unknown.Count;
    result.findings = findings;
    result.errors = translation.problems.errors;
    result.losses = translation.problems.Lines(ProblemList::Loss);
    result.problems.AddAll(translation.problems);
    if (translation.outcome.inputUnreadable || translation.outcome.wrongFormat) return result;
    const bool isGood = findings == 0 && !translation.problems.HasLoss();
    result.status = isGood ? status::done : status::withErrors;
    return result;
}

CheckResult CheckInput(ReadingScreen& screen, const Project& project, CodeTables& codes, const CheckOptions& options,
                       const Text& name, const InputDrawing& input) {
    Findings findings(options.asJson);
    Translation translation(screen, project, std::move(codes));
    TakeInput(input, name, options.reading, translation);
    // What is told at the end is told one by one as well when that is asked for.
    auto& listener = options.listsAll ? translation.problems.onProblem : translation.problems.onError;
    listener = [&findings](const Problem& problem) { findings.Add(problem); };
    // A question about the format is a problem, after which the check goes on with what is proposed.
    screen.answerQuestion = [&findings, &translation](const MessageBox& box) {
        findings.AddQuestion(box.text, translation.inputLine);
        return Answer::Yes;
    };
    if (!options.asJson) {
        PrintLine(Concat(u"Bestand: ", name, u" (", NameOf(input.format), u")"));
        PrintLine(u"Problemen:");
    }
    CheckDrawing(translation);
    if (translation.outcome.cancelled) throw TranslationAborted();
    AddUnknownCodes(translation.unknowns, findings);
    CheckResult result = ResultOf(translation, findings.Count());
    result.format = NameOf(input.format);
    if (options.asJson) {
        result.json = CheckJson(translation, name, input.format, result.status, findings.Kept());
    } else {
        if (findings.Count() == 0) PrintLine(u"  geen");
        PrintAll(translation);
    }
    codes = std::move(translation.codes);
    return result;
}

}  // namespace

CheckResult CheckFile(const Project& project, CodeTables& codes, const CheckOptions& options, const Text& name) {
    ReadingScreen screen;
    const std::optional<InputDrawing> input = FindInput(screen, name);
    if (!input) return {};
    return CheckInput(screen, project, codes, options, name, *input);
}

}  // namespace korvande
