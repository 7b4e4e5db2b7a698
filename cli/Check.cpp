#include "cli/Check.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/Arguments.h"
#include "cli/ConsoleScreen.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "core/Picture.h"
#include "project/Grid.h"
#include "run/Check.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"
#include "translation/UnknownObjects.h"

namespace korvande {

namespace {

// What is wrong with the file being checked, one line each.
class Findings {
 public:
    void Add(TextView message) {
        ++count;
        PrintLine(Concat(u"  ", message));
    }
    std::int64_t Count() const noexcept { return count; }

 private:
    std::int64_t count = 0;
};

Text QuestionWithLine(Text question, std::int64_t line) {
    std::replace(question.begin(), question.end(), u'\n', u' ');
    return line > 0 ? Concat(question, u" (regel ", line, u")") : question;
}

void PrintCounts(const Drawing& drawing) {
    PrintLine(Concat(u"Aantallen: ", drawing.Points.UpperBound(), u" punten, ", drawing.Lines.UpperBound(),
                     u" lijnstrings, ", drawing.Edges.UpperBound(), u" lijnsegmenten, ", drawing.Texts.UpperBound(),
                     u" teksten"));
    const auto& points = drawing.Points;
    if (points.UpperBound() == 0) return;
    double minX = points[1].East;
    double maxX = minX;
    double minY = points[1].North;
    double maxY = minY;
    for (std::int32_t index = 2; index <= points.UpperBound(); ++index) {
        minX = std::min(minX, points[index].East);
        maxX = std::max(maxX, points[index].East);
        minY = std::min(minY, points[index].North);
        maxY = std::max(maxY, points[index].North);
    }
    const auto metres = [](double value) { return FormatPicture(value, "0.000"); };
    PrintLine(
        Concat(u"Omvang: X ", metres(minX), u" tot ", metres(maxX), u", Y ", metres(minY), u" tot ", metres(maxY)));
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
    for (const UnknownCodeRec& unknown : unknowns.Entries()) findings.Add(UnknownCodeSentence(unknown));
}

// Goes through the drawing and tells all there is to tell of it; the exit status. The code tables are handed on.
int CheckFile(ReadingScreen& screen, const Project& project, CodeTables& codes, const CheckOptions& options,
              const Text& name, const InputDrawing& input) {
    Findings findings;
    Translation translation(screen, project, std::move(codes));
    TakeInput(input, name, options.reading, translation);
    // What is told at the end is told one by one as well when that is asked for.
    auto& listener = options.listsAll ? translation.problems.onProblem : translation.problems.onError;
    listener = [&findings](const Problem& problem) { findings.Add(SentenceWithLine(problem)); };
    // A question about the format is a problem, after which the check goes on with what is proposed.
    screen.answerQuestion = [&findings, &translation](const MessageBox& box) {
        findings.Add(QuestionWithLine(box.text, translation.inputLine));
        return Answer::Yes;
    };
    PrintLine(Concat(u"Bestand: ", name, u" (", NameOf(input.format), u")"));
    PrintLine(u"Problemen:");
    CheckDrawing(translation);
    if (translation.outcome.cancelled) throw TranslationAborted();
    AddUnknownCodes(translation.unknowns, findings);
    if (findings.Count() == 0) PrintLine(u"  geen");
    for (const Text& line : ProblemLines(translation)) PrintLine(line);
    PrintLine(u"Objectbalans:");
    for (const Text& line : AccountLines(translation)) PrintLine(Concat(u"  ", line));
    PrintCounts(translation.drawing);
    PrintCodes(u"Lijncodes:", translation.codes.lines);
    PrintCodes(u"Puntcodes:", translation.codes.points);
    PrintCodes(u"Tekstcodes:", translation.codes.texts);
    codes = std::move(translation.codes);
    if (translation.outcome.inputUnreadable || translation.outcome.wrongFormat) return status::failed;
    const bool isGood = findings.Count() == 0 && !translation.problems.HasLoss();
    return isGood ? status::done : status::withErrors;
}

int CheckOne(const Project& project, CodeTables& codes, const CheckOptions& options, const Text& name) {
    ReadingScreen screen;
    const std::optional<InputDrawing> input = FindInput(screen, name);
    if (!input) return status::failed;
    return CheckFile(screen, project, codes, options, name, *input);
}

}  // namespace

int Check(const CheckOptions& options) {
    Project settings;
    ConsoleScreen screen(false);
    TakeReading(options.reading, settings.options);
    if (!LoadControlTable(screen, settings, options.project)) return status::failed;
    int worst = status::done;
    CodeTables codes = settings.codes;
    PassThroughGrids(codes);
    for (const std::string& file : options.files) {
        try {
            worst = std::max(worst, CheckOne(settings, codes, options, FromUtf8(file)));
        } catch (const TranslationAborted&) {
            return status::failed;
        }
    }
    return worst;
}

}  // namespace korvande
